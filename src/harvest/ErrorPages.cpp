#include "harvest/ErrorPages.h"

#include "pages/Addresses.h"
#include "util/Text.h"

using namespace Qt::StringLiterals;

namespace {
constexpr QStringView errorPageTexts[] = {u"not found",          u"404",        u"page missing",
                                          u"cannot find server", u"url Broken", u"system cannot find"};

bool isErrorPage(PageReading &page)
{
    return std::any_of(std::begin(errorPageTexts), std::end(errorPageTexts), [&](QStringView text) {
        return cUtility::holdsIgnoringCase(page.html(), text) || cUtility::holdsIgnoringCase(page.title(), text);
    });
}
} // namespace

void ErrorPages::PageNotFound()
{
    guarded(mContext.log, {"frmSearch"_L1, "sub PageNotFound"_L1}, [&] {
        PageReading &page = mVisit.page();
        const qint64 least = mLimits.incNotFoundMinSize.value();
        if ((least != 0 && page.html().size() > least) || !isErrorPage(page))
            return;
        const QString server = cIEText::GetServerFromUrl(page.url(), cIEText::keepAll);
        mContext.status.UpDateStatus(u"404 - Opening Server"_s);
        mVisit.open(server);
        mVisit.wait(mPace.incANTiming.value());
    });
}
