// Finding, making and testing the database at the start, and what is loaded from it.
#include "support/ProgramFixture.h"
#include "window/ProgramFolder.h"

#include <QFile>
#include <QScopeGuard>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {
class LoaderTest : public ProgramTest
{
  protected:
    void makeFile(const QString &name, const QByteArray &content = "x")
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    void setName(const QString &name) { settings.values.insert(u"mStartUp/DatabaseName"_s, name); }
    QString name() const { return settings.values.value(u"mStartUp/DatabaseName"_s); }
    /// A good database of this name, made by an earlier start.
    void makeDatabaseFile(const QString &wanted)
    {
        load();
        program->lifeCycle.end();
        program.reset();
        ASSERT_TRUE(QFile::rename(folder.filePath(u"Trawlex-0.mdb"_s), folder.filePath(wanted)));
        settings.values.clear();
        settings.preset("chkSAMoveToTopLeft", u"0"_s);
        ends = 0;
    }
};
} // namespace

TEST_F(LoaderTest, AMissingNameTakesTheNextVacantOne)
{
    makeFile(u"Trawlex-0.mdb"_s);
    makeFile(u"Trawlex-1.mdb"_s);
    setName(u"Lost.mdb"_s);
    load();
    EXPECT_TRUE(loaded);
    EXPECT_TRUE(QFile::exists(folder.filePath(u"Trawlex-2.mdb"_s)));
    EXPECT_EQ(name(), u"Trawlex-2.mdb"_s);
    EXPECT_EQ(form().places.txtSFDBFile.text(), u"Trawlex-2.mdb"_s);
    EXPECT_TRUE(dialogs.told.isEmpty());
    EXPECT_TRUE(dialogs.asked.isEmpty());
}

TEST_F(LoaderTest, TheNamedDatabaseIsOpenedWithWhatItHolds)
{
    makeDatabaseFile(u"Mine.mdb"_s);
    setName(u"Mine.mdb"_s);
    load();
    addSaved(u"Results-100"_s, u"http://www.seek.com/"_s);
    program->lifeCycle.end();
    program.reset();
    load();
    EXPECT_EQ(form().saved.cboANSavedUrls.items(), QStringList{u"Results-100"_s});
    EXPECT_EQ(name(), u"Mine.mdb"_s);
    EXPECT_FALSE(QFile::exists(folder.filePath(u"Trawlex-0.mdb"_s)));
}

