// Exports and imports from a terminal: what a stop in the middle leaves and tells.
#include "cli/DataWork.h"

#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
class DataWorkTest : public RunTest
{
  protected:
    DataWorkTest()
    {
        RecordingLog log;
        DatabaseHolder other;
        makeDatabase(other, log, elsewhere.path());
        addRow(*other, u"SiteSummary"_s, {{u"Url"_s, u"http://a.com"_s}});
        addRow(*other, u"Block"_s, {{u"UrlsContent"_s, u"ads"_s}});
        arguments.imported = other->DatabasePath();
        arguments.allSettings = arguments.allData = true;
    }
    QTemporaryDir elsewhere;
    DataArguments arguments;
};
} // namespace

TEST_F(DataWorkTest, SettingsAndDataAreImportedInThisOrder)
{
    EXPECT_TRUE(runDataCommand(*program, arguments));
    EXPECT_EQ(lastStatus(), u"Data Imported"_s);
    EXPECT_TRUE(statuses.contains(u"Settings Imported"_s));
    EXPECT_EQ(rows(u"SiteSummary"_s), QStringList{u"http://a.com"_s});
}

TEST_F(DataWorkTest, AStopWhileTheSettingsAreBeingWrittenToTheDiskComesBeforeTheData)
{
    QObject::connect(&program->status, &StatusLine::told, &form(), [this](const QString &text) {
        if (text == u"Importing all settings"_s)
            pump.after(0, [this] { pump.after(0, [this] { program->longWork.cancel(); }); });
    });
    EXPECT_FALSE(runDataCommand(*program, arguments));
    EXPECT_TRUE(statuses.contains(u"Settings Imported"_s)) << "they stand, which is told";
    EXPECT_EQ(lastStatus(), u"Cancelled before: Importing all data"_s);
    EXPECT_EQ(rows(u"Block"_s, u"UrlsContent"_s), QStringList{u"ads"_s});
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
}
