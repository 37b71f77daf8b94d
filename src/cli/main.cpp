// trawlex-harvest: the runs of Trawlex from a terminal or from cron, on the same database.
#include "app/QtEventPump.h"
#include "cli/Arguments.h"
#include "cli/ConsoleBrowsers.h"
#include "cli/ConsolePorts.h"
#include "cli/ControlSetter.h"
#include "cli/HarvestSettings.h"
#include "cli/Outcome.h"
#include "cli/StopSignals.h"
#include "engine/BrowserSwitches.h"
#include "engine/webengine/WebEngineSetup.h"
#include "util/Memory.h"
#include "window/ProgramFolder.h"

#include <QApplication>
#include <QTimer>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {
enum ExitStatus { Finished = 0, OtherEnd = 1, BadArguments = 2 };
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
    // While the form is not ready no value changes another, so the order of the arguments does not matter.
    program.form.mbFormReady = false;
    for (const Arguments::Setting &setting : settings) {
        if (setting.control == program.form.browser.cboANWBSelect.name())
            throw RuntimeError(ErrorNumber::InvalidPropertyValue, u"--set cboANWBSelect: use --browser"_s);
        setControl(program.form, setting.control, setting.value);
    }
    program.form.mbFormReady = true;
    program.states.SetStateOfControls();
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
    if (arguments.run && !program.lifeCycle.isEnding() && program.form.browser.mbInitialized)
        program.autoRun.cmdANStart_Click();
}

/// The list on show is filled and kept as the commands of its menu do it.
void prepareList(Program &program, const Arguments &arguments)
{
    if (!arguments.listFile.isEmpty())
        program.manual.files.loadFile(arguments.listFile);
    if (arguments.listDb)
        program.manual.store.loadFromDatabase();
    if (arguments.listSave)
        program.manual.store.saveToDatabase();
}

void print(const QByteArray &text)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    std::fflush(stdout);
}

int run(Program &program, EventPump &pump, const Arguments &arguments)
{
    QObject::connect(&program.status, &StatusLine::told, &program.form, &printError);
    Outcome outcome(program);
    StopSignals stopSignals;
    QObject::connect(&stopSignals, &StopSignals::stopRequested, &program.lifeCycle, &LifeCycle::end);
    if (!program.lifeCycle.Form_Load())
        return OtherEnd;
    applySettings(program, arguments.settings);
    prepareList(program, arguments);
    harvest(program, pump, arguments);
    const QStringList &items = program.form.lists.shown().items();
    if (arguments.json)
        print(outcome.json(arguments.listPrint ? &items : nullptr) + '\n');
    else if (arguments.listPrint && !items.isEmpty())
        print(items.join(u'\n').toUtf8() + '\n');
    const bool finished = !arguments.run || outcome.isFinished();
    program.lifeCycle.end();
    return finished ? Finished : OtherEnd;
}

/// The words behind the program's name, before the application object takes its own out of them.
QStringList wordsOf(int argc, char *argv[])
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    return words;
}
} // namespace

int main(int argc, char *argv[])
{
    keepFreedMemory();
    Arguments arguments;
    try {
        arguments = parseArguments(wordsOf(argc, argv));
    } catch (const RuntimeError &error) {
        printError("trawlex-harvest: "_L1 + error.description());
        return BadArguments;
    }
    if (arguments.help) {
        std::fputs(usage().toUtf8().constData(), stdout);
        return Finished;
    }
    if (arguments.run == Arguments::Run::Manual) {
        printError(u"trawlex-harvest: --manual: this version has the Auto run only"_s);
        return BadArguments;
    }
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
    IniSettings stored(GetRKAppName(windowProgram, programFolder()));
    HarvestSettings settings(stored, arguments.databaseDir, arguments.browser);
    ConsoleBrowsers browsers({dataFolder(), switches, arguments.headless || !hasDisplay()});
    if (preparation.sandboxOff || browsers.sandboxOff())
        printError(u"Running as root: the browser's sandbox is off"_s);
    int status = OtherEnd;
    {
        Program program({pump, dialogs, desktop, clipboard, settings, place, menus, side, browsers, programFolder()});
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
