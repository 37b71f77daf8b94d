#include "FtpServer.h"
#include "support/Places.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

FtpServer::FtpServer(const QString &folder)
{
    mProcess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // The interpreter that the distribution's packages belong to, whatever else is on the path.
    mProcess.start(u"/usr/bin/python3"_s, {inSourceTree(u"tests/transfer/ftp_server.py"_s), folder});
    if (!mProcess.waitForStarted() || !mProcess.waitForReadyRead(20'000))
        throw std::runtime_error("the FTP server does not start");
    mServer = u"127.0.0.1:"_s + QString::fromLatin1(mProcess.readLine().trimmed());
}

FtpServer::~FtpServer()
{
    mProcess.closeWriteChannel();
    if (!mProcess.waitForFinished(5'000))
        mProcess.kill();
    mProcess.waitForFinished();
}

QString FtpServer::address(const QString &path) const
{
    return u"ftp://"_s + mServer + path;
}
