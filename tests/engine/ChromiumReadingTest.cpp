#include "ChromiumFixture.h"

using namespace Qt::Literals::StringLiterals;

using ChromiumReading = ChromiumTest;

TEST_F(ChromiumReading, BlankPageAnswersWithoutAnError)
{
    open(u"about:blank"_s);
    EXPECT_EQ(browser->LocationURL(), u"about:blank"_s);
    EXPECT_EQ(browser->LocationName(), u"about:blank"_s);
    EXPECT_EQ(browser->documentPart(BrowserEngine::Part::Text), u""_s);
    EXPECT_EQ(browser->frameCount(), 0);
    EXPECT_EQ(browser->links(), QStringList());
}

TEST_F(ChromiumReading, ContentIsMarkupTitleAndAddress)
{
    server().page("/content", "<title> The  title </title><p id=x>one<p>two");
    open(here(u"/content?a=1#part"_s));
    const PageContent content = browser->content();
    EXPECT_EQ(content.html, u"<head><title> The  title </title></head><body><p id=\"x\">one</p><p>two</p></body>"_s);
    EXPECT_EQ(content.title, u"The title"_s);
    EXPECT_EQ(content.url, here(u"/content?a=1#part"_s));
    EXPECT_EQ(browser->LocationURL(), content.url);
    EXPECT_EQ(browser->documentPart(BrowserEngine::Part::Html), content.html);
    EXPECT_EQ(browser->documentPart(BrowserEngine::Part::Text), u"one\n\ntwo"_s);
}
