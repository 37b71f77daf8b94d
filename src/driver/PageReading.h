// One page as one screening sees it: each kind of content is read from the browser at most once, when first asked for,
// so that all decisions and all rows of a page rest on the same text.
#pragma once

#include "driver/BrowserHolder.h"

#include <optional>

class PageReading
{
  public:
    explicit PageReading(BrowserHolder &browser) : mBrowser(browser) {}

    /// False when the browser does not give the page; everything of it is empty then.
    [[nodiscard]] bool isReadable();
    /// The browser has been asked for it.
    [[nodiscard]] bool isAsked() const { return mContent.has_value(); }
    [[nodiscard]] const QString &html() { return content().html; }
    [[nodiscard]] const QString &title() { return content().title; }
    [[nodiscard]] const QString &url() { return content().url; }
    [[nodiscard]] const QString &text();
    [[nodiscard]] const QStringList &links();
    /// The browser has been sent elsewhere: read anew.
    void forget();

  private:
    const PageContent &content();

    BrowserHolder &mBrowser;
    std::optional<PageContent> mContent;
    bool mReadable = false;
    std::optional<QString> mText;
    std::optional<QStringList> mLinks;
};
