// The terminal's wish to end (Ctrl+C, the system going down) as an event of the event loop. The only place of this
// program that speaks to the operating system itself.
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
