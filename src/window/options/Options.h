// The options as the user sees them: loaded from the settings store at start, written when they are turned, reported in
// the status bar.
#pragma once

#include "app/ErrorLog.h"
#include "app/Ports.h"
#include "app/StatusLine.h"
#include "app/frmSearch.h"

class Options : public QObject
{
    Q_OBJECT

  public:
    static constexpr QLatin1StringView section{"SecFrmSearch"};
    static constexpr QLatin1StringView startSection{"mStartUp"};

    Options(ErrorLog &log, frmSearch &form, StatusLine &status, ControlStates &states, SettingsStore &settings,
            QString programFolder);

    /// Loads the stored values into the controls. A value that does not convert ends the loading there.
    void GetSettings();
    /// Writes what is kept at the end of the program alone.
    void saveAtExit();

  private:
    void load(Control &control, const QString &value);
    [[nodiscard]] QString baseFolder() const;
    [[nodiscard]] QString directory(const QString &key, const QString &byDefault);
    void save(QLatin1StringView key, const QString &value);
    void connectSetting(QLatin1StringView key, Control *control);
    void chkSwitch_Click(const CheckBox &box, QLatin1StringView on, QLatin1StringView off);
    void chkSavePages_Click();
    void chkSavePhone_Click();
    void chkSaveUrl_Click();
    void loadDirectories();
    void connectToolTips();
    void showCaseTip(CheckBox &box, const QString &items);
    void mirrorText(TextBox &box, const QString &whenEmpty, bool keepsHelp);
    void txtSBSelAreaCodes_Validate();

    ErrorLog &mLog;
    frmSearch &mForm;
    StatusLine &mStatus;
    ControlStates &mStates;
    SettingsStore &mSettings;
    QString mProgramFolder;
};
