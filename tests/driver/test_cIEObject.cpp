// The browser driver: what it asks of a browser, what it gives without one, and how it ends its errors.
#include "driver/BrowserHolder.h"
#include "driver/PageReading.h"
#include "support/FakeBrowser.h"
#include "support/Fakes.h"

using namespace Qt::StringLiterals;

namespace {
const QString address = u"http://www.site1.com/"_s;

class DriverTest : public testing::Test
{
  protected:
    DriverTest() { EXPECT_TRUE(driver.InitializeObject(browser)); }
    FakePage &page() { return browser->pages[address]; }
    void show() { browser->show(address); }
    void setFrames(const QList<FakeFrame> &frames)
    {
        page().frames = frames;
        show();
    }

    RecordingLog log;
    FakePump pump;
    FakeDesktop desktop;
    FakeClipboard clipboard;
    FakeFactory browsers{pump};
    std::shared_ptr<FakeBrowser> browser = std::make_shared<FakeBrowser>(pump);
    cIEObject driver{log, desktop, clipboard, browsers};
};

class NoBrowserTest : public DriverTest
{
  protected:
    cIEObject empty{log, desktop, clipboard, browsers};
};
} // namespace

TEST_F(NoBrowserTest, EveryOperationGivesItsEmptyValueAndNoneRaises)
{
    empty.IEStop();
    empty.IETop(1);
    empty.IELeft(1);
    empty.IEWidth(1);
    empty.IEHeight(1);
    empty.NavigateToUrl(address);
    empty.NavigateToUrl(u"ann@tea.com"_s);
    empty.SaveWebPage();
    EXPECT_EQ(empty.GetSiteUrl(), QString());
    EXPECT_EQ(empty.GetSiteTitle(), QString());
    EXPECT_EQ(empty.GetBrowserHTML(), QString());
    EXPECT_EQ(empty.GetBrowserText(), QString());
    EXPECT_FALSE(empty.GetPage().has_value());
    EXPECT_TRUE(empty.GetLinksOnWebPage().isEmpty());
    EXPECT_TRUE(empty.GetLinksOnAllFrames(false).isEmpty());
    EXPECT_EQ(empty.GetHTMLFromAllFrames(), QString());
    EXPECT_EQ(empty.GetTextFromAllFrames(), QString());
    EXPECT_EQ(empty.FrameCount(), 0);
    EXPECT_EQ(empty.GetFrame(0), QString());
    EXPECT_EQ(empty.CopySelection(), QString());
    EXPECT_TRUE(empty.CollectEmail({}, u"@"_s).isEmpty());
    EXPECT_TRUE(empty.Get_HtmlTag_Content(u"<b>"_s, u"</b>"_s, {}).isEmpty());
    EXPECT_FALSE(empty.isLoading());
    EXPECT_TRUE(log.entries.isEmpty());
    EXPECT_TRUE(desktop.opened.isEmpty());
}

TEST_F(NoBrowserTest, WithNoWindowOpenThereIsNothingToInitialize)
{
    EXPECT_EQ(empty.GetActiveBrowser(), nullptr);
    EXPECT_FALSE(empty.InitializeObject(nullptr));
}

TEST_F(NoBrowserTest, WithoutAnArgumentTheRunningWindowIsTaken)
{
    browsers.running = browser;
    show();
    EXPECT_TRUE(empty.InitializeObject(nullptr));
    EXPECT_EQ(empty.GetSiteUrl(), address);
}

TEST_F(NoBrowserTest, TextsNeedNoBrowser)
{
    EXPECT_EQ(empty.CollectEmail(u"write to ann@tea.com now"_s, u"@"_s), QStringList{u"ann@tea.com"_s});
    EXPECT_EQ(empty.Get_HtmlTag_Content(u"<b>"_s, u"</b>"_s, u"<b>Tea</b>"_s), QStringList{u"Tea"_s});
}

