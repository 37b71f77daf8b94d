#include "engine/webengine/WebEngineCookies.h"

#include <QNetworkCookie>
#include <QUrl>
#include <QWebEngineCookieStore>
#include <QWebEngineProfile>

WebEngineCookies::WebEngineCookies(QWebEngineProfile &profile)
{
    const QWebEngineCookieStore *store = profile.cookieStore();
    connect(store, &QWebEngineCookieStore::cookieAdded, this,
            [this](const QNetworkCookie &cookie) { mJar.insertCookie(cookie); });
    connect(store, &QWebEngineCookieStore::cookieRemoved, this,
            [this](const QNetworkCookie &cookie) { mJar.deleteCookie(cookie); });
}

QString WebEngineCookies::headerFor(const QUrl &url) const
{
    QStringList pairs;
    for (const QNetworkCookie &cookie : mJar.cookiesForUrl(url))
        pairs.append(QString::fromUtf8(cookie.toRawForm(QNetworkCookie::NameAndValueOnly)));
    return pairs.join(QStringLiteral("; "));
}
