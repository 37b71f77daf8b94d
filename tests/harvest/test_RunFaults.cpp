// Runs whose pages do not come, and whose database or disk refuses: nothing is lost in silence.
#include "WalkFixture.h"
#include "harvest/UntilLoaded.h"
#include "store/Transaction.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 second = 1000;

class RunFaults : public WalkTest
{
  protected:
    RunFaults()
    {
        form.outputs.chkSaveSummary.setValue(1);
        form.options.chkSMD(SMD::UniqueInSummary).setValue(0);
    }
    void lockDatabase()
    {
        other = std::make_unique<cAdoMdb>(log);
        ASSERT_TRUE(other->LoadDatabase(database->DatabasePath()));
        lock = std::make_unique<Transaction>(*other);
        ASSERT_TRUE(lock->isActive());
    }
    int toldTimes(const QString &text) const { return static_cast<int>(statuses.count(text)); }

    std::unique_ptr<cAdoMdb> other;
    std::unique_ptr<Transaction> lock;
};

} // namespace

// Pages that do not come.

namespace {
enum class Missing { Late, ErrorPage, Nothing, Process };
class NotReached : public RunFaults, public testing::WithParamInterface<Missing>
{
};
} // namespace

TEST_P(NotReached, IsNeitherScreenedNorStored)
{
    const QStringList sites = makeSites(3);
    FakePage &page = window().pages[sites[1]];
    page.loadTime = GetParam() == Missing::Late ? 60 * second : 0;
    page.fails = GetParam() == Missing::ErrorPage;
    page.nothing = GetParam() == Missing::Nothing;
    if (GetParam() == Missing::Process)
        pump.after(7 * second, [&] { window().loseProcess(); });
    showResults(sites);
    QList<Colour> lamps;
    QObject::connect(&status, &StatusLine::told, &form, [&](const QString &text) {
        if (text == "Not reached"_L1)
            lamps = {form.outputs.lblSummarySaved.backColor(), form.outputs.lblUrlSaved.backColor()};
    });
    clickStart();
    EXPECT_EQ(rows(u"SiteSummary"_s), (QStringList{sites[0], sites[2]}));
    EXPECT_EQ(toldTimes(u"Not reached"_s), 1);
    EXPECT_EQ(lamps, (QList<Colour>{Colours::ButtonFace, Colours::ButtonFace}));
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

INSTANTIATE_TEST_SUITE_P(Run, NotReached,
                         testing::Values(Missing::Late, Missing::ErrorPage, Missing::Nothing, Missing::Process),
                         [](const auto &row) { return "row" + std::to_string(row.index); });

TEST_F(RunFaults, APageThatDoesNotComeIsNotTakenForAnErrorPageOfItsServer)
{
    form.limits.incNotFoundMinSize.setText(u"000900"_s);
    const QStringList sites = makeSites(1);
    window().pages[sites[0]].fails = true;
    window().pages[sites[0]].html = u"cannot find server"_s;
    showResults(sites);
    clickStart();
    EXPECT_EQ(window().navigated, sites);
}

TEST_F(RunFaults, AResultPageThatDoesNotComeHasNoLinks)
{
    addSaved(u"Results-100"_s, u"http://www.seek.com/?page=1"_s);
    FakePage &page = window().pages[u"http://www.seek.com/?page=1"_s];
    page.links = makeSites(1);
    window().pages[u"http://www.seek.com/?page=1"_s].fails = true;
    savedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl);
    form.saved.chkUseSavedUrls.setValue(1);
    clickStart();
    EXPECT_EQ(toldTimes(u"Not reached"_s), 1);
    EXPECT_TRUE(visited.isEmpty());
}

