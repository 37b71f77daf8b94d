// The status bar's text and tool tip, and the form behind it.
#include "app/StatusLine.h"
#include "support/Fakes.h"

using namespace Qt::StringLiterals;

namespace {
class StatusTest : public testing::Test
{
  protected:
    StatusTest()
    {
        QObject::connect(&status, &StatusLine::told, &status, [this](const QString &text) { told.append(text); });
    }
    frmSearch form;
    StatusLine status{form};
    QStringList told;
};
} // namespace

TEST_F(StatusTest, PrintsTheTextWithThreeDots)
{
    form.chkSMV(0).setValue(1);
    status.UpDateStatus(u"Working"_s, u"a tip"_s);
    EXPECT_EQ(form.picStatus.printed(), u"Working..."_s);
    EXPECT_EQ(form.picStatus.toolTipText(), u"a tip"_s);
    EXPECT_EQ(told, QStringList{u"Working"_s});
}

TEST_F(StatusTest, NearlyAllTextsHaveTheSameTip)
{
    form.chkSMV(0).setValue(1);
    status.UpDateStatus(u"Working"_s);
    EXPECT_EQ(form.picStatus.toolTipText(),
              u"Double clicking the status bar on different tabs performs different functions"_s);
}

TEST_F(StatusTest, AnEmptyTextChangesTheToolTipAlone)
{
    form.chkSMV(0).setValue(1);
    status.UpDateStatus(u"Working"_s);
    status.UpDateStatus({}, u"another tip"_s);
    EXPECT_EQ(form.picStatus.printed(), u"Working..."_s);
    EXPECT_EQ(form.picStatus.toolTipText(), u"another tip"_s);
    EXPECT_EQ(told.size(), 1);
}

TEST_F(StatusTest, WithToolTipsOffTheTipIsEmptyInSpiteOfTheOneGiven)
{
    form.chkSMV(0).setValue(1);
    status.UpDateStatus(u"Working"_s, u"a tip"_s);
    form.chkSMV(0).setValue(0);
    status.UpDateStatus(u"Done"_s, u"a tip"_s);
    EXPECT_EQ(form.picStatus.toolTipText(), QString());
}

TEST(FormState, BeginsWithOneEmptyElementInEachArray)
{
    const frmSearch form;
    EXPECT_EQ(form.mastrLinks, emptyList());
    EXPECT_EQ(form.mastrSavedUrlIds, emptyList());
    EXPECT_EQ(form.mastrQB, emptyList());
}

TEST(FormState, FindsControlsByName)
{
    const frmSearch form;
    EXPECT_EQ(form.control(u"chkSMA(9)"_s), &form.chkSMA(9));
    EXPECT_EQ(form.control(u"lstANMC"_s), &form.lstANMC);
    EXPECT_EQ(form.control(u"chkSMA(10)"_s), nullptr);
    EXPECT_EQ(form.control(u"nothing"_s), nullptr);
}

TEST(FormState, ListsHaveTheirItems)
{
    const frmSearch form;
    EXPECT_EQ(form.cboANWBSelect.items(), (QStringList{u"Internal"_s, u"IExplore"_s}));
    EXPECT_EQ(form.cboANList.items(), (QStringList{u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s}));
    EXPECT_EQ(form.cboANSaveType.items(), (QStringList{u"Html"_s, u"Text"_s, u"Links"_s}));
    EXPECT_EQ(form.lstANMCAllAny.items(), (QStringList{u"All"_s, u"Any"_s, u"Select"_s}));
    EXPECT_EQ(form.cboFilesSites.items(), (QStringList{u"File"_s, u"Site"_s}));
    EXPECT_EQ(form.cmdANStart.caption(), u"Go"_s);
}
