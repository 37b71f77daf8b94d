// Receives every run-time error of the program. With messages off, which is the default, an error costs one test.
#pragma once

#include "app/Ports.h"
#include "util/Errors.h"

#include <QObject>

class ErrorLog : public QObject, public ErrorReceiver
{
    Q_OBJECT

  public:
    static constexpr QLatin1StringView fileName{"ErrorLog.txt"};

    /// `programFolder` goes into each record.
    ErrorLog(UserDialogs &dialogs, Desktop &desktop, QString programFolder);

    /// One record in the log file, then a message box that offers to open it or to end the program.
    void ErrorLogger(qint64 number, const QString &description, const QString &module,
                     const QString &location) override;
    [[nodiscard]] ErrorReceiver *ifListening() override { return mShow ? this : nullptr; }
    /// Errors are logged and shown, or pass in silence.
    void ToggleErrMsg(bool show) { mShow = show; }
    [[nodiscard]] bool isShowing() const { return mShow; }

    /// Where the log lies: the folder of the variable LOGFILES, else the current one.
    [[nodiscard]] static QString filePath();

  Q_SIGNALS:
    /// The user has asked to end the program on the spot; from then on errors pass in silence.
    void endRequested();
    /// The log itself failed: what was disabled is to be made usable again.
    void failed();

  private:
    void write(const QString &record);
    void show(const QString &record);

    UserDialogs &mDialogs;
    Desktop &mDesktop;
    QString mProgramFolder;
    bool mShow = false;
    bool mAsking = false;
};
