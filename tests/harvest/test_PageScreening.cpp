// What happens to the page on show: the tests it has to pass, the colours that report the outcome, and the fallback to
// the server of an error page.
#include "controls/cLstBx.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 second = 1000;
const QString address = u"http://www.site1.com/page.html"_s;

class ScreeningTest : public RunTest
{
  protected:
    ScreeningTest()
    {
        form().chkSMD(1).setValue(0);
        page().html = u"<body>Green tea and BLACK coffee, nothing else here</body>"_s;
        page().title = u"A page"_s;
        page().text = u"Green tea and BLACK coffee, nothing else here"_s;
        browser().show(address);
    }
    FakePage &page() { return browser().pages[address]; }
    void screen()
    {
        browser().show(address);
        PageReading reading(program->browser);
        program->screening.CollectData(reading);
    }
    bool mustContain()
    {
        PageReading reading(program->browser);
        return program->screening.IsMCGo(reading);
    }
    bool mustNotContain()
    {
        PageReading reading(program->browser);
        return program->screening.IsMNCGo(reading);
    }
    static void fill(ListBox &list, const QStringList &items)
    {
        for (const QString &item : items)
            list.addItem(item);
    }
    static QList<int> selected(const ListBox &list)
    {
        QList<int> found;
        for (int i = 0; i < list.listCount(); ++i) {
            if (list.isSelected(i))
                found.append(i);
        }
        return found;
    }
    static void on(std::initializer_list<CheckBox *> boxes)
    {
        for (CheckBox *box : boxes)
            box->setValue(1);
    }
};
} // namespace

// The texts that a page must hold.

TEST_F(ScreeningTest, MustContainOffLetsEveryPageGoAndLeavesItsLampNeutral)
{
    fill(form().lstANMC, {u"cocoa"_s});
    form().lblMCColor.setBackColor(Colours::Red);
    EXPECT_TRUE(mustContain());
    EXPECT_EQ(form().lblMCColor.backColor(), Colours::ButtonFace);
    EXPECT_EQ(browser().reads, 0);
}

TEST_F(ScreeningTest, AnEmptyListLetsEveryPageGoWithAGreenLamp)
{
    on({&form().chkMCMNCStop, &form().chkMustContain, &form().chkMustNotContain});
    EXPECT_TRUE(mustContain());
    EXPECT_TRUE(mustNotContain());
    EXPECT_EQ(form().lblMCColor.backColor(), Colours::Green);
    EXPECT_EQ(form().lblMNCColor.backColor(), Colours::Green);
}

namespace {
enum Mode { All = 0, Any = 1, Select = 2 };
struct TextCase
{
    const char *tag;
    Mode mode;
    QStringList items;
    QList<int> userSelection;
    bool caseSensitive;
    bool mayGo;
    QList<int> selectedAfter;
};

void PrintTo(const TextCase &row, std::ostream *out)
{
    *out << row.tag;
}

class MustContainTable : public ScreeningTest, public testing::WithParamInterface<TextCase>
{
};
class MustNotContainTable : public ScreeningTest, public testing::WithParamInterface<TextCase>
{
};
} // namespace

TEST_P(MustContainTable, Decides)
{
    const TextCase &row = GetParam();
    on({&form().chkMCMNCStop, &form().chkMustContain});
    form().chkMCCS.setValue(row.caseSensitive ? 1 : 0);
    fill(form().lstANMC, row.items);
    form().lstANMCAllAny.setListIndex(row.mode);
    cLstBx::UnSelect(form().lstANMC);
    for (const int index : row.userSelection)
        form().lstANMC.setSelected(index, true);
    EXPECT_EQ(mustContain(), row.mayGo);
    EXPECT_EQ(selected(form().lstANMC), row.selectedAfter);
    EXPECT_EQ(form().lblMCColor.backColor(), row.mayGo ? Colours::Green : Colours::Red);
}

