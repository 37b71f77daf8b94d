// The end that comes from outside, in the middle of a run: what is stored stays, what is kept is written, nothing is
// asked.
#include "desktop/ProgramEnd.h"
#include "support/ProgramFixture.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <csignal>

using namespace Qt::StringLiterals;

namespace {
/// What the desktop's session does when it ends; nobody asks its manager for anything.
void endSession()
{
    int manager = 0;
    ASSERT_TRUE(QMetaObject::invokeMethod(qApp, "commitDataRequest", Qt::DirectConnection,
                                          QGenericArgument("QSessionManager&", &manager)));
}

class ProgramEndTest : public RunTest
{
  protected:
    ProgramEndTest() { connectEnd(program->lifeCycle, stopSignals); }

    StopSignals stopSignals;
};
} // namespace

TEST_F(ProgramEndTest, TheEndOfTheSessionInARunIsTheNormalEnd)
{
    form().outputs.chkSaveSummary.setValue(1);
    showResults(makeSites(3));
    settings.written.clear();
    QStringList kept;
    int endsInTheWait = -1;
    QObject::connect(&program->runs, &Runs::finalized, &program->form, [&] { kept = rows(u"SiteSummary"_s); });
    pump.after(7300, [&] {
        endSession();
        endsInTheWait = ends;
    });
    clickStart();
    EXPECT_EQ(endsInTheWait, 0) << "the run unwinds first";
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_EQ(kept, QStringList{u"www.site1.com"_s});
    EXPECT_TRUE(QTest::qWaitFor([&] { return ends == 1; }));
    EXPECT_TRUE(settings.written.contains(u"frmSearch/NSWE_L"_s));
    EXPECT_FALSE(program->database.isSet());
    EXPECT_TRUE(dialogs.asked.isEmpty());
}

TEST_F(ProgramEndTest, AnOpenBoxDoesNotStandInItsWay)
{
    for (const bool bySignal : {false, true}) {
        QMessageBox box;
        box.setText(u"Delete all rows?"_s);
        box.open();
        ASSERT_EQ(QApplication::activeModalWidget(), &box);
        if (bySignal)
            static_cast<void>(std::raise(SIGTERM));
        else
            endSession();
        EXPECT_TRUE(QTest::qWaitFor([&] { return ends == 1 && !box.isVisible(); })) << bySignal;
    }
}