TEST_F(DriverTest, ASecondCallThatFindsNoBrowserLeavesTheEarlierTrueStanding)
{
    EXPECT_TRUE(driver.InitializeObject(nullptr));
    EXPECT_EQ(driver.GetSiteUrl(), QString());
    driver.IEStop();
    driver.NavigateToUrl(address);
    EXPECT_TRUE(driver.GetLinksOnWebPage() == emptyList());
    ASSERT_EQ(log.entries.size(), 4);
    for (const RecordingLog::Entry &entry : log.entries)
        EXPECT_EQ(entry.number, ErrorNumber::ObjectNotSet);
}

TEST_F(DriverTest, EventsComeFromTheBrowserTakenLastAlone)
{
    int closings = 0;
    QObject::connect(&driver, &cIEObject::WindowClosing, &driver, [&] { ++closings; });
    auto second = std::make_shared<FakeBrowser>(pump);
    EXPECT_TRUE(driver.InitializeObject(second));
    EXPECT_TRUE(driver.InitializeObject(second));
    browser->close();
    EXPECT_EQ(closings, 0);
    second->close();
    EXPECT_EQ(closings, 1);
}

namespace {
struct AddressCase
{
    const char *tag;
    QString address;
    QString navigated;
    QString mail;
};

void PrintTo(const AddressCase &row, std::ostream *out)
{
    *out << row.tag;
}

class Addresses : public DriverTest, public testing::WithParamInterface<AddressCase>
{
};
} // namespace

TEST_P(Addresses, GoToTheBrowserOrToTheMailProgram)
{
    driver.NavigateToUrl(GetParam().address);
    EXPECT_EQ(browser->navigated, GetParam().navigated.isEmpty() ? QStringList() : QStringList{GetParam().navigated});
    EXPECT_EQ(desktop.opened, GetParam().mail.isEmpty() ? QStringList() : QStringList{GetParam().mail});
}

INSTANTIATE_TEST_SUITE_P(
    Driver, Addresses,
    testing::Values(AddressCase{"a bare host", u"www.tea.com"_s, u"http://www.tea.com"_s, {}},
                    AddressCase{"with its protocol", u"https://tea.com/x"_s, u"https://tea.com/x"_s, {}},
                    AddressCase{"a protocol in capitals", u"HTTP://TEA.com/X"_s, u"HTTP://TEA.com/X"_s, {}},
                    AddressCase{"ftp", u"ftp://tea.com"_s, u"ftp://tea.com"_s, {}},
                    AddressCase{"a file", u"file:///home/x.htm"_s, u"file:///home/x.htm"_s, {}},
                    AddressCase{"mailto", u"mailto:ann@tea.com"_s, u"mailto:ann@tea.com"_s, {}},
                    AddressCase{"a bare mailbox", u"ann@tea.com"_s, {}, u"mailto:ann@tea.com?Subject=Hello"_s},
                    AddressCase{"a protocol and an @", u"http://tea.com/@ann"_s, u"http://tea.com/@ann"_s, {}},
                    AddressCase{
                        "a protocol not in front", u"go to http://tea.com"_s, u"http://go to http://tea.com"_s, {}}),
    [](const auto &row) { return "row" + std::to_string(row.index); });

TEST_F(DriverTest, ABusyBrowserIsPassedOverWithoutAWord)
{
    for (const qint64 number : {qint64(0x800700AA), qint64(qint32(0x800700AA))}) {
        browser->navigationFails = RuntimeError(number, u"The requested resource is in use."_s);
        driver.NavigateToUrl(address);
    }
    EXPECT_TRUE(log.entries.isEmpty());
    browser->navigationFails = RuntimeError(-2147467259, u"Unspecified error"_s);
    driver.NavigateToUrl(address);
    EXPECT_EQ(log.locations(), QStringList{u"NavigateToUrl"_s});
    EXPECT_EQ(log.entries[0].module, u"cIEObject"_s);
}

