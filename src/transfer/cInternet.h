// The way of fetching files that goes through the system's proxy and tells nothing, and the way to an FTP server. Made
// for the one operation that it is needed for.
#pragma once

#include "transfer/Download.h"

class cInternet
{
  public:
    cInternet(Transfers &transfers, ErrorReceiver &log) : mTransfers(transfers), mLog(log) {}

    /// Fetches `address` into the file `target`, or as text where that is empty, when at least `minSize` bytes come; an
    /// empty answer is an empty file. A transfer that fails is no error, its reason stands in the result; a file that
    /// cannot be made is one.
    Download APIDownLoad(const QString &address, const QString &target, qint64 minSize);

    /// Stores `localFile`, as text, on an FTP server. False when that failed or anything is empty.
    bool SendFileViaFTP(const QString &server, const QString &user, const QString &password, const QString &localFile,
                        const QString &remoteFile);

  private:
    Transfers &mTransfers;
    ErrorReceiver &mLog;
};
