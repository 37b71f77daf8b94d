// What a click costs before the user sees its effect: the rules about all controls, in each mode of the window. Time is
// processor time; a call must stay under a millisecond.
#include "support/Fakes.h"
#include "window/states/StateOfControls.h"

#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {
constexpr int calls = 2000;
constexpr double aim = 1000; ///< microseconds a call

struct Mode
{
    const char *name;
    int search, settings, files, misc;
    bool running;
};
constexpr Mode modes[] = {{"Auto", Tab::Auto, 0, 0, 0, false},
                          {"Auto, in a run", Tab::Auto, 0, 0, 0, true},
                          {"Manual", Tab::Manual, 0, 0, 0, false},
                          {"Settings, Import", Tab::Settings, Tab::Files, Tab::Import, 0, false},
                          {"Settings, Save", Tab::Settings, Tab::Misc, 0, Tab::Save, false},
                          {"Data", Tab::Data, 0, 0, 0, false}};

/// Microseconds of processor time that one call of `body` takes.
template <class Body> double microseconds(Body &&body)
{
    const std::clock_t start = std::clock();
    for (int i = 0; i < calls; ++i)
        body();
    return 1e6 * double(std::clock() - start) / CLOCKS_PER_SEC / calls;
}

void report(const char *what, double value)
{
    std::printf("| %-40s | %8.1f us | %s |\n", what, value, value <= aim ? "met" : "MISSED");
}

void enter(frmSearch &form, const Mode &mode)
{
    form.frame.sstSearch.setTab(mode.search);
    form.frame.sstSettings.setTab(mode.settings);
    form.frame.sstFiles.setTab(mode.files);
    form.frame.sstMiscOptions.setTab(mode.misc);
    form.runs.mbANRunning = mode.running;
}
} // namespace

int main()
{
    RecordingLog log;
    frmSearch form;
    form.mbFormReady = form.browser.mbInitialized = true;
    form.series.cboMNAutoUrl.setText(u"http://www.north-harbour.example/gallery/boats-001.jpg"_s);
    StateOfControls states(log, form);
    for (const Mode &mode : modes) {
        enter(form, mode);
        report(mode.name, microseconds([&] { states.SetStateOfControls(); }));
    }
    // A change that turns half of the tab around, as the beginning and the end of a run do.
    enter(form, modes[0]);
    report("from idle to a run and back, a call", microseconds([&] {
               form.runs.mbANRunning = !form.runs.mbANRunning;
               states.SetStateOfControls();
           }));
    // Figures of a call that gave up would be worth nothing.
    const bool decided = log.entries.isEmpty() && form.autoRun.cmdANStart.isEnabled() &&
                         form.saved.cboANList.isEnabled() == form.runs.idle();
    if (!decided)
        std::puts("The rules were not applied.");
    return decided ? 0 : 1;
}
