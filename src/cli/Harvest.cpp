#include "cli/Harvest.h"

#include "app/QtEventPump.h"
#include "app/StopSignals.h"
#include "cli/ConsoleBrowsers.h"
#include "cli/ConsolePorts.h"
#include "cli/ControlSetter.h"
#include "cli/DataWork.h"
#include "cli/ErrorLine.h"
#include "cli/HarvestSettings.h"
#include "cli/ListCommands.h"
#include "cli/Outcome.h"
#include "engine/BrowserSwitches.h"
#include "engine/WebEngineSetup.h"
#include "util/Memory.h"
#include "window/ProgramFolder.h"

#include <QApplication>
#include <QTimer>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {
constexpr auto windowProgram = "trawlex"_L1;
constexpr qint64 openLimit = 60'000;
constexpr qint64 askAgainAfter = 100;

/// Waits until the page that has just been opened is there, at most `openLimit` milliseconds.
void waitUntilLoaded(Program &program, EventPump &pump)
{
    const qint64 end = pump.tickCount() + openLimit;
    const auto goesOn = [&] {
        return !program.lifeCycle.isEnding() && program.browser.isSet() && program.browser->isLoading() &&
               pump.tickCount() < end;
    };
    while (goesOn())
        pump.waitForEvents(askAgainAfter);
}

void applySettings(Program &program, const QList<Arguments::Setting> &settings)
{
    for (const Arguments::Setting &setting : settings) {
        if (setting.control == program.form.browser.cboANWBSelect.name())
            throw RuntimeError(ErrorNumber::InvalidPropertyValue, u"--set cboANWBSelect: use --browser"_s);
    }
    setControls(program.form, program.states, settings);
}

/// The list that was filled, or the series that was set.
void walk(Program &program)
{
    const bool hasList = program.form.lists.shown().listCount() > 0;
    const bool hasSeries = program.manual.desk.GetAutoIncrChecked() > 0;
    if (hasList && hasSeries)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue, u"--manual: a list or a series, not both"_s);
    if (!hasList && !hasSeries)
        return program.status.UpDateStatus(u"Nothing to walk: the list is empty and no series is set"_s);
    program.manualRun.cmdMNStart_Click();
}

/// Lets the pages of the browser be collected from for so many seconds, or until it or the program ends.
void browse(Program &program, EventPump &pump, int seconds)
{
    const qint64 end = pump.tickCount() + seconds * qint64(1000);
    const auto goesOn = [&] {
        return pump.tickCount() < end && !program.lifeCycle.isEnding() && program.form.browser.mbInitialized;
    };
    while (goesOn())
        pump.waitForEvents(askAgainAfter);
    if (!program.lifeCycle.isEnding() && program.form.browser.mbInitialized)
        program.status.UpDateStatus(u"Stopped (FINISHED)"_s);
}

void harvest(Program &program, EventPump &pump, const Arguments &arguments)
{
    std::unique_ptr<UntilLoaded> untilLoaded;
    if (arguments.untilLoaded)
        untilLoaded = std::make_unique<UntilLoaded>(program.timer, program.browser);
    if (!arguments.open.isEmpty()) {
        if (!program.navigation.OpenSite(arguments.open))
            return;
        waitUntilLoaded(program, pump);
    }
    if (program.lifeCycle.isEnding() || !program.form.browser.mbInitialized)
        return;
    if (arguments.run == Arguments::Run::Auto)
        program.autoRun.cmdANStart_Click();
    else if (arguments.run == Arguments::Run::Manual)
        walk(program);
    else
        browse(program, pump, arguments.browseSeconds);
}

void print(const QByteArray &text)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    std::fflush(stdout);
}

/// A click on X, which keeps a series where that is wanted, and the end.
void stop(Program &program)
{
    if (program.form.runs.mbMNRunning && !program.form.runs.mbMNCancel)
        program.manualRun.cmdMNStart_Click();
    program.lifeCycle.end();
}

int run(Program &program, EventPump &pump, const Arguments &arguments)
{
    StopSignals stopSignals;
    if (arguments.data.isWanted()) {
        printStatuses(program);
        QObject::connect(&stopSignals, &StopSignals::stopRequested, &program.longWork, &LongWork::cancel);
        const bool done = runDataCommand(program, arguments.data);
        program.lifeCycle.end();
        return done ? Finished : OtherEnd;
    }
    QObject::connect(&program.status, &StatusLine::told, &program.form, &printError);
    Outcome outcome(program);
    QObject::connect(&stopSignals, &StopSignals::stopRequested, &program.form, [&program] { stop(program); });
    // What is done with a list alone needs no browser.
    if (!(arguments.run ? program.startUp.Form_Load() : program.startUp.load()))
        return OtherEnd;
    giveUpStoredSeries(program, arguments);
    applySettings(program, arguments.settings);
    bool finished = prepareList(program, arguments);
    if (finished && arguments.run) {
        harvest(program, pump, arguments);
        finished = outcome.isFinished();
    }
    if (arguments.json)
        print(outcome.json(arguments.listPrint) + '\n');
    else if (arguments.listPrint)
        print(listText(program.form.lists.shown()));
    program.lifeCycle.end();
    return finished ? Finished : OtherEnd;
}
} // namespace

extern "C" Q_DECL_EXPORT HarvestWork trawlexHarvest;

int trawlexHarvest(char *argv[], const Arguments &arguments)
{
    keepFreedMemory();
    // No display is needed, whichever browser runs.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QStringList switches = BrowserSwitches::ofUser(arguments.browserArgs);
    const WebEnginePreparation preparation = prepareWebEngine(switches);
    int noArguments = 1;
    const QApplication application(noArguments, argv);
    QApplication::setApplicationName(windowProgram);

    QtEventPump pump;
    ConsoleDialogs dialogs;
    ConsoleDesktop desktop;
    NoClipboard clipboard;
    NoWindow place;
    NoMenus menus;
    NoSideWindows side;
    NoPictures pictures;
    IniSettings stored(GetRKAppName(windowProgram, QApplication::applicationDirPath()));
    HarvestSettings settings(stored, arguments.databaseDir, arguments.browser);
    ConsoleBrowsers browsers({dataFolder(), switches, arguments.headless || !hasDisplay()});
    if (preparation.sandboxOff || browsers.sandboxOff())
        printError(u"Running as root: the browser's sandbox is off"_s);
    int status = OtherEnd;
    {
        Program program(
            {pump, dialogs, desktop, clipboard, settings, place, menus, side, pictures, browsers, programFolder()});
        try {
            status = run(program, pump, arguments);
        } catch (const RuntimeError &error) {
            printError("trawlex-harvest: "_L1 + error.description());
            program.lifeCycle.end();
            status = BadArguments;
        }
    }
    browsers.closeBrowser();
    pump.doEvents();
    return status;
}
