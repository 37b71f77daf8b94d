// The wish of the terminal or the system that the program ends (Ctrl+C, a session going down) as an event of the event
// loop. One lives at a time.
#pragma once

#include <QObject>
#include <memory>

class QSocketNotifier;

class StopSignals : public QObject
{
    Q_OBJECT

  public:
    StopSignals();
    ~StopSignals() override;

  Q_SIGNALS:
    void stopRequested();

  private:
    std::unique_ptr<QSocketNotifier> mNotifier;
};
