#include "lists/SelectUrls.h"

#include "app/OptionNumbers.h"
#include "pages/Addresses.h"
#include "pages/EmailFinder.h"
#include "store/FixNull.h"
#include "store/Schema.h"
#include "util/ColumnText.h"

using namespace Qt::StringLiterals;

/// What is to be added: the whole address or its server; "" for what is no link. An item of a base is a piece of an
/// address and taken as it stands.
QString SelectUrls::address(const QString &url)
{
    const bool base = mDesk.usesBase();
    QString found = url.isEmpty() ? mBrowser->GetSiteUrl() : url;
    const bool untested = base && !url.isEmpty();
    if (!untested && cIEText::IsThisEmailOrLink(found, !url.isEmpty()) != cIEText::TextKind::Link)
        return {};
    if (!base && mOptions.chkSMD(SMD::UniqueInSelect).isOn())
        found = cIEText::GetServerFromUrl(found, cIEText::hostOnly);
    return cUtility::asColumnText(found);
}

QString SelectUrls::note(const QString &url)
{
    const bool titles = mOptions.chkSMD(SMD::TitleAsNote).value() == 1;
    if (titles && url.isEmpty())
        return mBrowser->GetSiteTitle();
    if (titles && mDesk.usesBase())
        return u"Use Base List Item"_s;
    return mContext.dialogs.input(u"Enter a note for site."_s, u"Site Note"_s, u"Check this site"_s);
}

QString SelectUrls::add(const QString &table, const QString &url)
{
    const QString marked = address(url);
    if (marked.isEmpty())
        return u"Browser is not on a site"_s;
    const QString remark = note(url);
    if (remark.isEmpty())
        return u"Not added. No Note provided"_s;
    if (!mDatabase->GetRecordset("SELECT * FROM "_L1 + table + " WHERE Url='"_L1 + marked + u'\'').isEmpty())
        return u"Url exists"_s;
    const QStringList row{recordElement("Url"_L1, marked), recordElement("Note"_L1, remark)};
    if (!mDatabase->AddRecord(row, -1, table, rowMarker))
        return u"Not added. "_s + StoreFaults::text(mDatabase->fault());
    return table + ", Url Added"_L1;
}

void SelectUrls::AddSelectUrls(const QString &table, const QString &url)
{
    guarded(mContext.log, {"frmSearch"_L1, "Sub AddSelectUrls"_L1}, [&] {
        if (!mPanel.mbInitialized)
            return mContext.status.UpDateStatus(u"Not initialized"_s);
        if (!table.isEmpty())
            mContext.status.UpDateStatus(add(table, url));
    });
}