INSTANTIATE_TEST_SUITE_P(
    Screening, MustContainTable,
    testing::Values(
        TextCase{"all found", All, {u"tea"_s, u"coffee"_s}, {}, false, true, {}},
        TextCase{"all with one missing selects exactly that one",
                 All,
                 {u"tea"_s, u"cocoa"_s, u"milk"_s},
                 {0, 2},
                 false,
                 false,
                 {1}},
        TextCase{"an empty item is found", All, {QString(), u"tea"_s}, {}, false, true, {}},
        TextCase{"case ignored", All, {u"GREEN"_s, u"black"_s}, {}, false, true, {}},
        TextCase{"case told apart", All, {u"Green"_s, u"black"_s}, {}, true, false, {1}},
        TextCase{"any selects the one that let it go", Any, {u"cocoa"_s, u"coffee"_s, u"tea"_s}, {0}, false, true, {1}},
        TextCase{"any with none found clears the selection", Any, {u"cocoa"_s, u"milk"_s}, {0, 1}, false, false, {}},
        TextCase{"select tests the selected ones alone", Select, {u"cocoa"_s, u"coffee"_s}, {1}, false, true, {1}},
        TextCase{"select with one missing keeps the selection",
                 Select,
                 {u"cocoa"_s, u"coffee"_s},
                 {0, 1},
                 false,
                 false,
                 {0, 1}},
        TextCase{"select with nothing selected tests nothing", Select, {u"cocoa"_s}, {}, false, true, {}}),
    [](const auto &row) { return "row" + std::to_string(row.index); });

TEST_P(MustNotContainTable, Decides)
{
    const TextCase &row = GetParam();
    on({&form().chkMCMNCStop, &form().chkMustNotContain});
    form().chkMNCCS.setValue(row.caseSensitive ? 1 : 0);
    fill(form().lstANMNC, row.items);
    form().lstANMNCAllAny.setListIndex(row.mode);
    cLstBx::UnSelect(form().lstANMNC);
    for (const int index : row.userSelection)
        form().lstANMNC.setSelected(index, true);
    EXPECT_EQ(mustNotContain(), row.mayGo);
    EXPECT_EQ(selected(form().lstANMNC), row.selectedAfter);
    EXPECT_EQ(form().lblMNCColor.backColor(), row.mayGo ? Colours::Green : Colours::Red);
}

INSTANTIATE_TEST_SUITE_P(
    Screening, MustNotContainTable,
    testing::Values(
        TextCase{"all: none found", All, {u"cocoa"_s, u"milk"_s}, {0}, false, true, {}},
        TextCase{
            "all: one found refuses and is selected", All, {u"cocoa"_s, u"TEA"_s, u"coffee"_s}, {}, false, false, {1}},
        TextCase{"any is like all", Any, {u"cocoa"_s, u"TEA"_s}, {}, false, false, {1}},
        TextCase{"case told apart", All, {u"TEA"_s}, {}, true, true, {}},
        TextCase{
            "select: one found refuses, selection stays", Select, {u"tea"_s, u"cocoa"_s}, {0, 1}, false, false, {0, 1}},
        TextCase{"select: unselected ones do not count", Select, {u"tea"_s, u"cocoa"_s}, {1}, false, true, {1}}),
    [](const auto &row) { return "row" + std::to_string(row.index); });

