#include "engine/webengine/WebEngineAddress.h"

#include "util/Errors.h"

#include <QUrl>
#include <array>

namespace WebEngineAddress {
namespace {

constexpr std::array slashSchemes{QLatin1StringView("http"), QLatin1StringView("https"), QLatin1StringView("ftp"),
                                  QLatin1StringView("file")};

// Of addresses with folders browsers read "\" as "/", in front of the query.
QString withSlashes(const QString &address)
{
    const QString scheme = address.section(u':', 0, 0).toLower();
    if (std::find(slashSchemes.begin(), slashSchemes.end(), scheme) == slashSchemes.end())
        return address;
    qsizetype end = 0;
    while (end < address.size() && address[end] != u'?' && address[end] != u'#')
        ++end;
    return address.first(end).replace(u'\\', u'/') + address.sliced(end);
}

} // namespace

QUrl parsed(const QString &address)
{
    QUrl url(withSlashes(address.trimmed()), QUrl::TolerantMode);
    if (!url.isValid() || url.scheme().isEmpty())
        throw RuntimeError(ErrorNumber::InvalidProcedureCall, QStringLiteral("Not an address: %1").arg(address));
    return url;
}

QString text(const QUrl &url)
{
    return QString::fromUtf8(url.toEncoded());
}

bool isSame(const QString &address, const QUrl &url)
{
    return QUrl::fromEncoded(address.toUtf8()) == url;
}

bool isMoveWithin(const QUrl &current, const QUrl &next)
{
    return next.hasFragment() && next != current &&
           next.adjusted(QUrl::RemoveFragment) == current.adjusted(QUrl::RemoveFragment);
}

bool isErrorPage(const QString &address)
{
    return address.startsWith(QStringLiteral("chrome-error:"));
}

} // namespace WebEngineAddress
