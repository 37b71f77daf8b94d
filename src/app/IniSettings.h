// The settings store over an INI file in the user's configuration folder.
#pragma once

#include "app/Ports.h"

#include <QSettings>

/// "(program - user)\folder": two users, and two copies of the program in different folders, never share settings.
[[nodiscard]] QString GetRKAppName(const QString &programName, const QString &programFolder);

class IniSettings : public SettingsStore
{
  public:
    explicit IniSettings(const QString &appName);
    void SaveSetting(const QString &section, const QString &key, const QString &value) override;
    [[nodiscard]] QString GetSetting(const QString &section, const QString &key,
                                     const QString &byDefault = {}) const override;

  private:
    QSettings mSettings;
    QString mAppName;
};

/// Reads another store and keeps what is written to itself: for a program that must not change the user's options.
class BorrowedSettings : public SettingsStore
{
  public:
    explicit BorrowedSettings(SettingsStore &lender) : mLender(lender) {}
    void SaveSetting(const QString &section, const QString &key, const QString &value) override;
    [[nodiscard]] QString GetSetting(const QString &section, const QString &key,
                                     const QString &byDefault = {}) const override;

  private:
    SettingsStore &mLender;
    QHash<QString, QString> mOwn;
};
