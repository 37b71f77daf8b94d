// The free-standing browser's program, its command line and its profile folder; no browser runs here.
#include "engine/Platform.h"
#include "engine/chromium/ChromiumFactory.h"
#include "engine/chromium/ChromiumProgram.h"
#include "engine/chromium/ChromiumSwitches.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class ChromiumProfileTest : public testing::Test
{
  protected:
    void SetUp() override { ASSERT_TRUE(data.isValid()); }
    [[nodiscard]] QString path(const QString &name) const { return data.filePath(name); }
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    [[nodiscard]] QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir data;
};

constexpr QFileDevice::Permissions others = QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup |
                                            QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;

} // namespace

TEST_F(ChromiumProfileTest, AFolderIsMadeForItsOwnerAlone)
{
    const ChromiumProfile profile(path(u"new/data"_s), u"browser"_s);
    EXPECT_EQ(profile.folder(), path(u"new/data/browser"_s));
    EXPECT_FALSE(QFile::permissions(profile.folder()) & others);
}

TEST_F(ChromiumProfileTest, TheSameFolderIsNeverHeldTwice)
{
    auto first = std::make_unique<ChromiumProfile>(data.path(), u"browser"_s);
    const ChromiumProfile second(data.path(), u"browser"_s);
    const ChromiumProfile third(data.path(), u"browser"_s);
    EXPECT_EQ(first->folder(), path(u"browser"_s));
    EXPECT_EQ(second.folder(), path(u"browser-2"_s));
    EXPECT_EQ(third.folder(), path(u"browser-3"_s));
    first.reset();
    EXPECT_EQ(ChromiumProfile(data.path(), u"browser"_s).folder(), path(u"browser"_s)) << "free again";
}

