// trawlex: the window program. Makes the application, the ports and the skin, and wires them to the rest.
#include "app/IniSettings.h"
#include "app/QtEventPump.h"
#include "app/RunTally.h"
#include "app/SettingKeys.h"
#include "app/StopSignals.h"
#include "desktop/DesktopBrowsers.h"
#include "desktop/DesktopGridWindow.h"
#include "desktop/DesktopPictures.h"
#include "desktop/DesktopSideWindows.h"
#include "desktop/MainWindowPlace.h"
#include "desktop/OneInstance.h"
#include "desktop/PictureStart.h"
#include "desktop/ProgramEnd.h"
#include "desktop/Splash.h"
#include "engine/BrowserSwitches.h"
#include "engine/WebEngineSetup.h"
#include "ui/binding/MenuMirror.h"
#include "ui/windows/QtClipboard.h"
#include "ui/windows/QtDesktop.h"
#include "ui/windows/QtDialogs.h"
#include "util/Memory.h"
#include "window/Program.h"
#include "window/ProgramFolder.h"
#include "window/StartMode.h"
#include "window/WindowPlaces.h"

#include <QApplication>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {
void connectWindow(Program &program, MainWindow &window)
{
    QObject::connect(&window, &MainWindow::closeRequested, &program.lifeCycle, &LifeCycle::Terminate);
    QObject::connect(&program.lifeCycle, &LifeCycle::ended, &window, [&window] {
        window.allowClose();
        QApplication::closeAllWindows();
        QApplication::quit();
    });
    QObject::connect(&window, &MainWindow::cancelRequested, &program.longWork, &LongWork::cancel);
    QObject::connect(&window, &MainWindow::cancelRequested, &program.dataSide.view, &DataView::giveUpSorting);
    QObject::connect(&program.runs, &Runs::progress, &window,
                     [&window](int number, int count) { window.setProgress(number - 1, count); });
    QObject::connect(&program.runs, &Runs::finalized, &window, [&window] { window.setProgress(0, 0); });
    // In thousandths: a list may have more items than the bar can count.
    QObject::connect(&program.longWork, &LongWork::progressed, &window, [&window](qint64 done, qint64 all) {
        window.setProgress(all > 0 ? int(done * 1000 / all) : 0, all > 0 ? 1000 : 0);
    });
}

void connectTally(Program &program, MainWindow &window, const EventPump &pump)
{
    const auto tally = std::make_shared<RunTally>();
    const auto show = [tally, &window] { window.setTally(tally->text()); };
    QObject::connect(&program.runs, &Runs::walking, &window, [tally](const QString &anew) { tally->walk(anew); });
    QObject::connect(&program.runs, &Runs::progress, &window, [tally, show, &pump](int number, int count) {
        tally->progress(number, count, pump.tickCount());
        show();
    });
    QObject::connect(&program.keeping, &PageKeeping::rowsStored, &window,
                     [tally, show](const QMap<QString, int> &rows) {
                         tally->stored(rows);
                         show();
                     });
    QObject::connect(&program.runs, &Runs::finalized, &window, [tally, show] {
        tally->finished();
        show();
    });
}

/// The groups that show their heading alone come back so.
void rememberFolding(MainWindow &window, SettingsStore &settings)
{
    window.setFoldedGroups(settings.GetSetting(Sections::Main, Keys::FoldedGroups).split(u','));
    QObject::connect(&window, &MainWindow::foldingChanged, &window, [&window, &settings] {
        settings.SaveSetting(Sections::Main, Keys::FoldedGroups, window.foldedGroups().join(u','));
    });
}

/// The command line behind the program's name.
QStringList words(int argc, char *argv[])
{
    QStringList all;
    for (int i = 1; i < argc; ++i)
        all.append(QString::fromLocal8Bit(argv[i]));
    return all;
}

/// A second start brings the first one's window up.
void bringUp(QWidget &window)
{
    if (!window.isVisible())
        return; // it is about to come up
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}

int runHarvester(const QString &appName, const QStringList &switches, Splash &splash, const OneInstance &instance)
{
    QtEventPump pump;
    QtDialogs dialogs;
    QtDesktop desktop;
    QtClipboard clipboard;
    MainWindowPlace place;
    QtMenus menus;
    IniSettings settings(appName);
    DesktopSideWindows side(settings, desktop);
    DesktopPictures pictures(settings);
    DesktopBrowsers browsers({dataFolder(), switches, false});
    if (browsers.sandboxOff())
        std::fputs("Running as root: the browser's sandbox is off\n", stderr);
    settings.SaveSetting(Sections::Main, Keys::WorkingPath, programFolder() + u'/');
    Program program(
        {pump, dialogs, desktop, clipboard, settings, place, menus, side, pictures, browsers, programFolder()});
    MainWindow window(program.form);
    place.set(&window);
    menus.set(&window);
    side.set(&window);
    pictures.set(program.foto);
    const DesktopGridWindow gridWindow(program.dataSide.gridForm, settings, window);
    QObject::connect(&window, &MainWindow::helpRequested, &window, [&side] { side.showHelp(); });
    rememberFolding(window, settings);
    browsers.standBeside(&window);
    browsers.keepPlaceIn(&settings);
    connectWindow(program, window);
    connectTally(program, window, pump);
    const StopSignals stopSignals;
    connectEnd(program.lifeCycle, stopSignals);
    QObject::connect(&instance, &OneInstance::startedAgain, &window, [&window] { bringUp(window); });
    QObject::connect(&program.startUp, &StartUp::loaded, &window, [&] {
        // Placed before it is shown, so that the window manager takes our place and nothing jumps.
        window.takeUsualSize();
        place.sizeTo(storedSize(settings, u"frmSearch"_s, place.place().size()));
        program.startUp.settle();
        splash.close();
        window.show();
        program.status.UpDateStatus(u"Initializing browser"_s);
        QApplication::processEvents();
    });
    if (!program.startUp.Form_Load())
        return program.form.mbMainShown ? 0 : 1; // ended by the user before a browser was there
    browsers.placeInternal();
    const int status = QApplication::exec();
    place.set(nullptr);
    menus.set(nullptr);
    side.set(nullptr);
    return status;
}
} // namespace

int main(int argc, char *argv[])
{
    keepFreedMemory();
    const StartMode mode = startMode(words(argc, argv));
    const bool harvests = mode.kind == StartMode::Kind::Harvester;
    const QStringList switches = BrowserSwitches::ofUser({});
    if (harvests)
        prepareWebEngine(switches);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(u"trawlex"_s);
    QApplication::setApplicationDisplayName(u"Trawlex"_s);
    QApplication::setApplicationVersion(QStringLiteral(TRAWLEX_VERSION));
    // The end of the program is decided by its life cycle alone.
    QApplication::setQuitOnLastWindowClosed(false);

    const QString appName = GetRKAppName(u"trawlex"_s, QApplication::applicationDirPath());
    if (!harvests)
        return runPictureBrowser(appName, mode.picture);
    Splash splash;
    splash.show();
    QApplication::processEvents();
    const OneInstance instance(appName, OneInstance::usualFolder());
    if (!instance.isFirst())
        return instance.tellFirst() ? 0 : 1;
    return runHarvester(appName, switches, splash, instance);
}