TEST_F(DriverTest, GivesThePagesContent)
{
    page() = {u"<p>Tea</p>"_s,
              u"Title"_s,
              u"Tea"_s,
              {u"http://a.com/"_s, u"mailto:x@y.com"_s, u"http://a.com/"_s},
              0,
              {},
              {},
              {}};
    show();
    EXPECT_EQ(driver.GetSiteUrl(), address);
    EXPECT_EQ(driver.GetSiteTitle(), u"Title"_s);
    EXPECT_EQ(driver.GetBrowserHTML(), u"<p>Tea</p>"_s);
    EXPECT_EQ(driver.GetBrowserText(), u"Tea"_s);
    EXPECT_EQ(driver.GetLinksOnWebPage(), (QStringList{u"http://a.com/"_s, u"mailto:x@y.com"_s, u"http://a.com/"_s}));
    const PageContent content = driver.GetPage().value();
    EXPECT_EQ(content.html, u"<p>Tea</p>"_s);
    EXPECT_EQ(content.title, u"Title"_s);
    EXPECT_EQ(content.url, address);
}

TEST_F(DriverTest, APageWithoutLinksIsOneEmptyText)
{
    show();
    EXPECT_EQ(driver.GetLinksOnWebPage(), emptyList());
}

TEST_F(DriverTest, BeforeAnyPageItGivesWhatTheBrowserReports)
{
    EXPECT_EQ(driver.GetSiteUrl(), QString());
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(DriverTest, ErrorsEndInTheLogUnderTheirLocations)
{
    page().readingFails = RuntimeError(50'001, u"took too long"_s);
    show();
    EXPECT_EQ(driver.GetBrowserHTML(), QString());
    EXPECT_EQ(driver.GetBrowserText(), QString());
    EXPECT_EQ(driver.GetSiteTitle(), QString());
    EXPECT_EQ(driver.GetLinksOnWebPage(), emptyList());
    EXPECT_EQ(log.locations(), (QStringList{u"GetBrowserHtml"_s, u"GetBrowserText"_s, u"Function GetSiteTitle"_s,
                                            u"GetLinksOnWebPage"_s}));
    log.entries.clear();
    browser->close();
    driver.IEStop();
    EXPECT_EQ(driver.GetSiteUrl(), QString());
    EXPECT_EQ(log.locations(), (QStringList{u"Sub IETop"_s, u"Function GetSiteUrl"_s}));
}

TEST_F(DriverTest, PutsTheWindowWhereItIsTold)
{
    driver.IETop(1);
    driver.IELeft(2);
    driver.IEWidth(3);
    driver.IEHeight(4);
    EXPECT_EQ(browser->geometry, (QStringList{u"top 1"_s, u"left 2"_s, u"width 3"_s, u"height 4"_s}));
}

TEST_F(DriverTest, CopiesTheSelectionThroughTheClipboardAndLetsThePageBeSaved)
{
    clipboard.held = u"selected"_s;
    EXPECT_EQ(driver.CopySelection(), u"selected"_s);
    EXPECT_EQ(browser->copies, 1);
    driver.SaveWebPage();
    EXPECT_EQ(browser->saves, 1);
}

TEST_F(DriverTest, TheProgramsPathIsTheDefaultUntilItIsSet)
{
    browsers.program = u"/usr/bin/chromium"_s;
    EXPECT_EQ(driver.InternetExplorerPath(), u"/usr/bin/chromium"_s);
    driver.setInternetExplorerPath(u"/opt/browser"_s);
    EXPECT_EQ(driver.InternetExplorerPath(), u"/opt/browser"_s);
}

// Frames.

TEST_F(DriverTest, AFrameCountIsTheHighestIndex)
{
    show();
    EXPECT_EQ(driver.FrameCount(), -1);
    setFrames({{}, {}});
    EXPECT_EQ(driver.FrameCount(), 1);
}

TEST_F(DriverTest, APageWithOneFrameCountsAsAPageWithoutFrames)
{
    page().html = u"top"_s;
    page().text = u"top text"_s;
    page().links = {u"http://top.com/"_s};
    setFrames({{u"frame"_s, u"frame text"_s, {u"http://frame.com/"_s}}});
    EXPECT_EQ(driver.GetHTMLFromAllFrames(), u"top"_s);
    EXPECT_EQ(driver.GetTextFromAllFrames(), u"top text"_s);
    EXPECT_EQ(driver.GetLinksOnAllFrames(false), QStringList{u"http://top.com/"_s});
}

TEST_F(DriverTest, FramesFollowOneAnotherWithoutTheTopDocument)
{
    page().html = u"top"_s;
    setFrames({{u"<p>1</p>"_s, u"one"_s, {}}, {u"<p>2</p>"_s, u"two"_s, {}}, {u"<p>3</p>"_s, u"three"_s, {}}});
    EXPECT_EQ(driver.GetHTMLFromAllFrames(), u"<p>1</p><p>2</p><p>3</p>"_s);
    EXPECT_EQ(driver.GetTextFromAllFrames(), u"onetwothree"_s);
}

TEST_F(DriverTest, ARefusedFrameEndsTheTextWithWhatThereIs)
{
    setFrames({{u"<p>1</p>"_s, {}, {}}, {u"<p>2</p>"_s, {}, {}, true}, {u"<p>3</p>"_s, {}, {}}});
    EXPECT_EQ(driver.GetHTMLFromAllFrames(), u"<p>1</p>"_s);
    EXPECT_EQ(log.locations(), QStringList{u"Function GetHTMLFromAllFrames"_s});
}

TEST_F(DriverTest, TheHighestFrameCannotBeFetched)
{
    setFrames({{u"first"_s, {}, {}}, {u"second"_s, {}, {}}});
    EXPECT_EQ(driver.GetFrame(0), u"first"_s);
    EXPECT_EQ(driver.GetFrame(1), QString());
    EXPECT_EQ(driver.GetFrame(-1), QString());
    EXPECT_TRUE(log.entries.isEmpty());
}

namespace {
QStringList links(int count, const QString &host)
{
    QStringList all;
    for (int i = 0; i < count; ++i)
        all.append(u"http://%1.com/%2"_s.arg(host).arg(i));
    return all;
}
} // namespace

TEST_F(DriverTest, TheLinksOfAllFramesAreThoseOfTheLastFrameThatHasAny)
{
    page().links = links(7, u"top"_s);
    setFrames({{{}, {}, links(5, u"a"_s)}, {{}, {}, links(3, u"b"_s)}});
    EXPECT_EQ(driver.GetLinksOnAllFrames(false), links(3, u"b"_s));
    setFrames({{{}, {}, links(5, u"a"_s)}, {}});
    EXPECT_EQ(driver.GetLinksOnAllFrames(false), links(5, u"a"_s));
    setFrames({{}, {}});
    EXPECT_EQ(driver.GetLinksOnAllFrames(false), emptyList());
}

TEST_F(DriverTest, AskedForTheTopDocumentAloneItReadsThat)
{
    page().links = links(7, u"top"_s);
    setFrames({{{}, {}, links(5, u"a"_s)}, {{}, {}, links(3, u"b"_s)}});
    EXPECT_EQ(driver.GetLinksOnAllFrames(true), links(7, u"top"_s));
}

TEST_F(DriverTest, ARefusedFrameMakesItTheLinksOfTheTopDocument)
{
    page().links = links(7, u"top"_s);
    setFrames({{{}, {}, links(5, u"a"_s)}, {{}, {}, {}, true}, {{}, {}, links(3, u"b"_s)}});
    EXPECT_EQ(driver.GetLinksOnAllFrames(false), links(7, u"top"_s));
    EXPECT_EQ(log.locations(), QStringList{u"Function GetLinksOnAllFrames"_s});
}

TEST_F(DriverTest, MailAddressesOfThePageNeedTenCharactersOfMarkup)
{
    page().html = u"a@b.com x "_s;
    show();
    EXPECT_EQ(driver.CollectEmail({}, u"@"_s), QStringList{u"a@b.com"_s});
    page().html = u"a@b.com x"_s;
    show();
    EXPECT_TRUE(driver.CollectEmail({}, u"@"_s).isEmpty());
}

// The holder and one reading of a page.

TEST_F(DriverTest, TheHolderPassesOnTheEventsOfTheDriverItHolds)
{
    BrowserHolder holder;
    int closings = 0, refusals = 0;
    QObject::connect(&holder, &BrowserHolder::WindowClosing, &holder, [&] {
        ++closings;
        holder.release(); // inside the driver's own event
    });
    QObject::connect(&holder, &BrowserHolder::NewWindow2, &holder, [&](bool *cancel) { *cancel = ++refusals > 0; });
    EXPECT_THROW(holder->GetSiteUrl(), RuntimeError);
    holder.set(std::make_unique<cIEObject>(log, desktop, clipboard, browsers));
    auto second = std::make_shared<FakeBrowser>(pump);
    holder->InitializeObject(second);
    EXPECT_TRUE(second->popUpIsRefused());
    second->close();
    EXPECT_EQ(closings, 1);
    EXPECT_FALSE(holder.isSet());
    pump.doEvents();
    EXPECT_FALSE(second->popUpIsRefused());
}

TEST_F(DriverTest, ABrowserThatEndsByItselfIsToldAsThatAndNotAsClosed)
{
    BrowserHolder holder;
    QStringList told;
    QObject::connect(&holder, &BrowserHolder::WindowClosing, &holder, [&] { told.append(u"closed"_s); });
    QObject::connect(&holder, &BrowserHolder::Died, &holder, [&] { told.append(u"died"_s); });
    holder.set(std::make_unique<cIEObject>(log, desktop, clipboard, browsers));
    auto second = std::make_shared<FakeBrowser>(pump);
    holder->InitializeObject(second);
    EXPECT_EQ(holder->arrival(), BrowserEngine::Arrival::Arrived);
    second->die();
    EXPECT_EQ(told, QStringList{u"died"_s});
    EXPECT_EQ(holder->arrival(), BrowserEngine::Arrival::Failed);
}

TEST_F(DriverTest, WhatTransfersAskIsTheBrowsersOrNothing)
{
    cIEObject empty{log, desktop, clipboard, browsers};
    EXPECT_EQ(empty.userAgent(), QString());
    EXPECT_EQ(empty.cookiesFor(u"http://a.com/"_s), QString());
    EXPECT_EQ(empty.arrival(), BrowserEngine::Arrival::Failed);
    browser->cookies[u"http://a.com/"_s] = u"a=1"_s;
    EXPECT_EQ(driver.userAgent(), u"Fake/1.0");
    EXPECT_EQ(driver.cookiesFor(u"http://a.com/"_s), u"a=1");
}

TEST_F(DriverTest, OneReadingAsksTheBrowserOnceForEachKindOfContent)
{
    page() = {u"<p>Tea</p>"_s, u"Title"_s, u"Tea"_s, {u"http://a.com/"_s}, 0, {}, {}, {}};
    BrowserHolder holder;
    holder.set(std::make_unique<cIEObject>(log, desktop, clipboard, browsers));
    holder->InitializeObject(browser);
    show();
    PageReading reading(holder);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(reading.html(), u"<p>Tea</p>"_s);
        EXPECT_EQ(reading.title(), u"Title"_s);
        EXPECT_EQ(reading.url(), address);
        EXPECT_EQ(reading.text(), u"Tea"_s);
        EXPECT_EQ(reading.links(), QStringList{u"http://a.com/"_s});
    }
    EXPECT_EQ(browser->reads, 3);
    browser->show(u"http://www.site2.com/"_s);
    EXPECT_EQ(reading.url(), address);
    reading.forget();
    EXPECT_EQ(reading.url(), u"http://www.site2.com/"_s);
    holder.release();
    pump.doEvents();
}
