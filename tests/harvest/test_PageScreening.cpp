// What happens to the page on show: the tests it has to pass, the colours that report the outcome, and the fallback to
// the server of an error page.
#include "WalkFixture.h"
#include "controls/cLstBx.h"

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 second = 1000;
const QString address = u"http://www.site1.com/page.html"_s;

class ScreeningTest : public WalkTest
{
  protected:
    ScreeningTest()
    {
        form.options.chkSMD(SMD::UniqueInSummary).setValue(0);
        page().html = u"<body>Green tea and BLACK coffee, nothing else here</body>"_s;
        page().title = u"A page"_s;
        page().text = u"Green tea and BLACK coffee, nothing else here"_s;
        window().show(address);
    }
    FakePage &page() { return window().pages[address]; }
    void screen()
    {
        window().show(address);
        PageReading reading(browser);
        screening.CollectData(reading);
    }
    bool mustContain()
    {
        PageReading reading(browser);
        return pageTests.IsMCGo(reading);
    }
    bool mustNotContain()
    {
        PageReading reading(browser);
        return pageTests.IsMNCGo(reading);
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
    fill(form.criteria.mustContain.items, {u"cocoa"_s});
    form.criteria.mustContain.lamp.setBackColor(Colours::Red);
    EXPECT_TRUE(mustContain());
    EXPECT_EQ(form.criteria.mustContain.lamp.backColor(), Colours::ButtonFace);
    EXPECT_EQ(window().reads, 0);
}

TEST_F(ScreeningTest, AnEmptyListLetsEveryPageGoWithAGreenLamp)
{
    on({&form.outputs.chkMCMNCStop, &form.criteria.mustContain.on, &form.criteria.mustNotContain.on});
    EXPECT_TRUE(mustContain());
    EXPECT_TRUE(mustNotContain());
    EXPECT_EQ(form.criteria.mustContain.lamp.backColor(), Colours::Green);
    EXPECT_EQ(form.criteria.mustNotContain.lamp.backColor(), Colours::Green);
}

TEST_F(ScreeningTest, ChangedTextsHoldForTheNextPage)
{
    on({&form.outputs.chkMCMNCStop, &form.criteria.mustContain.on, &form.criteria.mustNotContain.on});
    fill(form.criteria.mustContain.items, {u"Tea"_s});
    fill(form.criteria.mustNotContain.items, {u"milk"_s});
    EXPECT_TRUE(mustContain());
    EXPECT_TRUE(mustNotContain());
    form.criteria.mustContain.caseSensitive.setValue(1);
    EXPECT_FALSE(mustContain());
    form.criteria.mustContain.items.setItems({u"tea"_s});
    EXPECT_TRUE(mustContain());
    form.criteria.mustNotContain.items.addItem(u"coffee"_s);
    EXPECT_FALSE(mustNotContain());
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
    on({&form.outputs.chkMCMNCStop, &form.criteria.mustContain.on});
    form.criteria.mustContain.caseSensitive.setValue(row.caseSensitive ? 1 : 0);
    fill(form.criteria.mustContain.items, row.items);
    form.criteria.mustContain.demand.setListIndex(row.mode);
    cLstBx::UnSelect(form.criteria.mustContain.items);
    for (const int index : row.userSelection)
        form.criteria.mustContain.items.setSelected(index, true);
    EXPECT_EQ(mustContain(), row.mayGo);
    EXPECT_EQ(selected(form.criteria.mustContain.items), row.selectedAfter);
    EXPECT_EQ(form.criteria.mustContain.lamp.backColor(), row.mayGo ? Colours::Green : Colours::Red);
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
    on({&form.outputs.chkMCMNCStop, &form.criteria.mustNotContain.on});
    form.criteria.mustNotContain.caseSensitive.setValue(row.caseSensitive ? 1 : 0);
    fill(form.criteria.mustNotContain.items, row.items);
    form.criteria.mustNotContain.demand.setListIndex(row.mode);
    cLstBx::UnSelect(form.criteria.mustNotContain.items);
    for (const int index : row.userSelection)
        form.criteria.mustNotContain.items.setSelected(index, true);
    EXPECT_EQ(mustNotContain(), row.mayGo);
    EXPECT_EQ(selected(form.criteria.mustNotContain.items), row.selectedAfter);
    EXPECT_EQ(form.criteria.mustNotContain.lamp.backColor(), row.mayGo ? Colours::Green : Colours::Red);
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
    on({&form.outputs.chkSaveSummary, &form.criteria.mustContain.on});
    fill(form.criteria.mustContain.items, {u"tea"_s});
    page().readingFails = RuntimeError(50'001, u"took too long"_s);
    screen();
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
}

// Size, verdict and colours.

TEST_F(ScreeningTest, APageBelowTheMinimumIsNeitherTestedNorStored)
{
    on({&form.outputs.chkSaveSummary, &form.outputs.chkSavePages, &form.criteria.mustContain.on});
    fill(form.criteria.mustContain.items, {u"cocoa"_s});
    for (Label *lamp : {&form.outputs.lblSummarySaved, &form.outputs.lblPageSaved, &form.outputs.lblEmailSaved,
                        &form.outputs.lblPhoneSaved, &form.outputs.lblUrlSaved, &form.criteria.mustContain.lamp,
                        &form.criteria.mustNotContain.lamp})
        lamp->setBackColor(Colours::Yellow);
    form.browser.picANEnd.setBackColor(Colours::Yellow);
    form.limits.incSMDMinHtmlSize.setText(QString::number(page().html.size() + 1));
    screen();
    EXPECT_EQ(lastStatus(), u"Insufficient Size"_s);
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
    for (const Label *lamp : {&form.outputs.lblSummarySaved, &form.outputs.lblPageSaved, &form.outputs.lblEmailSaved,
                              &form.outputs.lblPhoneSaved, &form.outputs.lblUrlSaved})
        EXPECT_EQ(lamp->backColor(), Colours::ButtonFace) << lamp->name().toStdString();
    EXPECT_EQ(form.criteria.mustContain.lamp.backColor(), Colours::Yellow);
    EXPECT_EQ(form.criteria.mustNotContain.lamp.backColor(), Colours::Yellow);
    EXPECT_EQ(form.browser.picANEnd.backColor(), Colours::Yellow);
}

TEST_F(ScreeningTest, APageExactlyAsLongAsTheMinimumPasses)
{
    on({&form.outputs.chkSaveSummary});
    form.limits.incSMDMinHtmlSize.setText(QString::number(page().html.size()));
    screen();
    EXPECT_EQ(rows(u"SiteSummary"_s), QStringList{address});
}

TEST_F(ScreeningTest, AMinimumOfZeroReadsNothingToTestIt)
{
    screen();
    EXPECT_EQ(window().reads, 0);
}

TEST_F(ScreeningTest, AnUnwantedTextRefusesAPageThatHoldsTheWantedOne)
{
    on({&form.outputs.chkSaveSummary, &form.criteria.mustContain.on, &form.criteria.mustNotContain.on});
    fill(form.criteria.mustContain.items, {u"tea"_s});
    fill(form.criteria.mustNotContain.items, {u"coffee"_s});
    screen();
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
    EXPECT_EQ(form.criteria.mustContain.lamp.backColor(), Colours::Green);
    EXPECT_EQ(form.criteria.mustNotContain.lamp.backColor(), Colours::Red);
}

TEST_F(ScreeningTest, ARefusedPageLeavesTheReportLabelsAsTheLastPassedPageSetThem)
{
    on({&form.outputs.chkSaveSummary, &form.criteria.mustContain.on});
    screen();
    ASSERT_EQ(form.outputs.lblSummarySaved.backColor(), Colours::Green);
    fill(form.criteria.mustContain.items, {u"cocoa"_s});
    screen();
    EXPECT_EQ(form.outputs.lblSummarySaved.backColor(), Colours::Green);
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
    on({&form.outputs.chkSaveSummary, &form.criteria.mustContain.on});
    form.outputs.chkMCMNCStop.setValue(row.stopOn ? 1 : 0);
    fill(form.criteria.mustContain.items, {row.passes ? u"tea"_s : u"cocoa"_s});
    form.runs.mbANRunning = row.autoRun;
    form.runs.mbMNRunning = row.manualRun;
    form.browser.picANEnd.setBackColor(Colours::Yellow);
    screen();
    EXPECT_EQ(form.browser.picANEnd.backColor(), row.colour);
    EXPECT_EQ(form.runs.mbANMCMNCStopped, row.stopsAuto);
    EXPECT_EQ(form.runs.mbANCancel, row.stopsAuto);
    EXPECT_EQ(form.runs.mbMNMCMNCStopped, row.stopsManual);
    EXPECT_EQ(form.runs.mbMNCancel, row.stopsManual);
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
    for (Label *lamp : {&form.outputs.lblSummarySaved, &form.outputs.lblPageSaved, &form.outputs.lblEmailSaved,
                        &form.outputs.lblPhoneSaved, &form.outputs.lblUrlSaved})
        lamp->setBackColor(Colours::Yellow);
    screen();
    for (const Label *lamp : {&form.outputs.lblSummarySaved, &form.outputs.lblPageSaved, &form.outputs.lblEmailSaved,
                              &form.outputs.lblPhoneSaved, &form.outputs.lblUrlSaved})
        EXPECT_EQ(lamp->backColor(), Colours::ButtonFace) << lamp->name().toStdString();
}

TEST_F(ScreeningTest, WhatWasFoundIsGreenAndWhatWasNotIsRed)
{
    on({&form.outputs.chkSaveSummary, &form.outputs.chkSaveEmail, &form.outputs.chkSavePhone, &form.outputs.chkSaveUrl,
        &form.outputs.chkSavePages, &form.outputs.chkSaveToFile});
    form.options.chkSMD(SMD::PassUrlIfNoData).setValue(0);
    page().html = u"<body>Write to info@teahouse.com, please do so as soon as you can manage it</body>"_s;
    screen();
    EXPECT_EQ(form.outputs.lblSummarySaved.backColor(), Colours::Green);
    EXPECT_EQ(form.outputs.lblPageSaved.backColor(), Colours::Green);
    EXPECT_EQ(form.outputs.lblEmailSaved.backColor(), Colours::Green);
    EXPECT_EQ(form.outputs.lblPhoneSaved.backColor(), Colours::Red);
    EXPECT_EQ(form.outputs.lblUrlSaved.backColor(), Colours::Green);
}

TEST_F(ScreeningTest, TheSameAddressASecondTimeIsYellowAndAddsNoRow)
{
    on({&form.outputs.chkSaveSummary});
    screen();
    ASSERT_EQ(form.outputs.lblSummarySaved.backColor(), Colours::Green);
    screen();
    EXPECT_EQ(form.outputs.lblSummarySaved.backColor(), Colours::Yellow);
    EXPECT_EQ(rows(u"SiteSummary"_s).size(), 1);
}

TEST_F(ScreeningTest, APageThatWentIntoTheTableAloneShowsAsNotSavedToFile)
{
    on({&form.outputs.chkSaveSummary, &form.outputs.chkSavePages, &form.outputs.chkSaveToSS, &form.outputs.chkSaveUrl});
    form.outputs.chkSaveToFile.setValue(0);
    screen();
    EXPECT_EQ(form.outputs.lblPageSaved.backColor(), Colours::Red);
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
    form.options.chkSMD(SMD::PassUrlIfNoData).setValue(row.ifNoData ? 1 : 0);
    form.outputs.chkSaveSummary.setValue(row.summary ? 1 : 0);
    on({&form.outputs.chkSaveUrl, &form.outputs.chkSaveEmail});
    if (row.seenBefore)
        addRow(*database, u"SiteSummary"_s, {{u"Url"_s, address}});
    if (row.hasEmail)
        page().html += u" info@teahouse.com "_s;
    screen();
    EXPECT_EQ(rows(u"PassUrlsA"_s), row.passed ? QStringList{address} : QStringList());
    EXPECT_EQ(form.outputs.lblUrlSaved.backColor(), row.passed ? Colours::Green : Colours::Red);
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
    on({&form.outputs.chkSaveSummary, &form.outputs.chkSaveEmail});
    page().html += u" info@teahouse.com and sales@teahouse.com "_s;
    screen();
    ASSERT_EQ(stored.size(), 1);
    EXPECT_EQ(stored[0].value(u"SiteSummary"_s), 1);
    EXPECT_EQ(stored[0].value(u"EmailAddress"_s), 2);
}

TEST_F(ScreeningTest, RowsThatDoNotReachTheFileAreRedAndAreNotTold)
{
    on({&form.outputs.chkSaveSummary, &form.outputs.chkSaveEmail, &form.outputs.chkSaveUrl, &form.outputs.chkSavePages,
        &form.outputs.chkSaveToFile});
    page().html += u" info@teahouse.com "_s;
    database->CloseConnection();
    screen();
    EXPECT_TRUE(stored.isEmpty());
    EXPECT_EQ(form.outputs.lblSummarySaved.backColor(), Colours::Red);
    EXPECT_EQ(form.outputs.lblEmailSaved.backColor(), Colours::Red);
    EXPECT_EQ(form.outputs.lblUrlSaved.backColor(), Colours::Red);
    EXPECT_EQ(form.outputs.lblPageSaved.backColor(), Colours::Red); // the page is stored whole or not at all
}

// Error pages.

namespace {
class NotFoundTest : public ScreeningTest
{
  protected:
    NotFoundTest()
    {
        form.outputs.chkSaveSummary.setValue(1);
        form.limits.incNotFoundMinSize.setText(u"000200"_s);
        window().pages[u"http://www.site1.com"_s].html = u"<body>the front page</body>"_s;
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
    EXPECT_EQ(window().navigated, expected);
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
    EXPECT_EQ(window().navigated, QStringList{address});
}

TEST_F(NotFoundTest, APageExactlyAsLongAsTheLimitIsTested)
{
    page().html = u"404 "_s + QString(196, u'x');
    clickStart();
    EXPECT_EQ(window().navigated.size(), 2);
}

TEST_F(NotFoundTest, ALimitOfZeroTestsNoPageOfARun)
{
    form.limits.incNotFoundMinSize.setText(u"0"_s);
    page().html = u"404"_s;
    clickStart();
    EXPECT_EQ(window().navigated, QStringList{address});
}

TEST_F(NotFoundTest, CalledWithALimitOfZeroItTestsPagesOfEveryLength)
{
    form.limits.incNotFoundMinSize.setText(u"0"_s);
    page().html = u"404 "_s + QString(5000, u'x');
    window().show(address);
    errorPages.PageNotFound();
    EXPECT_EQ(window().navigated, QStringList{u"http://www.site1.com"_s});
}

TEST_F(NotFoundTest, ServersOnlyLeavesTheTestOut)
{
    form.options.chkSMA(SMA::ServersOnly).setValue(1);
    window().pages[u"http://www.site1.com"_s].html = u"404"_s;
    clickStart();
    EXPECT_EQ(window().navigated, QStringList{u"http://www.site1.com"_s});
}

TEST_F(NotFoundTest, XInTheWaitForTheServerEndsTheRun)
{
    page().html = u"404"_s;
    pump.after(7300, [&] { clickStart(); });
    showResults({address, u"http://www.site2.com/"_s});
    clickStart();
    EXPECT_EQ(window().navigated.size(), 2);
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
}
