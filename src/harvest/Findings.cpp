#include "harvest/Findings.h"

#include "controls/cLstBx.h"
#include "pages/EmailFinder.h"
#include "pages/PhoneFinder.h"
#include "util/Arrays.h"
#include "util/Text.h"

namespace {
constexpr int shortestPage = 10;
}

QStringList Findings::emails(PageReading &page) const
{
    const QString &html = page.html();
    QStringList found =
        html.size() < shortestPage ? QStringList() : cIEText::CollectEmail(html, u"@", mLog.ifListening());
    if (firstOf(found).isEmpty())
        return emptyList();
    found = cUtility::RemoveRepeatsFromArray(found);
    if (!mBlocking.on.isOn())
        return found;
    return cUtility::FilterArray(found, cLstBx::GetItems(mBlocking.items, cLstBx::Which::All), mBlocked);
}

QStringList Findings::phones(PageReading &page) const
{
    const QStringList found =
        cAreaCode::FindPhoneNumbers(page.html(), cUtility::Trim(mAreaCodes.txtSBSelAreaCodes.text()), faxOnly());
    return firstOf(found).isEmpty() ? emptyList() : cUtility::RemoveRepeatsFromArray(found);
}

bool Findings::faxOnly() const
{
    return mOptions.chkSMD(SMD::FaxOnly).isOn();
}
