#include "harvest/PageCollecting.h"

#include "controls/cLstBx.h"
#include "util/ColumnText.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
}

bool PageCollecting::isThere() const
{
    return mBrowser.isSet() && mBrowser->arrival() != BrowserEngine::Arrival::Pending;
}

void PageCollecting::collectUrl(int list)
{
    const QString url = cUtility::asColumnText(mBrowser->GetSiteUrl());
    if (!cLstBx::DoesItemExist(mDesk.list(list), url))
        mDesk.list(list).addItem(url);
}

QString PageCollecting::add(int list, const QStringList &found)
{
    if (firstOf(found).isEmpty())
        return {};
    ListBox &target = mDesk.list(list);
    cLstBx::PopulateListBox(target, found, true, false);
    return u"%1 loaded "_s.arg(target.listCount()) + mDesk.listName(list);
}

QString PageCollecting::CollectEmailMN(int list)
{
    return guardedResult(mLog, {module, "Function CollectEmailMN"_L1}, QString(), [&](QString &told) {
        PageReading page(mBrowser);
        told = add(list, mFindings.emails(page));
    });
}

QString PageCollecting::CollectPhoneMN(int list)
{
    return guardedResult(mLog, {module, "Function CollectPhoneMN"_L1}, QString(), [&](QString &told) {
        PageReading page(mBrowser);
        told = add(list, mFindings.phones(page));
    });
}
