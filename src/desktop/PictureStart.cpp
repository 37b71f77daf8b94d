#include "desktop/PictureStart.h"

#include "app/ErrorLog.h"
#include "app/IniSettings.h"
#include "app/QtEventPump.h"
#include "app/SettingKeys.h"
#include "desktop/DesktopPictures.h"
#include "desktop/DesktopSideWindows.h"
#include "ui/binding/MenuMirror.h"
#include "ui/look/Theme.h"
#include "ui/windows/QtDesktop.h"
#include "ui/windows/QtDialogs.h"
#include "window/ProgramFolder.h"
#include "window/side/PictureMenu.h"

#include <QApplication>

using namespace Qt::StringLiterals;

int runPictureBrowser(const QString &appName, const QString &picture)
{
    Theme::of(*qApp);
    QtEventPump pump;
    QtDialogs dialogs;
    QtDesktop desktop;
    QtMenus menus;
    IniSettings settings(appName);
    settings.SaveSetting(Sections::Main, Keys::WorkingPath, programFolder() + u'/');
    DesktopSideWindows side(settings, desktop);
    ErrorLog log(dialogs, desktop, programFolder());
    log.ToggleErrMsg(settings.GetSetting(Sections::Main, Keys::ErrorMessages, u"0"_s) == "1"_L1);
    frmFoto form;
    DesktopPictures screen(settings);
    screen.set(form);
    QObject::connect(&screen, &DesktopPictures::opened, &form, [&menus, &side](QWidget *window) {
        menus.set(window);
        side.set(window);
    });
    PictureBrowser browser(log, form, screen, pump, settings, menus);
    const PictureMenu menu(form, browser, dialogs, desktop, settings, side);
    bool hasEnded = false;
    const auto end = [&hasEnded] {
        hasEnded = true;
        QApplication::quit();
    };
    QObject::connect(&form, &frmFoto::unloaded, qApp, end);
    QObject::connect(&log, &ErrorLog::endRequested, qApp, end);
    browser.LoadDirectory(picture);
    const int status = hasEnded ? 0 : QApplication::exec();
    menus.set(nullptr);
    side.set(nullptr);
    return status;
}
