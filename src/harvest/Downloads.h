// Fetches files without the browser into the user's folder, by the way that the user has chosen; on the first way it
// can speak for the browser. Knows driver and transfer.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "driver/BrowserHolder.h"
#include "transfer/cInetWS.h"
#include "transfer/cInternet.h"

#include <QElapsedTimer>

class Downloads : public QObject
{
    Q_OBJECT

  public:
    /// One download as it went.
    struct Fetched
    {
        QString name; ///< of the file, or of the one that there should have been
        QString address;
        QString refusal; ///< why there is no file; "" when there is one
        qint64 size = 0;
        double seconds = 0;
    };

    Downloads(const Context &context, const FilePlaces &places, const Limits &limits, const OptionBoxes &options,
              BrowserHolder &browser, Transfers &transfers, cInetWS &inet);

    /// A first fetch, or that of what an earlier run may have fetched before it was stopped.
    enum class Turn { First, Again };

    /// Fetches `url` into a file `name` of the folder, or under the next free name where that is taken. The name of the
    /// file; `name` where there is none. Again: a file that came like this before, byte for byte, is kept in place of
    /// the new one, so that the numbers behind it keep their names.
    QString fetch(const QString &url, const QString &name, Turn turn = Turn::First);
    /// The last fetch() has made a file.
    [[nodiscard]] bool hasArrived() const { return mLast.refusal.isEmpty(); }
    /// Bytes that a file must have.
    [[nodiscard]] qint64 leastSize() const { return mLimits.incSFMinGraphicSize.value(); }
    /// Ends a download under way.
    void cancel();
    [[nodiscard]] bool isUnderWay() const { return mIsUnderWay; }

  Q_SIGNALS:
    void fetched(const Downloads::Fetched &file);

  private:
    [[nodiscard]] Download transfer(const QString &url, const QString &target);
    [[nodiscard]] BrowserTraits browserTraits(const QString &url);
    [[nodiscard]] QString cookiesFor(const QString &address);

    Context mContext;
    const FilePlaces &mPlaces;
    const Limits &mLimits;
    const OptionBoxes &mOptions;
    BrowserHolder &mBrowser;
    Transfers &mTransfers;
    cInetWS &mInet;
    Fetched mLast;
    struct CookiesOfFolder
    {
        QString page, folder; // for which it was asked
        QString header;
        QElapsedTimer age;
    };
    QString mPage; // that this browser stood on last
    CookiesOfFolder mCookies;
    bool mIsUnderWay = false;
};
