// The one gate through which every run navigates.
#include "support/FormFixture.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int internalMode = 0;
constexpr int freeStandingMode = 1;

using NavigationTest = FormTest;

struct OpenCase
{
    const char *tag;
    int mode;
    QString url;
    QString navigated; ///< "": refused
};

void PrintTo(const OpenCase &row, std::ostream *out)
{
    *out << row.tag;
}

class Opening : public NavigationTest, public testing::WithParamInterface<OpenCase>
{
};
} // namespace

TEST_P(Opening, IsIssuedOrRefusedWithAStatus)
{
    const OpenCase &row = GetParam();
    form.browser.cboANWBSelect.setListIndex(row.mode);
    EXPECT_EQ(navigation.OpenSite(row.url), !row.navigated.isEmpty());
    EXPECT_EQ(window().navigated, row.navigated.isEmpty() ? QStringList() : QStringList{row.navigated});
    EXPECT_EQ(statuses, row.navigated.isEmpty() ? QStringList{u"Invalid url "_s + row.url} : QStringList());
}

INSTANTIATE_TEST_SUITE_P(
    Navigation, Opening,
    testing::Values(
        OpenCase{"a link", freeStandingMode, u"http://www.tea.com/x"_s, u"http://www.tea.com/x"_s},
        OpenCase{"a link without protocol", freeStandingMode, u"www.tea.com"_s, u"http://www.tea.com"_s},
        OpenCase{"the same in the built-in browser", internalMode, u"www.tea.com"_s, u"http://www.tea.com"_s},
        OpenCase{"https in the built-in browser", internalMode, u"HTTPS://www.tea.com"_s, u"HTTPS://www.tea.com"_s},
        OpenCase{"a file", freeStandingMode, u"FILE:///x"_s, u"FILE:///x"_s},
        OpenCase{"a file in the built-in browser", internalMode, u"file:///home/no link at all"_s,
                 u"file:///home/no link at all"_s},
        OpenCase{"the protocol of a file alone", freeStandingMode, u"file:///"_s, {}},
        OpenCase{"an e-mail address", freeStandingMode, u"ann@tea.com"_s, {}},
        OpenCase{"no link", freeStandingMode, u"tea and coffee"_s, {}},
        OpenCase{"nothing", freeStandingMode, u""_s, {}}),
    [](const auto &row) { return "row" + std::to_string(row.index); });

TEST_F(NavigationTest, ReturnsBeforeThePageIsThere)
{
    window().pages[u"http://www.tea.com/"_s].loadTime = 60'000;
    const qint64 start = pump.tickCount();
    EXPECT_TRUE(navigation.OpenSite(u"http://www.tea.com/"_s));
    EXPECT_EQ(pump.tickCount(), start);
    EXPECT_TRUE(browser->isLoading());
}

TEST_F(NavigationTest, EachChangeOfTheDriverIsTold)
{
    int changes = 0;
    const QObject listener;
    QObject::connect(&browser, &BrowserHolder::changed, &listener, [&] { ++changes; });
    connectBrowser(browsers.running);
    EXPECT_EQ(changes, 1);
    browser.release();
    EXPECT_EQ(changes, 2);
}

TEST_F(NavigationTest, WithoutADriverItIsAnErrorInTheLogAndFalse)
{
    browser.release();
    EXPECT_FALSE(navigation.OpenSite(u"http://www.tea.com/"_s));
    EXPECT_EQ(log.locations(), QStringList{u"Function OpenSite"_s});
}
