// The user's settings as a harvest from the terminal sees them, and the report at its end.
#include "cli/HarvestSettings.h"

#include "cli/Outcome.h"
#include "support/ProgramFixture.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {
class HarvestSettingsTest : public testing::Test
{
  protected:
    void makeFile(const QString &name) const
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    QString path() const { return folder.path() + u'/'; }

    QTemporaryDir folder;
    MemorySettings store;
};
} // namespace

TEST_F(HarvestSettingsTest, AFolderOfItsOwnTakesTheStoredDatabaseIfItLiesThere)
{
    makeFile(u"Mine.mdb"_s);
    makeFile(u"Trawlex-3.mdb"_s);
    store.SaveSetting(u"mStartUp"_s, u"DatabaseName"_s, u"Mine.mdb"_s);
    const HarvestSettings settings(store, path(), {});
    EXPECT_EQ(settings.GetSetting(u"mStartUp"_s, u"DatabaseName"_s), u"Mine.mdb"_s);
    EXPECT_EQ(settings.GetSetting(u"SecFrmSearch"_s, u"SearchKeyTxtSaveLocation Text"_s), path());
}

TEST_F(HarvestSettingsTest, OtherwiseTheOneOfTheHighestNumber)
{
    for (const auto *name : {"Trawlex-0.mdb", "Trawlex-9.mdb", "Trawlex-10.mdb", "Trawlex-x.mdb", "Other-99.mdb"})
        makeFile(QString::fromLatin1(name));
    store.SaveSetting(u"mStartUp"_s, u"DatabaseName"_s, u"Lost.mdb"_s);
    const HarvestSettings settings(store, path(), {});
    EXPECT_EQ(settings.GetSetting(u"mStartUp"_s, u"DatabaseName"_s), u"Trawlex-10.mdb"_s);
    EXPECT_EQ(newestDatabase(u"/no/such/folder"_s), QString());
}

TEST_F(HarvestSettingsTest, NothingOfTheUsersOptionsIsChanged)
{
    store.SaveSetting(u"SecFrmSearch"_s, u"chkSaveSummary"_s, u"0"_s);
    store.written.clear();
    HarvestSettings settings(store, path(), 0);
    settings.SaveSetting(u"SecFrmSearch"_s, u"chkSaveSummary"_s, u"1"_s);
    settings.SaveSetting(u"mStartUp"_s, u"DatabaseName"_s, u"Trawlex-0.mdb"_s);
    EXPECT_EQ(settings.GetSetting(u"SecFrmSearch"_s, u"chkSaveSummary"_s), u"1"_s);
    EXPECT_EQ(settings.GetSetting(u"SecFrmSearch"_s, u"lstDCoTmr"_s), u"0"_s);
    EXPECT_TRUE(store.written.isEmpty());
}

TEST_F(HarvestSettingsTest, WithTheUsersOwnFolderANewDatabaseIsRemembered)
{
    HarvestSettings settings(store, {}, {});
    settings.SaveSetting(u"mStartUp"_s, u"DatabaseName"_s, u"Trawlex-1.mdb"_s);
    settings.SaveSetting(u"SecFrmSearch"_s, u"npTimimg"_s, u"001"_s);
    EXPECT_EQ(store.written, QStringList{u"mStartUp/DatabaseName"_s});
    EXPECT_EQ(settings.GetSetting(u"mStartUp"_s, u"DatabaseName"_s), u"Trawlex-1.mdb"_s);
}

// The report.

namespace {
class OutcomeTest : public RunTest
{
  protected:
    static QJsonObject parsed(const Outcome &outcome) { return QJsonDocument::fromJson(outcome.json()).object(); }
};
} // namespace

TEST_F(OutcomeTest, HoldsStatusLinksAndRows)
{
    const Outcome outcome(*program);
    form().outputs.chkSaveSummary.setValue(1);
    showResults(makeSites(2));
    clickStart();
    EXPECT_TRUE(outcome.isFinished());
    const QJsonObject report = parsed(outcome);
    EXPECT_EQ(report[u"status"_s].toString(), u"Stopped (FINISHED)"_s);
    EXPECT_EQ(report[u"links"_s].toArray().toVariantList(),
              (QVariantList{u"http://www.site1.com/"_s, u"http://www.site2.com/"_s}));
    EXPECT_EQ(report[u"rows"_s].toObject()[u"SiteSummary"_s].toInt(), 2);
    EXPECT_TRUE(report[u"seconds"_s].isDouble());
}

TEST_F(OutcomeTest, AnyOtherEndIsNotFinished)
{
    const Outcome outcome(*program);
    browser().show(u"http://www.other.com/"_s);
    clickStart();
    EXPECT_FALSE(outcome.isFinished());
    EXPECT_EQ(parsed(outcome)[u"status"_s].toString(), u"No data saved for site"_s);
    EXPECT_TRUE(parsed(outcome)[u"links"_s].toArray().isEmpty());
}
