#include "engine/chromium/ChromiumSwitches.h"
#include "engine/BrowserSwitches.h"

#include <QProcess>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Switch
{
    QLatin1StringView text;
    QLatin1StringView reason;
};

constexpr std::array ownSwitches{
    Switch{"--remote-debugging-pipe"_L1, "driven through its files 3 and 4, which nobody else can open; no port"_L1},
    Switch{"--no-first-run"_L1, "no welcome page in front of ours"_L1},
    Switch{"--no-default-browser-check"_L1, "no question at the start"_L1},
    Switch{"--disable-search-engine-choice-screen"_L1, "no question at the start"_L1},
    Switch{"--hide-crash-restore-bubble"_L1, "no question after the browser was killed"_L1},
    Switch{"--password-store=basic"_L1, "no question for the key ring of the desktop"_L1},
    Switch{"--disable-popup-blocking"_L1, "whether a window may open is our user's option, not the browser's guess"_L1},
    Switch{"--deny-permission-prompts"_L1, "a page that asks for a permission is refused"_L1},
    Switch{"--disable-prompt-on-repost"_L1, "no question before a form is sent once more"_L1},
    Switch{"--disable-hang-monitor"_L1, "no box about a page that does not answer; we break its script off"_L1},
    Switch{"--noerrdialogs"_L1, "no error boxes of the browser itself"_L1},
    Switch{"--disable-auto-reload"_L1, "an error page stays as it is until we go on"_L1},
    Switch{"--disable-background-timer-throttling"_L1, "a page behind other windows works at full speed"_L1},
    Switch{"--disable-backgrounding-occluded-windows"_L1, "the same"_L1},
    Switch{"--disable-renderer-backgrounding"_L1, "the same"_L1},
    Switch{"--disable-background-networking"_L1, "nothing is fetched that our user has not asked for"_L1},
    Switch{"--disable-component-update"_L1, "the same"_L1},
    Switch{"--disable-domain-reliability"_L1, "the same"_L1},
    Switch{"--disable-sync"_L1, "the same"_L1},
    Switch{"--no-pings"_L1, "the same"_L1},
    Switch{"--disable-breakpad"_L1, "nothing about the pages leaves the machine after a crash"_L1},
};

constexpr std::array featuresOff{
    Switch{"HttpsUpgrades"_L1, "an address is opened as it was given"_L1},
    Switch{"HttpsFirstBalancedModeAutoEnable"_L1, "the same"_L1},
    Switch{"Prerender2"_L1, "a page is loaded when it is opened, in the window that we watch"_L1},
    Switch{"BackForwardCache"_L1, "pages that have been left use no memory"_L1},
    Switch{"Translate"_L1, "no offer over the page"_L1},
    Switch{"MediaRouter"_L1, "no search for television sets, and no question about it"_L1},
    Switch{"OptimizationHints"_L1, "nothing is fetched that our user has not asked for"_L1},
    Switch{"NetworkTimeServiceQuerying"_L1, "the same: no question what time it is"_L1},
};

QString listOfFeaturesOff()
{
    QStringList names;
    for (const Switch &feature : featuresOff)
        names.append(feature.text);
    return u"--disable-features="_s + names.join(u',');
}

} // namespace

QStringList chromiumArguments(const ChromiumStart &start)
{
    QStringList own{u"--user-data-dir="_s + start.profileFolder};
    for (const Switch &each : ownSwitches)
        own.append(each.text);
    own.append(listOfFeaturesOff());
    if (start.headless)
        own.append(u"--headless=new"_s);
    if (start.sandboxOff)
        own.append(u"--no-sandbox"_s);
    own.append(u"about:blank"_s);
    return BrowserSwitches::joined(own, start.userSwitches);
}

// What a crashed page held in memory would be written to a folder of the user's own browser, whatever the switches say,
// if that folder could be made.
QStringList chromiumEnvironment()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"CHROME_CONFIG_HOME"_s, QProcess::nullDevice());
    return environment.toStringList();
}
