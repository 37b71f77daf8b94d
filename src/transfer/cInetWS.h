// The way of fetching files that tells its progress and can be cancelled. It asks the server itself, past any proxy,
// and can speak for the connected browser. Lives as long as the program.
#pragma once

#include "transfer/Download.h"

#include <QObject>

class cInetWS : public QObject
{
    Q_OBJECT

  public:
    cInetWS(Transfers &transfers, ErrorReceiver &log) : mTransfers(transfers), mLog(log) {}

    /// Fetches `address` into the file `target`, or as text where that is empty, when more than `minSize` bytes come.
    /// An empty answer and everything that fails are errors and go to the log; so does a call during a call.
    Download DownLoad(const QString &address, const QString &target, qint64 minSize, const BrowserTraits &browser = {});

    /// Ends a download under way. It may come from an event of that download.
    void Cancel();

  Q_SIGNALS:
    /// The number of a state (see inetStateText()).
    void InetStatus(int state);

  private:
    Transfers &mTransfers;
    ErrorReceiver &mLog;
    bool mIsBusy = false;
};
