// What the free-standing browser gives to read.
#include "ChromiumFixture.h"

#include <QClipboard>
#include <QGuiApplication>

using Part = BrowserEngine::Part;
using namespace Qt::Literals::StringLiterals;

using ChromiumReading = ChromiumTest;

TEST_F(ChromiumReading, ABlankPageAnswersWithoutAnError)
{
    open(u"about:blank"_s);
    EXPECT_EQ(str(browser->LocationURL()), "about:blank");
    EXPECT_EQ(str(browser->LocationName()), "about:blank");
    EXPECT_EQ(str(text()), "");
    EXPECT_EQ(browser->frameCount(), 0);
    EXPECT_EQ(browser->links(), QStringList());
}

TEST_F(ChromiumReading, ContentIsMarkupTitleAndAddress)
{
    server().page("/content", "<title> The  title </title><p id=x>one<p>two");
    open(here(u"/content?a=1#part"_s));
    const PageContent content = browser->content();
    EXPECT_EQ(str(content.html), "<head><title> The  title </title></head><body><p id=\"x\">one</p><p>two</p></body>");
    EXPECT_EQ(str(content.title), "The title");
    EXPECT_EQ(str(content.url), str(here(u"/content?a=1#part"_s)));
    EXPECT_EQ(browser->LocationURL(), content.url);
    EXPECT_EQ(browser->LocationName(), content.title);
    EXPECT_EQ(browser->documentPart(Part::Html), content.html);
    EXPECT_EQ(str(text()), "one\n\ntwo");
}

TEST_F(ChromiumReading, APageWithoutATitleIsNamedByItsAddress)
{
    const QString address = show("<p>no name");
    EXPECT_EQ(str(browser->LocationName()), str(address));
    EXPECT_EQ(str(browser->content().title), str(address));
}

TEST_F(ChromiumReading, LinksAreResolvedInDocumentOrderWithRepeats)
{
    server().page("/base/links",
                  "<a href=one>1</a><a name=none>no address</a><map><area href='../two?a=b c'></map>"
                  "<svg><a href='/drawing'><text>x</text></a></svg><a href='mailto:a@b.test'>m</a>"
                  "<a href='javascript:void(0)'>s</a><a href='one'>again</a><a href='HTTP://Other.TEST'>o</a>");
    openPath(u"/base/links"_s);
    EXPECT_EQ(str(browser->links()),
              str(QStringList{here(u"/base/one"_s), here(u"/two?a=b%20c"_s), u"mailto:a@b.test"_s,
                              u"javascript:void(0)"_s, here(u"/base/one"_s), u"http://other.test/"_s}));
}

TEST_F(ChromiumReading, WhatThePageRedefinesIsNotSeen)
{
    const QString address = show(R"(<title>real</title><form name=links></form><img name=documentElement>
        <form name=title><input name=innerHTML></form><a href=/x>x</a><img id=trawlexReader>
        <img id=reader><script>
        Object.defineProperty(Element.prototype, 'innerHTML', { get: () => 'false' });
        Object.defineProperty(HTMLElement.prototype, 'innerText', { get: () => 'false' });
        Object.defineProperty(Document.prototype, 'links', { get: () => [] });
        Array.from = () => ['false']; Array.prototype.map = () => ['false'];
        </script>)");
    EXPECT_EQ(str(browser->links()), str(here(u"/x"_s)));
    EXPECT_EQ(str(browser->LocationName()), "real");
    EXPECT_TRUE(browser->content().html.startsWith("<head><title>real"_L1));
    EXPECT_EQ(str(browser->content().url), str(address));
    EXPECT_EQ(str(text().trimmed()), "x");
}

TEST_F(ChromiumReading, ThePageDoesNotSeeTheReader)
{
    show("<title>a</title><script>setTimeout(() => document.title = Symbol.for('reader') in window, 200)</script>");
    EXPECT_EQ(str(browser->LocationName()), "a");
    EXPECT_TRUE(waitForTitle(u"false"_s));
}

TEST_F(ChromiumReading, HalvesOfCharactersDoNotHurt)
{
    show("<meta charset=utf-8><body><script>document.body.textContent = '\\ud800 \\udfff \\ud83d\\ude00 "
         "\xc3\xa4'</script>");
    const QString expected = u"\ufffd \ufffd \U0001F600 \u00e4"_s;
    EXPECT_TRUE(text() == expected) << str(text());
    EXPECT_TRUE(browser->content().html.endsWith(expected + u"</body>"_s));
}

TEST_F(ChromiumReading, DocumentsThatAreNoHtmlAreReadToo)
{
    server().route("/drawing", {.body = "<svg xmlns='http://www.w3.org/2000/svg'><title>T</title><text>t</text></svg>",
                                .contentType = "image/svg+xml"});
    openPath(u"/drawing"_s);
    EXPECT_EQ(str(browser->LocationName()), "T");
    EXPECT_EQ(str(text()), "Tt");
    server().route("/plain", {.body = "a <b>", .contentType = "text/plain"});
    openPath(u"/plain"_s);
    EXPECT_EQ(str(text()), "a <b>");
}

