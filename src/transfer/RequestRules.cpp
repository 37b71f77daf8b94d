#include "transfer/RequestRules.h"

#include "util/Text.h"

#include <QNetworkProxyFactory>
#include <QUrl>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
QString withProtocol(const QString &address)
{
    if (address.contains("://"_L1))
        return address;
    return (cUtility::startsWithIgnoringCase(address, u"ftp.") ? "ftp://"_L1 : "http://"_L1) + address;
}

QUrl urlOf(const QString &address)
{
    return QUrl(withProtocol(cUtility::Trim(address).toString()), QUrl::TolerantMode);
}

bool isSafe(const QUrl &url)
{
    return url.scheme() == "https"_L1;
}

int portOf(const QUrl &url)
{
    return url.port(isSafe(url) ? 443 : 80);
}

bool isSameServer(const QUrl &from, const QUrl &to)
{
    if (from.host().isEmpty() || from.host() != to.host())
        return false;
    const bool isUpgrade = from.scheme() == "http"_L1 && isSafe(to) && portOf(from) == 80 && portOf(to) == 443;
    return isUpgrade || (from.scheme() == to.scheme() && portOf(from) == portOf(to));
}

/// `text` unless it could end the line that it stands in.
QString oneLine(const QString &text)
{
    const bool fits = std::none_of(text.begin(), text.end(), [](QChar unit) { return unit < u' ' || unit == u'\x7F'; });
    return fits ? text : QString();
}

QString sentReferer(const QString &referer, const QUrl &target)
{
    const QUrl url(oneLine(referer), QUrl::TolerantMode);
    const bool isPage = isSafe(url) || url.scheme() == "http"_L1;
    if (!isPage || (isSafe(url) && !isSafe(target)))
        return {};
    return QString::fromLatin1(url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment).toEncoded());
}
} // namespace

QByteArray RequestRules::encodedAddress(const QString &address)
{
    const QUrl url = urlOf(address);
    return url.isValid() && !url.host().isEmpty() ? url.toEncoded(QUrl::RemoveFragment) : QByteArray();
}

TransferRequest RequestRules::redirected(const TransferRequest &request, const QString &target)
{
    TransferRequest next = request;
    next.address = target;
    if (!isSameServer(urlOf(request.address), urlOf(target)))
        next.browser = {.userAgent = request.browser.userAgent};
    return next;
}

BrowserTraits RequestRules::sentTraits(const TransferRequest &request)
{
    const BrowserTraits &browser = request.browser;
    return {oneLine(browser.userAgent), sentReferer(browser.referer, urlOf(request.address)), oneLine(browser.cookies)};
}

QString RequestRules::systemProxy(const QByteArray &address)
{
    const QUrl url = QUrl::fromEncoded(address);
    const QList<QNetworkProxy> proxies = QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(url));
    const QNetworkProxy proxy = proxies.value(0, QNetworkProxy::NoProxy);
    if (proxy.type() == QNetworkProxy::NoProxy || proxy.hostName().isEmpty())
        return {};
    QUrl place;
    place.setScheme(proxy.type() == QNetworkProxy::Socks5Proxy ? u"socks5h"_s : u"http"_s);
    place.setHost(proxy.hostName());
    place.setPort(proxy.port());
    place.setUserName(proxy.user());
    place.setPassword(proxy.password());
    return QString::fromLatin1(place.toEncoded());
}
