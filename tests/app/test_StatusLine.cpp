// The status bar's text and tool tip, and the form behind it.
#include "app/StatusLine.h"

#include "app/frmSearch.h"
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
    Tips tips{form.options.chkSMV(0)};
    StatusLine status{form.frame.picStatus, tips};
    QStringList told;
};
} // namespace

TEST_F(StatusTest, PrintsTheTextWithThreeDots)
{
    form.options.chkSMV(0).setValue(1);
    status.UpDateStatus(u"Working"_s, u"a tip"_s);
    EXPECT_EQ(form.frame.picStatus.printed(), u"Working..."_s);
    EXPECT_EQ(form.frame.picStatus.toolTipText(), u"a tip"_s);
    EXPECT_EQ(told, QStringList{u"Working"_s});
}

TEST_F(StatusTest, WhatAPageSendsIsShownAndNotDone)
{
    form.options.chkSMV(0).setValue(1);
    status.UpDateStatus(u"1/2 http://a.com/\nStopped (FINISHED)\x1b[2J"_s, u"a\ttip"_s);
    EXPECT_EQ(told, QStringList{u"1/2 http://a.com/\u240AStopped (FINISHED)\u241B[2J"_s});
    EXPECT_EQ(form.frame.picStatus.printed(), told[0] + u"..."_s);
    EXPECT_EQ(form.frame.picStatus.toolTipText(), u"a\u2409tip"_s);
}

TEST_F(StatusTest, NearlyAllTextsHaveTheSameTip)
{
    form.options.chkSMV(0).setValue(1);
    status.UpDateStatus(u"Working"_s);
    EXPECT_EQ(form.frame.picStatus.toolTipText(),
              u"Double clicking the status bar on different tabs performs different functions"_s);
}

TEST_F(StatusTest, AnEmptyTextChangesTheToolTipAlone)
{
    form.options.chkSMV(0).setValue(1);
    status.UpDateStatus(u"Working"_s);
    status.UpDateStatus({}, u"another tip"_s);
    EXPECT_EQ(form.frame.picStatus.printed(), u"Working..."_s);
    EXPECT_EQ(form.frame.picStatus.toolTipText(), u"another tip"_s);
    EXPECT_EQ(told.size(), 1);
}

TEST_F(StatusTest, WithToolTipsOffTheTipIsEmptyInSpiteOfTheOneGiven)
{
    form.options.chkSMV(0).setValue(1);
    status.UpDateStatus(u"Working"_s, u"a tip"_s);
    form.options.chkSMV(0).setValue(0);
    status.UpDateStatus(u"Done"_s, u"a tip"_s);
    EXPECT_EQ(form.frame.picStatus.toolTipText(), QString());
}

TEST(FormState, BeginsWithOneEmptyElementInEachArray)
{
    const frmSearch form;
    EXPECT_EQ(form.autoRun.mastrLinks, emptyList());
    EXPECT_EQ(form.saved.mastrSavedUrlIds, emptyList());
    EXPECT_EQ(form.blocking.mastrQB, emptyList());
}

TEST(FormState, FindsControlsByName)
{
    const frmSearch form;
    EXPECT_EQ(form.control(u"chkSMA(9)"_s), &form.options.chkSMA(9));
    EXPECT_EQ(form.control(u"lstANMC"_s), &form.criteria.mustContain.items);
    EXPECT_EQ(form.control(u"chkSMA(11)"_s), nullptr);
    EXPECT_EQ(form.control(u"nothing"_s), nullptr);
}

TEST(FormState, ListsHaveTheirItems)
{
    const frmSearch form;
    EXPECT_EQ(form.browser.cboANWBSelect.items(), (QStringList{u"Internal"_s, u"IExplore"_s}));
    EXPECT_EQ(form.saved.cboANList.items(), (QStringList{u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s}));
    EXPECT_EQ(form.outputs.cboANSaveType.items(), (QStringList{u"Html"_s, u"Text"_s, u"Links"_s}));
    EXPECT_EQ(form.criteria.mustContain.demand.items(), (QStringList{u"All"_s, u"Any"_s, u"Select"_s}));
    EXPECT_EQ(form.manual.cboFilesSites.items(), (QStringList{u"File"_s, u"Site"_s}));
    EXPECT_EQ(form.autoRun.cmdANStart.caption(), u"Go"_s);
}