TEST_F(LoaderTest, AFileThatIsNoDatabaseOfOursEndsTheStartAndStaysAsItIs)
{
    makeFile(u"Mine.mdb"_s, "something of the user's");
    setName(u"Mine.mdb"_s);
    load();
    EXPECT_FALSE(loaded);
    EXPECT_EQ(ends, 1);
    ASSERT_EQ(dialogs.told.size(), 1);
    EXPECT_EQ(dialogs.told[0].title, u"Fatal Database Test Error"_s);
    EXPECT_EQ(dialogs.told[0].text,
              folder.filePath(u"Mine.mdb"_s) + u"\r\nDelete the database and Trawlex will recreate it"_s);
    QFile file(folder.filePath(u"Mine.mdb"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "something of the user's");
}

TEST_F(LoaderTest, ADatabaseThatLacksATableFailsToo)
{
    makeDatabaseFile(u"Mine.mdb"_s);
    setName(u"Mine.mdb"_s);
    load();
    ASSERT_TRUE(database().RemoveTable(u"UrlsCache"_s));
    program->lifeCycle.end();
    program.reset();
    ends = 0;
    load();
    EXPECT_FALSE(loaded);
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(dialogs.told.size(), 1);
}

TEST_F(LoaderTest, AssignedThroughTheBoxABadFileSaysSoAndTheProgramStays)
{
    load();
    makeFile(u"Bad.mdb"_s);
    form().places.txtSFDBFile.setText(u"Bad.mdb"_s);
    EXPECT_FALSE(program->loader.LoadDBData(true));
    ASSERT_EQ(dialogs.told.size(), 1);
    EXPECT_EQ(dialogs.told[0].text, folder.filePath(u"Bad.mdb"_s) + u"\r\nYou will need to restart Trawlex"_s);
    EXPECT_EQ(ends, 0);
}

TEST_F(LoaderTest, ADatabaseInUseIsToldAsThatAndNotToBeDeleted)
{
    makeDatabaseFile(u"Mine.mdb"_s);
    const QString path = folder.filePath(u"Mine.mdb"_s);
    sqlite3 *holder = nullptr;
    const auto close = qScopeGuard([&holder] { sqlite3_close(holder); });
    ASSERT_EQ(sqlite3_open(path.toUtf8().constData(), &holder), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(holder, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE", nullptr, nullptr, nullptr),
              SQLITE_OK);

    load(); // another database
    ASSERT_TRUE(loaded);
    form().places.txtSFDBFile.setText(u"Mine.mdb"_s);
    EXPECT_FALSE(program->loader.LoadDBData(true));
    program->lifeCycle.end();
    program.reset();
    ends = 0;
    setName(u"Mine.mdb"_s);
    load();
    EXPECT_FALSE(loaded);
    EXPECT_EQ(ends, 1);

    ASSERT_EQ(dialogs.told.size(), 2) << "chosen, and at the start";
    for (const auto &told : dialogs.told) {
        EXPECT_EQ(told.title, u"Fatal Database Test Error"_s);
        EXPECT_TRUE(told.text.startsWith(path + u"\r\n"_s + StoreFaults::text(StoreFault::Locked)))
            << told.text.toStdString();
        EXPECT_TRUE(told.text.endsWith(u"\r\nClose the program that uses it, then try again"_s))
            << told.text.toStdString();
    }
    EXPECT_TRUE(QFile::exists(path));
}

TEST_F(LoaderTest, AFolderThatCannotHoldADatabaseEndsTheStart)
{
    settings.preset("SearchKeyTxtSaveLocation Text", u"/proc/"_s); // there, but nothing can be made in it
    load();
    EXPECT_FALSE(loaded);
    EXPECT_EQ(ends, 1);
    ASSERT_EQ(dialogs.told.size(), 1);
    EXPECT_EQ(dialogs.told[0].title, u"Fatal Database Test Error"_s);
    EXPECT_TRUE(dialogs.told[0].text.endsWith(u"\r\nDatabase could not be created."_s));
}

TEST_F(LoaderTest, AFailedStartConnectsNoBrowserAndWritesNoOptions)
{
    makeFile(u"Mine.mdb"_s);
    setName(u"Mine.mdb"_s);
    load();
    EXPECT_FALSE(form().mbFormReady);
    EXPECT_FALSE(form().browser.mbInitialized);
    EXPECT_TRUE(settings.written.isEmpty());
}

// What depends on the content.

namespace {
struct PositionCase
{
    const char *stored;
    int index;
};
class Positions : public LoaderTest, public testing::WithParamInterface<PositionCase>
{
};
} // namespace

TEST_P(Positions, AreTakenWhereTheListIsLongEnough)
{
    load();
    addSaved(u"Results-100"_s, u"http://www.a.com/"_s);
    addSaved(u"Results-101"_s, u"http://www.b.com/"_s);
    settings.preset("cboSavedUrl", QString::fromLatin1(GetParam().stored));
    program->loader.LoadDBData(false);
    EXPECT_EQ(form().saved.cboANSavedUrls.listIndex(), GetParam().index);
}

INSTANTIATE_TEST_SUITE_P(Loader, Positions,
                         testing::Values(PositionCase{"0", 0}, PositionCase{"1", 1}, PositionCase{"2", -1},
                                         PositionCase{"-1", -1}));

TEST_F(LoaderTest, UsingSavedUrlsIsTakenOverOnlyWhereThereAreSome)
{
    settings.preset("chkUseSavedUrls", u"1"_s);
    load();
    EXPECT_EQ(form().saved.chkUseSavedUrls.value(), 0);
    addSaved(u"Results-100"_s, u"http://www.a.com/"_s);
    program->lifeCycle.end();
    program.reset();
    settings.preset("chkUseSavedUrls", u"1"_s);
    load();
    EXPECT_EQ(form().saved.chkUseSavedUrls.value(), 1);
}

TEST_F(LoaderTest, BlockingWithoutTextsGoesOff)
{
    settings.preset("chkUrlBlocking", u"1"_s);
    settings.preset("chkEmailBlocking", u"1"_s);
    load();
    EXPECT_EQ(form().blocking.urls.on.value(), 0);
    EXPECT_EQ(form().blocking.email.on.value(), 0);
}

TEST_F(LoaderTest, AStartWithTextsRestoresTheBoxAndTheFirstItem)
{
    load();
    addRow(database(), u"Block"_s, {{u"UrlsContent"_s, u"ads"_s}, {u"EmailContent"_s, u"spam"_s}});
    settings.preset("chkUrlBlocking", u"1"_s);
    settings.preset("chkEmailBlocking", u"1"_s);
    form().outputs.chkSaveEmail.setValue(1);
    program->lifeCycle.end();
    program.reset();
    load();
    EXPECT_EQ(form().blocking.urls.on.value(), 1);
    EXPECT_EQ(form().blocking.email.on.value(), 1);
    EXPECT_EQ(form().blocking.urls.items.listIndex(), 0);
}

TEST_F(LoaderTest, TheListLetterDecidesWhichSavedUrlsAreShown)
{
    load();
    addSaved(u"Results-100"_s, u"http://www.a.com/"_s, u"RPgUrlsC"_s);
    program->lifeCycle.end();
    program.reset();
    settings.preset("cboANList", u"2"_s);
    load();
    EXPECT_EQ(form().saved.cboANSavedUrls.items(), QStringList{u"Results-100"_s});
}

TEST(ProgramFolder, TheFolderForDataIsMadeForItsUserAlone)
{
    const QTemporaryDir home;
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    const QString folder = dataFolder();
    EXPECT_EQ(folder, home.filePath(u"trawlex"_s));
    EXPECT_TRUE(QFileInfo(folder).isDir());
    constexpr QFile::Permissions others(0x0077);
    EXPECT_EQ(QFile::permissions(folder) & others, QFile::Permissions());
    before.isEmpty() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", before);
}
