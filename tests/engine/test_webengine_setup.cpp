// The browsers' switches, and what the built-in browser makes of them.
#include "WebEngineFixture.h"
#include "engine/BrowserSwitches.h"
#include "engine/Platform.h"
#include "engine/WebEngineSetup.h"
#include "support/EnvironmentVariable.h"

#include <QCoreApplication>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *mappedVariable = "TRAWLEX_TEST_MAPPED";

} // namespace

TEST(WebEngineSwitches, LaterSwitchesStandBehindOurOwnAndListsAreJoined)
{
    struct Row
    {
        const char *tag;
        QStringList own, later, joined;
    };
    const Row rows[] = {
        {"nothing", {}, {}, {}},
        {"order", {u"--a"_s, u"--b=1"_s}, {u"--b=2"_s, u"--c"_s}, {u"--a"_s, u"--b=1"_s, u"--b=2"_s, u"--c"_s}},
        {"list",
         {u"--disable-features=A,B"_s, u"--x"_s},
         {u"--disable-features=B,C"_s},
         {u"--x"_s, u"--disable-features=A,B,C"_s}},
        {"list three times",
         {u"--enable-features=A"_s},
         {u"--enable-features=B"_s, u"--enable-features=C"_s},
         {u"--enable-features=A,B,C"_s}},
        {"two lists",
         {u"--enable-features=A"_s, u"--disable-features=B"_s},
         {u"--enable-features=C"_s},
         {u"--disable-features=B"_s, u"--enable-features=A,C"_s}},
        {"blink",
         {u"--disable-blink-features=A"_s},
         {u"--disable-blink-features=B"_s},
         {u"--disable-blink-features=A,B"_s}},
        {"a list of the user's alone", {}, {u"--disable-features=A"_s}, {u"--disable-features=A"_s}},
        {"not a list",
         {u"--host-resolver-rules=MAP a b"_s},
         {u"--host-resolver-rules=MAP c d"_s},
         {u"--host-resolver-rules=MAP a b"_s, u"--host-resolver-rules=MAP c d"_s}},
    };
    for (const Row &row : rows)
        EXPECT_EQ(BrowserSwitches::joined(row.own, row.later), row.joined) << row.tag;
}

TEST(WebEngineSwitches, TheVariableComesBeforeTheCommandLine)
{
    const EnvironmentVariable variable("TRAWLEX_BROWSER_ARGS", "--a  --rules=\"MAP * 127.0.0.1:80\" \"--b=x y\"");
    EXPECT_EQ(BrowserSwitches::ofUser({u"--c"_s}),
              (QStringList{u"--a"_s, u"--rules=MAP * 127.0.0.1:80"_s, u"--b=x y"_s, u"--c"_s}));
}

TEST(WebEngineSwitches, PreparingJoinsWhatStandsAndTheUsersSwitchesInThatOrder)
{
    const EnvironmentVariable standing("QTWEBENGINE_CHROMIUM_FLAGS",
                                       "--stands \"--with=a blank\" --disable-features=Standing");
    const EnvironmentVariable sandbox("QTWEBENGINE_DISABLE_SANDBOX", qgetenv("QTWEBENGINE_DISABLE_SANDBOX"));
    const EnvironmentVariable platform("QT_QPA_PLATFORM", "offscreen");
    const WebEnginePreparation prepared =
        prepareWebEngine({u"--disable-features=Users"_s, u"--host-resolver-rules=MAP * 127.0.0.1:80"_s});
    EXPECT_TRUE(prepared.switches.contains(u"--disable-gpu"_s)); // no display, so nothing to draw with
    EXPECT_TRUE(prepared.switches.contains(u"--with=a blank"_s));
    EXPECT_TRUE(prepared.switches.contains(u"--disable-features=HttpsUpgrades,Standing,Users"_s));
    EXPECT_EQ(prepared.switches.constLast(), u"--host-resolver-rules=MAP * 127.0.0.1:80");
    EXPECT_EQ(BrowserSwitches::split(qEnvironmentVariable("QTWEBENGINE_CHROMIUM_FLAGS")), prepared.switches);
    EXPECT_EQ(prepared.sandboxOff, Platform::runsAsRoot());
}

// Runs in a program of its own, since the switches count when the first page of a program is made.
TEST_F(WebEngineTest, MadeUpHostsAreMappedInTheOtherProgram)
{
    const QString port = qEnvironmentVariable(mappedVariable);
    if (port.isEmpty())
        GTEST_SKIP() << "is run by MadeUpHostsAreMappedToLoopback";
    openAddress(u"http://made.up.example/path"_s);
    EXPECT_EQ(browser->LocationURL(), u"http://made.up.example/path");
    EXPECT_EQ(browser->LocationName(), u"mapped");
    EXPECT_EQ(browser->links(), QStringList{u"http://made.up.example/up"_s});
}

TEST_F(WebEngineTest, MadeUpHostsAreMappedToLoopback)
{
    browser.reset();
    server.page("/path", "<title>mapped</title><a href='/up'>x</a>");
    const QString rules = u"--host-resolver-rules=\"MAP * 127.0.0.1:%1\""_s.arg(server.port());
    QProcess other;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TRAWLEX_BROWSER_ARGS"_s, rules);
    environment.insert(QLatin1StringView(mappedVariable), QString::number(server.port()));
    other.setProcessEnvironment(environment);
    other.setProcessChannelMode(QProcess::MergedChannels);
    other.start(QCoreApplication::applicationFilePath(), {u"--gtest_filter=*.MadeUpHostsAreMappedInTheOtherProgram"_s});
    EXPECT_TRUE(waitFor([&] { return other.state() == QProcess::NotRunning; }, 20000));
    EXPECT_EQ(other.exitCode(), 0) << other.readAll().toStdString();
    EXPECT_EQ(server.requests().size(), 1);
    EXPECT_EQ(server.requests().value(0).headers.value("host"), "made.up.example");
}