TEST_F(ChromiumProfileTest, TheLockOfAProcessThatIsGoneHoldsNobodyUp)
{
    write(u"browser.lock"_s, "99999999\ntrawlex\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    EXPECT_EQ(ChromiumProfile(data.path(), u"browser"_s).folder(), path(u"browser"_s));
}

TEST_F(ChromiumProfileTest, ANewProfileIsSetUpSoThatNothingIsAsked)
{
    const ChromiumProfile profile(data.path(), u"browser"_s);
    const QJsonObject settings = QJsonDocument::fromJson(read(u"browser/Default/Preferences"_s)).object();
    EXPECT_FALSE(settings[u"printing"][u"enabled"].toBool(true));
    EXPECT_FALSE(settings[u"download"][u"prompt_for_download"].toBool(true));
    EXPECT_EQ(settings[u"profile"][u"default_content_setting_values"][u"notifications"].toInt(), 2);
    const QJsonObject state = QJsonDocument::fromJson(read(u"browser/Local State"_s)).object();
    EXPECT_TRUE(state[u"auth"][u"schemes"].isString());
}

TEST_F(ChromiumProfileTest, WhatTheUserHasSetInAProfileStays)
{
    ASSERT_TRUE(QDir(data.path()).mkpath(u"browser/Default"_s));
    write(u"browser/Default/Preferences"_s, "{\"mine\":1}");
    const ChromiumProfile profile(data.path(), u"browser"_s);
    EXPECT_EQ(read(u"browser/Default/Preferences"_s), "{\"mine\":1}");
}

TEST_F(ChromiumProfileTest, AFolderThatCannotBeMadeIsAnError)
{
    write(u"file"_s, "");
    EXPECT_THROW(ChromiumProfile(path(u"file/data"_s), u"browser"_s), RuntimeError);
    EXPECT_THROW(ChromiumProfile(data.path(), u"file"_s), RuntimeError) << "a file in the folder's place";
    ChromiumFactory factory({.dataFolder = path(u"file/data"_s), .userSwitches = {}, .headless = true});
    EXPECT_THROW((void)factory.runningBrowser(), RuntimeError);
    EXPECT_THROW(factory.start(u"/bin/true"_s), RuntimeError);
    factory.closeBrowser(); // nothing was started, so there is nothing to say
}

TEST_F(ChromiumProfileTest, WhatABrowserThatWasKilledHasLeftIsTakenAway)
{
    ChromiumProfile profile(data.path(), u"browser"_s);
    const QTemporaryDir temporary(data.filePath(u"org.chromium.Chromium.XXXXXX"_s));
    const QString own = QFileInfo(temporary.path()).fileName();
    for (const QString &name : {u"/SingletonSocket"_s, u"/SingletonCookie"_s})
        write(own + name, "x");
    write(u"browser/Other"_s, "x");
    for (const auto &[name, target] : {std::pair{u"SingletonLock"_s, u"another-host-1"_s},
                                       std::pair{u"SingletonSocket"_s, temporary.filePath(u"SingletonSocket"_s)},
                                       std::pair{u"SingletonCookie"_s, u"123"_s}})
        ASSERT_TRUE(QFile::link(target, path(u"browser/"_s + name)));
    write(u"browser/trawlex.socket"_s, "x");
    profile.clear();
    EXPECT_FALSE(QFile::exists(temporary.path()));
    QStringList left = QDir(path(u"browser"_s)).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    left.sort();
    EXPECT_EQ(left, (QStringList{u"Default"_s, u"Local State"_s, u"Other"_s}));
}

TEST_F(ChromiumProfileTest, ATemporaryFolderWithAnythingElseInItStays)
{
    ChromiumProfile profile(data.path(), u"browser"_s);
    for (const QString &folder : {u"org.chromium.Chromium.a"_s, u"mine"_s}) {
        ASSERT_TRUE(QDir(data.path()).mkpath(folder));
        write(folder + u"/SingletonSocket"_s, "x");
        write(folder + u"/letter"_s, "x");
        QFile::remove(path(u"browser/SingletonSocket"_s));
        ASSERT_TRUE(QFile::link(path(folder + u"/SingletonSocket"_s), path(u"browser/SingletonSocket"_s)));
        profile.clear();
        EXPECT_TRUE(QFile::exists(path(folder + u"/letter"_s)));
    }
    EXPECT_TRUE(QFile::exists(path(u"mine/SingletonSocket"_s))) << "no browser names its folder so";
}

TEST_F(ChromiumProfileTest, NobodyElsesProcessIsEndedWithAProfile)
{
    ChromiumProfile profile(data.path(), u"browser"_s);
    QProcess other;
    other.start(u"sleep"_s, {u"60"_s});
    ASSERT_TRUE(other.waitForStarted());
    const QString mark = QSysInfo::machineHostName() + u'-' + QString::number(other.processId());
    ASSERT_TRUE(QFile::link(mark, path(u"browser/SingletonLock"_s)));
    profile.clear();
    EXPECT_FALSE(other.waitForFinished(200));
    other.kill();
    other.waitForFinished();
}

TEST_F(ChromiumProfileTest, ASocketThatNobodyAnswersAtCostsLittle)
{
    ChromiumFactory factory({.dataFolder = data.path(), .userSwitches = {}, .headless = false});
    EXPECT_EQ(factory.runningBrowser(), nullptr) << "no browser has ever run here";
    QElapsedTimer clock;
    clock.start();
    {
        QLocalServer gone;
        ASSERT_TRUE(gone.listen(path(u"browser/trawlex.socket"_s)));
        EXPECT_EQ(factory.runningBrowser(), nullptr);
        EXPECT_LT(clock.elapsed(), 3500) << "somebody listens there and says nothing";
    }
    write(u"browser/trawlex.socket"_s, "");
    clock.restart();
    EXPECT_EQ(factory.runningBrowser(), nullptr);
    EXPECT_LT(clock.elapsed(), 500) << "refused";
}

TEST_F(ChromiumProfileTest, WindowlessBrowsersHaveAProfileOfTheirOwn)
{
    ChromiumFactory factory({.dataFolder = data.path(), .userSwitches = {}, .headless = true});
    EXPECT_EQ(factory.runningBrowser(), nullptr);
    EXPECT_TRUE(QFile::exists(path(u"browser-headless"_s)));
    EXPECT_FALSE(QFile::exists(path(u"browser"_s)));
}

TEST_F(ChromiumProfileTest, ClosingABrowserThatNeverRanDoesNothing)
{
    ChromiumFactory factory({.dataFolder = data.path(), .userSwitches = {}, .headless = true});
    factory.closeBrowser();
    EXPECT_FALSE(QFile::exists(path(u"browser"_s)));
}

TEST_F(ChromiumProfileTest, AProgramThatCannotBeStartedIsAnError)
{
    ChromiumFactory factory({.dataFolder = data.path(), .userSwitches = {}, .headless = true});
    EXPECT_THROW(factory.start(path(u"no-such-program"_s)), RuntimeError);
    ChromiumFactory windowed({.dataFolder = data.path(), .userSwitches = {}, .headless = false});
    EXPECT_THROW(windowed.start(path(u"no-such-program"_s)), RuntimeError);
    windowed.closeBrowser();
}

TEST_F(ChromiumProfileTest, TheFirstInstalledProgramIsTaken)
{
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", data.path().toUtf8());
    EXPECT_EQ(ChromiumProgram::find(), QString());
    for (const QString &name : {u"brave-browser"_s, u"google-chrome"_s, u"chromium"_s}) {
        write(name, "#!/bin/sh\n");
        QFile::setPermissions(path(name), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
        EXPECT_EQ(ChromiumProgram::find(), path(name));
    }
    qputenv("PATH", before);
}

TEST_F(ChromiumProfileTest, ProgramsAreKnownByTheirFileName)
{
    EXPECT_TRUE(ChromiumProgram::isKnown(u"/usr/bin/chromium"_s));
    EXPECT_TRUE(ChromiumProgram::isKnown(u"/opt/Google-Chrome"_s));
    EXPECT_FALSE(ChromiumProgram::isKnown(u"/usr/bin/chromium-helper"_s));
    EXPECT_FALSE(ChromiumProgram::isKnown(u"/chromium/editor"_s));
    EXPECT_FALSE(ChromiumProgram::isKnown(QString()));
}

TEST_F(ChromiumProfileTest, AStartedProgramGetsTheCommandLineAndALine)
{
    write(u"chromium"_s, "#!/bin/sh\nread -r line <&3\nprintf '%s\\n' \"$line\" \"$@\" > '" +
                             path(u"arguments.new"_s).toUtf8() + "'\nmv '" + path(u"arguments.new"_s).toUtf8() + "' '" +
                             path(u"arguments"_s).toUtf8() + "'\nprintf answer >&4\n");
    QFile::setPermissions(path(u"chromium"_s), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    const ChromiumStart start{
        .profileFolder = path(u"a b"_s), .userSwitches = {u"--mine=1"_s}, .headless = true, .sandboxOff = false};
    const Platform::PipedProcess process =
        Platform::startPiped(path(u"chromium"_s), chromiumArguments(start), chromiumEnvironment());
    EXPECT_GT(process.pid, 1);
    QLocalSocket line;
    ASSERT_TRUE(line.setSocketDescriptor(process.socket));
    line.write("question\n");
    ASSERT_TRUE(line.waitForReadyRead(10000));
    EXPECT_EQ(line.readAll(), "answer");
    EXPECT_EQ(QString::fromUtf8(read(u"arguments"_s)), u"question\n"_s + chromiumArguments(start).join(u'\n') + u'\n');
    EXPECT_TRUE(line.state() == QLocalSocket::UnconnectedState || line.waitForDisconnected(10000));
    QElapsedTimer clock;
    clock.start();
    while (Platform::isRunning(process.pid) && clock.elapsed() < 10000)
        ;
    EXPECT_FALSE(Platform::isRunning(process.pid)) << "it has ended, and leaves nothing";
}

TEST(ChromiumSwitches, TheEnvironmentHasOurWordBeforeTheUsers)
{
    qputenv("CHROME_CONFIG_HOME", "/home/ann/.config");
    EXPECT_EQ(chromiumEnvironment().filter(u"CHROME_CONFIG_HOME="_s), QStringList{u"CHROME_CONFIG_HOME=/dev/null"_s});
    qunsetenv("CHROME_CONFIG_HOME");
}

TEST(ChromiumArguments, TheUsersComeLast)
{
    const QStringList all = chromiumArguments({.profileFolder = u"/p"_s, .userSwitches = {u"--one"_s, u"--two=2"_s}});
    EXPECT_EQ(all.first(), u"--user-data-dir=/p"_s);
    EXPECT_EQ(all.mid(all.size() - 3), (QStringList{u"about:blank"_s, u"--one"_s, u"--two=2"_s}));
    EXPECT_TRUE(all.contains(u"--remote-debugging-pipe"_s));
    EXPECT_FALSE(all.contains(u"--headless=new"_s));
    EXPECT_FALSE(all.contains(u"--no-sandbox"_s));
}

TEST(ChromiumArguments, ListsOfFeaturesAreJoined)
{
    const QStringList all =
        chromiumArguments({.profileFolder = u"/p"_s, .userSwitches = {u"--disable-features=Mine"_s}});
    const QStringList lists = all.filter(u"--disable-features="_s);
    ASSERT_EQ(lists.size(), 1);
    EXPECT_TRUE(lists.first().contains("HttpsUpgrades"_L1));
    EXPECT_TRUE(lists.first().endsWith(",Mine"_L1));
    EXPECT_EQ(all.last(), lists.first());
}

TEST(ChromiumArguments, AWindowlessBrowserAndOneWithoutSandboxAreAskedFor)
{
    const QStringList all =
        chromiumArguments({.profileFolder = u"/p"_s, .userSwitches = {}, .headless = true, .sandboxOff = true});
    EXPECT_TRUE(all.contains(u"--headless=new"_s));
    EXPECT_TRUE(all.contains(u"--no-sandbox"_s));
}
