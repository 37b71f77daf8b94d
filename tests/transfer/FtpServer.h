// An FTP server on loopback over a folder: a process that ends with the test, also when that ends by a crash.
#pragma once

#include <QProcess>
#include <QString>

class FtpServer
{
  public:
    /// Serves `folder` to everybody and, with the right to write, to "user" with the password "secret".
    explicit FtpServer(const QString &folder);
    ~FtpServer();

    [[nodiscard]] QString address(const QString &path) const;
    /// Host and port.
    [[nodiscard]] QString server() const { return mServer; }

  private:
    QProcess mProcess;
    QString mServer;
};
