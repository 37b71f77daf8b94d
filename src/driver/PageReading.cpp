#include "driver/PageReading.h"

const PageContent &PageReading::content()
{
    if (!mContent) {
        mContent = mBrowser->GetPage();
        mReadable = mContent.has_value();
    }
    if (!mContent)
        mContent.emplace();
    return *mContent;
}

bool PageReading::isReadable()
{
    content();
    return mReadable;
}

const QString &PageReading::text()
{
    if (!mText)
        mText = mBrowser->GetBrowserText();
    return *mText;
}

const QStringList &PageReading::links()
{
    if (!mLinks)
        mLinks = mBrowser->GetLinksOnWebPage();
    return *mLinks;
}

void PageReading::forget()
{
    mContent.reset();
    mText.reset();
    mLinks.reset();
}