TEST_F(RunFaults, APageThatTheBrowserDoesNotGiveIsLeftOut)
{
    const QStringList sites = makeSites(2);
    window().pages[sites[0]].readingFails = RuntimeError(50'001, u"took too long"_s);
    showResults(sites);
    clickStart();
    EXPECT_EQ(toldTimes(u"Not readable"_s), 1);
    EXPECT_EQ(rows(u"SiteSummary"_s), QStringList{sites[1]});
}

// A database and a disk that refuse.

TEST_F(RunFaults, ALockedDatabaseIsWaitedForAndNothingIsLost)
{
    const QStringList sites = makeSites(3);
    showResults(sites);
    pump.after(7 * second, [&] { lockDatabase(); });
    pump.after(30 * second, [&] { lock.reset(); });
    clickStart();
    EXPECT_EQ(rows(u"SiteSummary"_s), sites);
    EXPECT_EQ(toldTimes(u"Database is locked. Waiting"_s), 1);
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(RunFaults, AfterAMinuteTheRunStopsOnThatPageAndGoResumesWithIt)
{
    const QStringList sites = makeSites(3);
    showResults(sites);
    pump.after(7 * second, [&] { lockDatabase(); });
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(pump.seconds() - start, 5 + 5 + 60);
    EXPECT_EQ(lastStatus(), u"Stopped (ERROR, DATABASE IS LOCKED)"_s);
    EXPECT_TRUE(dialogs.told.isEmpty());
    lock.reset();
    EXPECT_EQ(rows(u"SiteSummary"_s), QStringList{sites[0]});
    window().navigated.clear();
    clickStart();
    EXPECT_EQ(window().navigated, sites.mid(1));
    EXPECT_EQ(rows(u"SiteSummary"_s), sites);
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(RunFaults, XEndsThatWaitAndGoResumesWithThePage)
{
    const QStringList sites = makeSites(2);
    showResults(sites);
    pump.after(7 * second, [&] { lockDatabase(); });
    pump.after(15 * second, [&] { clickStart(); });
    clickStart();
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_EQ(form.autoRun.mlngANLinkIndex, 1);
    lock.reset();
    clickStart();
    EXPECT_EQ(rows(u"SiteSummary"_s), sites);
}

TEST_F(RunFaults, StoppedOnTheFirstPageOfAllGoResumesWithIt)
{
    const QStringList sites = makeSites(2);
    showResults(sites);
    lockDatabase();
    clickStart();
    EXPECT_EQ(lastStatus(), u"Stopped (ERROR, DATABASE IS LOCKED)"_s);
    lock.reset();
    pump.finish();
    clickStart();
    EXPECT_EQ(rows(u"SiteSummary"_s), sites);
}

TEST_F(RunFaults, UntilLoadedDoesNotEndThatWait)
{
    const UntilLoaded untilLoaded(timer, browser);
    const QStringList sites = makeSites(1);
    showResults(sites);
    lockDatabase();
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_GE(pump.seconds() - start, 60);
    EXPECT_EQ(lastStatus(), u"Stopped (ERROR, DATABASE IS LOCKED)"_s);
}

TEST_F(RunFaults, ADatabaseThatIsMovedEndsTheRunAtOnceWithAMessage)
{
    const QStringList sites = makeSites(3);
    showResults(sites);
    const QString path = database->DatabasePath();
    pump.after(7 * second, [&] { ASSERT_TRUE(QFile::rename(path, path + u".moved"_s)); });
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(pump.seconds() - start, 10);
    EXPECT_EQ(lastStatus(), u"Stopped (ERROR, DATABASE HAS BEEN MOVED OR DELETED)"_s);
    ASSERT_EQ(dialogs.told.size(), 1);
    EXPECT_EQ(dialogs.told[0].text, u"Database has been moved or deleted: "_s + path);
    EXPECT_EQ(stored.size(), 1); // the first page's row; nothing is reported that is not there
    EXPECT_EQ(form.autoRun.mlngANLinkIndex, 1);
}

TEST_F(RunFaults, APageFileIsTakenBackWhereItsRowsAreNotStored)
{
    form.outputs.chkSavePages.setValue(1);
    form.outputs.chkSaveToFile.setValue(1);
    form.places.txtSFMNDir.setText(folder.path() + u'/');
    const QStringList sites = makeSites(1);
    showResults(sites);
    lockDatabase();
    clickStart();
    EXPECT_FALSE(QFile::exists(folder.filePath(u"Page-1.htm"_s)));
    lock.reset();
    pump.finish();
    clickStart();
    EXPECT_TRUE(QFile::exists(folder.filePath(u"Page-1.htm"_s)));
    EXPECT_FALSE(QFile::exists(folder.filePath(u"Page-2.htm"_s)));
}

TEST_F(RunFaults, AFolderForPagesThatIsMissingEndsTheRunOnThatPage)
{
    form.outputs.chkSavePages.setValue(1);
    form.outputs.chkSaveToFile.setValue(1);
    form.places.txtSFMNDir.setText(folder.path() + u"/gone/"_s);
    const QStringList sites = makeSites(2);
    showResults(sites);
    clickStart();
    EXPECT_EQ(lastStatus(), u"Stopped (ERROR, FOLDER FOR PAGES IS MISSING)"_s);
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"gone"_s));
    pump.finish();
    clickStart();
    EXPECT_EQ(rows(u"SiteSummary"_s), sites);
    EXPECT_TRUE(QFile::exists(folder.filePath(u"gone/Page-2.htm"_s)));
}

// Addresses that are longer than their column.

TEST_F(RunFaults, AnAddressLongerThanItsColumnIsFoundAgainAtTheNextVisit)
{
    form.outputs.chkSaveUrl.setValue(1);
    form.options.chkSMD(SMD::PassUrlIfNoData).setValue(0);
    const QString address = u"http://www.site1.com/"_s + QString(300, u'x');
    showResults({address, address + u"1"_s, address + u"2"_s});
    clickStart();
    EXPECT_EQ(rows(u"SiteSummary"_s), QStringList{address.left(255)});
    EXPECT_EQ(rows(u"PassUrlsA"_s), QStringList{address.left(255)});
    EXPECT_EQ(rows(u"PassUrlsA"_s, u"SSIndex"_s), rows(u"SiteSummary"_s, u"Index"_s));
}
