#include "app/ErrorLog.h"

#include "util/Text.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {
/// A record is one line, whatever a page or a file has put into the description.
QString oneLine(QString text)
{
    for (QChar &c : text) {
        if (c.unicode() < 32)
            c = u' ';
    }
    return text;
}
} // namespace

ErrorLog::ErrorLog(UserDialogs &dialogs, Desktop &desktop, QString programFolder)
    : mDialogs(dialogs), mDesktop(desktop), mProgramFolder(std::move(programFolder))
{
}

QString ErrorLog::filePath()
{
    QString folder = qEnvironmentVariable("LOGFILES");
    if (!folder.isEmpty() && !folder.endsWith(QDir::separator()))
        folder += QDir::separator();
    return folder + fileName;
}

void ErrorLog::ErrorLogger(qint64 number, const QString &description, const QString &module, const QString &location)
{
    if (!mShow)
        return;
    const QDateTime now = QDateTime::currentDateTime();
    const QString record = now.toString(u"yyyy-MM-dd"_s) + ": "_L1 + now.toString(u"HH:mm:ss"_s) + ": Application="_L1 +
                           mProgramFolder + ": Module="_L1 + module + ": ErrLoc="_L1 + location + ": ErrDesc="_L1 +
                           oneLine(description) + ": Err#="_L1 + QString::number(number);
    try {
        write(cUtility::shown(record));
        show(cUtility::shown(record));
    } catch (const std::exception &) {
        Q_EMIT failed();
    }
}

void ErrorLog::write(const QString &record)
{
    QFile file(filePath());
    const QByteArray line = record.toUtf8() + "\r\n";
    if (!file.open(QIODevice::Append) || file.write(line) != line.size() || !file.flush())
        throw RuntimeError(ErrorNumber::PathAccessError, file.errorString());
}

void ErrorLog::show(const QString &record)
{
    // An error raised while a box is open is in the file already; boxes do not pile up.
    if (mAsking)
        return;
    const QScopedValueRollback<bool> asking(mAsking, true);
    const QString prompt = u"\r\nError was logged in "_s + fileName + u"\r\nOpen Error LOG?"_s;
    const auto answer = mDialogs.askAboutError(u"An error occurred!"_s, record, prompt);
    if (answer == UserDialogs::Answer::Yes) {
        mDesktop.open(filePath());
    } else if (answer == UserDialogs::Answer::Cancel) {
        mShow = false; // what fails while the program ends asks nobody any more
        Q_EMIT endRequested();
    }
}