TEST_F(ChromiumReading, FramesAreReadByTheirIndex)
{
    server().page("/one", "<title>1</title>first <a href=x>x</a>");
    server().page("/two", "<title>2</title>second");
    show("<title>top</title><iframe src=/one></iframe><iframe src=/two></iframe><iframe></iframe>");
    EXPECT_EQ(browser->frameCount(), 3);
    EXPECT_EQ(str(browser->framePart(0, Part::Text)), "first x");
    EXPECT_EQ(str(browser->framePart(1, Part::Html)), "<head><title>2</title></head><body>second</body>");
    EXPECT_EQ(str(browser->framePart(2, Part::Text)), "");
    EXPECT_EQ(str(browser->frameLinks(0)), str(here(u"/x"_s)));
    EXPECT_EQ(browser->frameLinks(1), QStringList());
    EXPECT_EQ(errorOf([&] { (void)browser->framePart(3, Part::Html); }), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(ChromiumReading, FramesOfAFramesetAreReadToo)
{
    server().page("/left", "left");
    server().page("/right", "right");
    show("<frameset cols='50%,50%'><frame src=/left><frame src=/right></frameset>");
    EXPECT_EQ(browser->frameCount(), 2);
    EXPECT_EQ(str(browser->framePart(0, Part::Text) + browser->framePart(1, Part::Text)), "leftright");
}

TEST_F(ChromiumReading, AFrameOfAnotherSiteIsRefused)
{
    server().page("/frame", "secret <a href=/x>x</a>");
    show("<iframe src='" + elsewhere(u"/frame"_s).toUtf8() + "'></iframe>");
    EXPECT_EQ(browser->frameCount(), 1);
    EXPECT_EQ(errorOf([&] { (void)browser->framePart(0, Part::Html); }), EngineError::AccessDenied);
    EXPECT_EQ(errorOf([&] { (void)browser->frameLinks(0); }), EngineError::AccessDenied);
    EXPECT_EQ(str(text()), "") << "the page itself can still be read";
}

TEST_F(ChromiumReading, APageOfAHundredMegabytesIsReadWhole)
{
    const QByteArray line = "<p>" + QByteArray("0123456789 abcdefghijk ").repeated(1000) + "\xc3\xa4</p>\n";
    const qsizetype lines = 100'000'000 / line.size();
    server().page("/big", "<meta charset=utf-8><title>big</title><style>body { display: none }</style>" +
                              line.repeated(lines) + "<p>end</p>");
    browser->Navigate(here(u"/big"_s));
    ASSERT_TRUE(waitFor([&] { return told.contains(u"ended"_s); }, 40000));
    server().page("/big", "");
    QElapsedTimer clock;
    clock.start();
    const PageContent content = browser->content();
    EXPECT_LT(clock.elapsed(), 30000);
    EXPECT_EQ(content.html.count(QString::fromUtf8(line)), lines);
    EXPECT_TRUE(content.html.endsWith("<p>end</p></body>"_L1));
    EXPECT_EQ(str(content.title), "big");
    EXPECT_EQ(str(content.url), str(here(u"/big"_s)));
}

TEST_F(ChromiumReading, ManyLinksAreReadWhole)
{
    show("<script>for (let i = 0; i < 50000; ++i) { const a = document.createElement('a'); a.href = '/link' + i;"
         "document.documentElement.append(a); }</script>");
    const QStringList links = browser->links();
    ASSERT_EQ(links.size(), 50000);
    EXPECT_EQ(str(links.first()), str(here(u"/link0"_s)));
    EXPECT_EQ(str(links.last()), str(here(u"/link49999"_s)));
}

TEST_F(ChromiumReading, TheSelectionGoesToTheClipboard)
{
    show("<p id=p>one <b>two</b></p><script>getSelection().selectAllChildren(p)</script>");
    QGuiApplication::clipboard()->setText(u"before"_s);
    browser->copySelection();
    EXPECT_EQ(str(QGuiApplication::clipboard()->text()), "one two");
}

TEST_F(ChromiumReading, TheWindowTakesItsPlaceAndSize)
{
    browser->setLeft(40);
    browser->setTop(30);
    browser->setWidth(700);
    browser->setHeight(500);
    show("<title>-</title><script>setInterval(() => {"
         "document.title = [screenX, screenY, outerWidth, outerHeight].join(); }, 20)</script>");
    EXPECT_TRUE(waitForTitle(u"40,30,700,500"_s)) << str(browser->LocationName());
}

TEST_F(ChromiumReading, SavingIsTheUsersOwn)
{
    EXPECT_EQ(errorOf([&] { browser->saveAs(); }), EngineError::CannotDo);
}