TEST_F(ScreeningTest, AFailingTestRefusesThePage)
{
    on({&form().chkSaveSummary, &form().chkMustContain});
    fill(form().lstANMC, {u"tea"_s});
    page().readingFails = RuntimeError(50'001, u"took too long"_s);
    screen();
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
}

// Size, verdict and colours.

TEST_F(ScreeningTest, APageBelowTheMinimumIsNeitherTestedNorStored)
{
    on({&form().chkSaveSummary, &form().chkSavePages, &form().chkMustContain});
    fill(form().lstANMC, {u"cocoa"_s});
    for (Label *lamp : {&form().lblSummarySaved, &form().lblPageSaved, &form().lblEmailSaved, &form().lblPhoneSaved,
                        &form().lblUrlSaved, &form().lblMCColor, &form().lblMNCColor})
        lamp->setBackColor(Colours::Yellow);
    form().picANEnd.setBackColor(Colours::Yellow);
    form().incSMDMinHtmlSize.setText(QString::number(page().html.size() + 1));
    screen();
    EXPECT_EQ(lastStatus(), u"Insufficient Size"_s);
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
    for (const Label *lamp : {&form().lblSummarySaved, &form().lblPageSaved, &form().lblEmailSaved,
                              &form().lblPhoneSaved, &form().lblUrlSaved})
        EXPECT_EQ(lamp->backColor(), Colours::ButtonFace) << lamp->name().toStdString();
    EXPECT_EQ(form().lblMCColor.backColor(), Colours::Yellow);
    EXPECT_EQ(form().lblMNCColor.backColor(), Colours::Yellow);
    EXPECT_EQ(form().picANEnd.backColor(), Colours::Yellow);
}

TEST_F(ScreeningTest, APageExactlyAsLongAsTheMinimumPasses)
{
    on({&form().chkSaveSummary});
    form().incSMDMinHtmlSize.setText(QString::number(page().html.size()));
    screen();
    EXPECT_EQ(rows(u"SiteSummary"_s), QStringList{address});
}

TEST_F(ScreeningTest, AMinimumOfZeroReadsNothingToTestIt)
{
    screen();
    EXPECT_EQ(browser().reads, 0);
}

TEST_F(ScreeningTest, AnUnwantedTextRefusesAPageThatHoldsTheWantedOne)
{
    on({&form().chkSaveSummary, &form().chkMustContain, &form().chkMustNotContain});
    fill(form().lstANMC, {u"tea"_s});
    fill(form().lstANMNC, {u"coffee"_s});
    screen();
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
    EXPECT_EQ(form().lblMCColor.backColor(), Colours::Green);
    EXPECT_EQ(form().lblMNCColor.backColor(), Colours::Red);
}

TEST_F(ScreeningTest, ARefusedPageLeavesTheReportLabelsAsTheLastPassedPageSetThem)
{
    on({&form().chkSaveSummary, &form().chkMustContain});
    form().mbANRunning = true; // labels are cleared when idle
    screen();
    ASSERT_EQ(form().lblSummarySaved.backColor(), Colours::Green);
    fill(form().lstANMC, {u"cocoa"_s});
    screen();
    EXPECT_EQ(form().lblSummarySaved.backColor(), Colours::Green);
}

namespace {
struct EndMark
{
    const char *tag;
    bool stopOn, passes, autoRun, manualRun;
    Colour colour;
    bool stopsAuto, stopsManual;
};

class EndMarkTable : public ScreeningTest, public testing::WithParamInterface<EndMark>
{
};
} // namespace

TEST_P(EndMarkTable, TellsWhetherTheRunGoesOn)
{
    const EndMark &row = GetParam();
    on({&form().chkSaveSummary, &form().chkMustContain});
    form().chkMCMNCStop.setValue(row.stopOn ? 1 : 0);
    fill(form().lstANMC, {row.passes ? u"tea"_s : u"cocoa"_s});
    form().mbANRunning = row.autoRun;
    form().mbMNRunning = row.manualRun;
    form().picANEnd.setBackColor(Colours::Yellow);
    screen();
    EXPECT_EQ(form().picANEnd.backColor(), row.colour);
    EXPECT_EQ(form().mbANMCMNCStopped, row.stopsAuto);
    EXPECT_EQ(form().mbANCancel, row.stopsAuto);
    EXPECT_EQ(form().mbMNMCMNCStopped, row.stopsManual);
    EXPECT_EQ(form().mbMNCancel, row.stopsManual);
}

INSTANTIATE_TEST_SUITE_P(
    Screening, EndMarkTable,
    testing::Values(EndMark{"passed, off", false, true, true, false, Colours::ButtonFace, false, false},
                    EndMark{"passed, on, Auto", true, true, true, false, Colours::Red, true, false},
                    EndMark{"passed, on, Manual", true, true, false, true, Colours::Blue, false, true},
                    EndMark{"refused, on", true, false, true, false, Colours::Green, false, false},
                    EndMark{"refused, off", false, false, true, false, Colours::ButtonFace, false, false}),
    [](const auto &row) { return "row" + std::to_string(row.index); });

TEST_F(ScreeningTest, WithNothingToSaveAllReportLabelsAreNeutral)
{
    for (Label *lamp : {&form().lblSummarySaved, &form().lblPageSaved, &form().lblEmailSaved, &form().lblPhoneSaved,
                        &form().lblUrlSaved})
        lamp->setBackColor(Colours::Yellow);
    screen();
    for (const Label *lamp : {&form().lblSummarySaved, &form().lblPageSaved, &form().lblEmailSaved,
                              &form().lblPhoneSaved, &form().lblUrlSaved})
        EXPECT_EQ(lamp->backColor(), Colours::ButtonFace) << lamp->name().toStdString();
}

TEST_F(ScreeningTest, WhatWasFoundIsGreenAndWhatWasNotIsRed)
{
    form().mbANRunning = true;
    on({&form().chkSaveSummary, &form().chkSaveEmail, &form().chkSavePhone, &form().chkSaveUrl, &form().chkSavePages,
        &form().chkSaveToFile});
    form().chkSMD(7).setValue(0);
    page().html = u"<body>Write to info@teahouse.com, please do so as soon as you can manage it</body>"_s;
    screen();
    EXPECT_EQ(form().lblSummarySaved.backColor(), Colours::Green);
    EXPECT_EQ(form().lblPageSaved.backColor(), Colours::Green);
    EXPECT_EQ(form().lblEmailSaved.backColor(), Colours::Green);
    EXPECT_EQ(form().lblPhoneSaved.backColor(), Colours::Red);
    EXPECT_EQ(form().lblUrlSaved.backColor(), Colours::Green);
}

TEST_F(ScreeningTest, TheSameAddressASecondTimeIsYellowAndAddsNoRow)
{
    form().mbANRunning = true;
    on({&form().chkSaveSummary});
    screen();
    ASSERT_EQ(form().lblSummarySaved.backColor(), Colours::Green);
    screen();
    EXPECT_EQ(form().lblSummarySaved.backColor(), Colours::Yellow);
    EXPECT_EQ(rows(u"SiteSummary"_s).size(), 1);
}

TEST_F(ScreeningTest, APageThatWentIntoTheTableAloneShowsAsNotSavedToFile)
{
    form().mbANRunning = true;
    on({&form().chkSaveSummary, &form().chkSavePages, &form().chkSaveToSS, &form().chkSaveUrl});
    form().chkSaveToFile.setValue(0);
    screen();
    EXPECT_EQ(form().lblPageSaved.backColor(), Colours::Red);
    EXPECT_EQ(rows(u"SiteSummary"_s, u"FullPage"_s), QStringList{page().html});
}

// "Pass Url if no data."

namespace {
struct PassUrlCase
{
    const char *tag;
    bool ifNoData, summary, seenBefore, hasEmail;
    bool passed;
};

class PassUrlTable : public ScreeningTest, public testing::WithParamInterface<PassUrlCase>
{
};
} // namespace

TEST_P(PassUrlTable, IsPassedOnByTheRule)
{
    const PassUrlCase &row = GetParam();
    form().mbANRunning = true;
    form().chkSMD(7).setValue(row.ifNoData ? 1 : 0);
    form().chkSaveSummary.setValue(row.summary ? 1 : 0);
    on({&form().chkSaveUrl, &form().chkSaveEmail});
    if (row.seenBefore)
        addRow(database(), u"SiteSummary"_s, {{u"Url"_s, address}});
    if (row.hasEmail)
        page().html += u" info@teahouse.com "_s;
    screen();
    EXPECT_EQ(rows(u"PassUrlsA"_s), row.passed ? QStringList{address} : QStringList());
    EXPECT_EQ(form().lblUrlSaved.backColor(), row.passed ? Colours::Green : Colours::Red);
}

INSTANTIATE_TEST_SUITE_P(Screening, PassUrlTable,
                         testing::Values(PassUrlCase{"always, with data", false, true, false, true, true},
                                         PassUrlCase{"no data and no summary wanted", true, false, false, false, true},
                                         PassUrlCase{"summary seen before counts as no data", true, true, true, false,
                                                     true},
                                         PassUrlCase{"a new summary is data", true, true, false, false, false},
                                         PassUrlCase{"an address is data", true, false, false, true, false}),
                         [](const auto &row) { return "row" + std::to_string(row.index); });

// All rows of one page at once.

TEST_F(ScreeningTest, TellsTheRowsOfEachPageByTable)
{
    form().mbANRunning = true;
    on({&form().chkSaveSummary, &form().chkSaveEmail});
    page().html += u" info@teahouse.com and sales@teahouse.com "_s;
    screen();
    ASSERT_EQ(stored.size(), 1);
    EXPECT_EQ(stored[0].value(u"SiteSummary"_s), 1);
    EXPECT_EQ(stored[0].value(u"EmailAddress"_s), 2);
}

TEST_F(ScreeningTest, RowsThatDoNotReachTheFileAreRedAndAreNotTold)
{
    form().mbANRunning = true;
    on({&form().chkSaveSummary, &form().chkSaveEmail, &form().chkSaveUrl, &form().chkSavePages, &form().chkSaveToFile});
    page().html += u" info@teahouse.com "_s;
    database().CloseConnection();
    screen();
    EXPECT_TRUE(stored.isEmpty());
    EXPECT_EQ(form().lblSummarySaved.backColor(), Colours::Red);
    EXPECT_EQ(form().lblEmailSaved.backColor(), Colours::Red);
    EXPECT_EQ(form().lblUrlSaved.backColor(), Colours::Red);
    EXPECT_EQ(form().lblPageSaved.backColor(), Colours::Green); // the file is there
}

// Error pages.

namespace {
class NotFoundTest : public ScreeningTest
{
  protected:
    NotFoundTest()
    {
        form().chkSaveSummary.setValue(1);
        form().incNotFoundMinSize.setText(u"000200"_s);
        browser().pages[u"http://www.site1.com"_s].html = u"<body>the front page</body>"_s;
        showResults({address});
    }
};

struct ErrorText
{
    const char16_t *html;
    const char16_t *title;
    bool isErrorPage;
};

class ErrorTexts : public NotFoundTest, public testing::WithParamInterface<ErrorText>
{
};
} // namespace

TEST_P(ErrorTexts, AreLookedForInTheMarkupAndTheTitleWithoutRegardToCase)
{
    page().html = QString::fromUtf16(GetParam().html);
    page().title = QString::fromUtf16(GetParam().title);
    const qint64 start = pump.seconds();
    clickStart();
    const QStringList expected =
        GetParam().isErrorPage ? QStringList{address, u"http://www.site1.com"_s} : QStringList{address};
    EXPECT_EQ(browser().navigated, expected);
    EXPECT_EQ(pump.seconds() - start, GetParam().isErrorPage ? 10 : 5);
    EXPECT_EQ(statuses.contains(u"404 - Opening Server"_s), GetParam().isErrorPage);
    EXPECT_EQ(rows(u"SiteSummary"_s), QStringList{expected.constLast()});
}

INSTANTIATE_TEST_SUITE_P(
    Screening, ErrorTexts,
    testing::Values(ErrorText{u"<p>File NOT Found</p>", u"", true}, ErrorText{u"<p>", u"Error 404", true},
                    ErrorText{u"<p>we have 404 cups", u"", true}, ErrorText{u"Page Missing", u"", true},
                    ErrorText{u"", u"Cannot find server", true}, ErrorText{u"URL broken", u"", true},
                    ErrorText{u"The system cannot find the file", u"", true},
                    ErrorText{u"<p>all is well", u"Tea", false}),
    [](const auto &row) { return "row" + std::to_string(row.index); });

TEST_F(NotFoundTest, ALongerPageIsTakenAsReal)
{
    page().html = u"404 "_s + QString(197, u'x');
    clickStart();
    EXPECT_EQ(browser().navigated, QStringList{address});
}

TEST_F(NotFoundTest, APageExactlyAsLongAsTheLimitIsTested)
{
    page().html = u"404 "_s + QString(196, u'x');
    clickStart();
    EXPECT_EQ(browser().navigated.size(), 2);
}

TEST_F(NotFoundTest, ALimitOfZeroTestsNoPageOfARun)
{
    form().incNotFoundMinSize.setText(u"0"_s);
    page().html = u"404"_s;
    clickStart();
    EXPECT_EQ(browser().navigated, QStringList{address});
}

TEST_F(NotFoundTest, CalledWithALimitOfZeroItTestsPagesOfEveryLength)
{
    form().incNotFoundMinSize.setText(u"0"_s);
    page().html = u"404 "_s + QString(5000, u'x');
    browser().show(address);
    PageReading reading(program->browser);
    program->screening.PageNotFound(reading);
    EXPECT_EQ(browser().navigated, QStringList{u"http://www.site1.com"_s});
}

TEST_F(NotFoundTest, ServersOnlyLeavesTheTestOut)
{
    form().chkSMA(0).setValue(1);
    browser().pages[u"http://www.site1.com"_s].html = u"404"_s;
    clickStart();
    EXPECT_EQ(browser().navigated, QStringList{u"http://www.site1.com"_s});
}

TEST_F(NotFoundTest, XInTheWaitForTheServerEndsTheRun)
{
    page().html = u"404"_s;
    pump.after(7300, [&] { clickStart(); });
    showResults({address, u"http://www.site2.com/"_s});
    clickStart();
    EXPECT_EQ(browser().navigated.size(), 2);
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
}
