#include "window/commands/SiteOffer.h"

#include "pages/Addresses.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

SiteOffer::SiteOffer(const Context &context, frmSearch &form, BrowserHolder &browser)
    : mContext(context), mForm(form), mBrowser(browser)
{
    connect(&context.status, &StatusLine::told, this, [this](const QString &text) {
        // Asked once the command that told so has ended.
        if (text == "No data saved for site"_L1)
            QMetaObject::invokeMethod(this, &SiteOffer::offer, Qt::QueuedConnection);
    });
}

bool SiteOffer::isPageOnShow()
{
    return mBrowser.isSet() && !cIEText::GetServerFromUrl(mBrowser->GetSiteUrl(), cIEText::hostOnly).isEmpty();
}

void SiteOffer::offer()
{
    if (mAsking || !mForm.mbMainShown || !mForm.runs.idle() || !mForm.browser.mbInitialized)
        return;
    const QScopedValueRollback<bool> asking(mAsking, true);
    if (!isPageOnShow())
        return mContext.dialogs.tell(u"No result page"_s,
                                     u"Search for something in the browser first: the right button on Go lists search "
                                     u"services. Go then visits the results."_s);
    const auto answer = mContext.dialogs.ask(
        u"Site not known"_s, u"Trawlex has no record of how to read this site's result pages. Make one now?"_s,
        UserDialogs::Icon::Question, UserDialogs::Answer::No);
    if (answer != UserDialogs::Answer::Yes)
        return;
    mForm.frame.sstMiscOptions.setTab(Tab::Sites);
    mForm.frame.sstSettings.setTab(Tab::Misc);
    mForm.frame.sstSearch.setTab(Tab::Settings);
    Q_EMIT accepted();
}
