// The one gate through which every run navigates.
#include "app/frmSearch.h"
#include "driver/Navigation.h"
#include "support/FakeBrowser.h"
#include "support/Fakes.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int internalMode = 0;
constexpr int freeStandingMode = 1;

class NavigationTest : public testing::Test
{
  protected:
    NavigationTest()
    {
        holder.set(std::make_unique<cIEObject>(log, desktop, clipboard, browsers));
        holder->InitializeObject(browser);
        QObject::connect(&status, &StatusLine::told, &status, [this](const QString &text) { told.append(text); });
    }
    ~NavigationTest() override
    {
        holder.release();
        pump.doEvents();
    }

    RecordingLog log;
    FakePump pump;
    FakeDesktop desktop;
    FakeClipboard clipboard;
    FakeFactory browsers{pump};
    std::shared_ptr<FakeBrowser> browser = std::make_shared<FakeBrowser>(pump);
    BrowserHolder holder;
    frmSearch form;
    Tips tips{form.options.chkSMV(0)};
    StatusLine status{form.frame.picStatus, tips};
    CountingStates states;
    FakeDialogs dialogs;
    MemorySettings settings;
    Navigation navigation{{log, status, states, dialogs, settings, tips}, form.browser, holder};
    QStringList told;
};

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
    EXPECT_EQ(browser->navigated, row.navigated.isEmpty() ? QStringList() : QStringList{row.navigated});
    EXPECT_EQ(told, row.navigated.isEmpty() ? QStringList{u"Invalid url "_s + row.url} : QStringList());
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
    browser->pages[u"http://www.tea.com/"_s].loadTime = 60'000;
    const qint64 start = pump.tickCount();
    EXPECT_TRUE(navigation.OpenSite(u"http://www.tea.com/"_s));
    EXPECT_EQ(pump.tickCount(), start);
    EXPECT_TRUE(holder->isLoading());
}

TEST_F(NavigationTest, WithoutADriverItIsAnErrorInTheLogAndFalse)
{
    holder.release();
    EXPECT_FALSE(navigation.OpenSite(u"http://www.tea.com/"_s));
    EXPECT_EQ(log.locations(), QStringList{u"Function OpenSite"_s});
}
