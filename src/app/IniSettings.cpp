#include "app/IniSettings.h"

#include <QDir>

using namespace Qt::StringLiterals;

QString GetRKAppName(const QString &programName, const QString &programFolder)
{
    QString user = qEnvironmentVariable("USERNAME");
    if (user.isEmpty())
        user = qEnvironmentVariable("USER");
    QString folder = programFolder;
    folder.replace(QDir::separator(), u'.');
    return u"(%1 - %2)\\%3"_s.arg(programName, user, folder);
}

namespace {
/// The store nests one level at the backslash; "/" is its own separator and so never part of a name.
QString address(QString appName, QString section, QString key)
{
    appName.replace(u'/', u'.').replace(u'\\', u'/');
    return appName + u'/' + section.replace(u'/', u'.') + u'/' + key.replace(u'/', u'.');
}
} // namespace

IniSettings::IniSettings(const QString &appName)
    : mSettings(QSettings::IniFormat, QSettings::UserScope, u"trawlex"_s, u"trawlex"_s), mAppName(appName)
{
}

void IniSettings::SaveSetting(const QString &section, const QString &key, const QString &value)
{
    mSettings.setValue(address(mAppName, section, key), value);
}

QString IniSettings::GetSetting(const QString &section, const QString &key, const QString &byDefault) const
{
    const QVariant value = mSettings.value(address(mAppName, section, key), byDefault);
    // Commas that were typed without quotation marks around the text make a list of it.
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(u',') : value.toString();
}

void BorrowedSettings::SaveSetting(const QString &section, const QString &key, const QString &value)
{
    mOwn.insert(section + u'/' + key, value);
}

QString BorrowedSettings::GetSetting(const QString &section, const QString &key, const QString &byDefault) const
{
    const auto own = mOwn.constFind(section + u'/' + key);
    return own != mOwn.constEnd() ? *own : mLender.GetSetting(section, key, byDefault);
}
