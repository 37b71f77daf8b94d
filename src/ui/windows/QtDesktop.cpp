#include "ui/windows/QtDesktop.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

void QtDesktop::open(const QString &target)
{
    QDesktopServices::openUrl(addressOf(target));
}

QUrl QtDesktop::addressOf(const QString &target)
{
    // A drive letter is no scheme.
    static const QRegularExpression scheme(u"^[A-Za-z][A-Za-z0-9+.-]+:"_s);
    if (scheme.match(target).hasMatch() && !QFileInfo::exists(target))
        return QUrl(target);
    return QUrl::fromLocalFile(QFileInfo(target).absoluteFilePath());
}
