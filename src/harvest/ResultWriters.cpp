#include "harvest/ResultWriters.h"

#include "pages/Addresses.h"
#include "store/Schema.h"
#include "util/ColumnText.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr int uniqueServers = 1;
constexpr int saveUrlWithEmail = 3;
constexpr int saveUrlWithPhone = 4;

/// An address as it stands in its column: no quotes, which would end the text of a statement, and no longer than that.
QString asStored(QString address)
{
    return cUtility::asColumnText(address.remove(u'\''));
}

bool isNumeric(const QString &text)
{
    bool numeric = false;
    text.toDouble(&numeric);
    return numeric;
}
} // namespace

ResultWriters::ResultWriters(ErrorReceiver &log, const Outputs &outputs, const OptionBoxes &options,
                             DatabaseHolder &database, SavedUrls &savedUrls, PageData &data, const Findings &findings)
    : mLog(log), mOutputs(outputs), mOptions(options), mDatabase(database), mSavedUrls(savedUrls), mData(data),
      mFindings(findings),
      mSummaryIndex([](const QString &url) { return cIEText::GetServerFromUrl(url, cIEText::hostOnly); })
{
}

bool ResultWriters::exists(const QString &sql)
{
    return !mDatabase->GetRecordset(sql).isEmpty();
}

bool ResultWriters::add(const QString &table, const QStringList &row)
{
    const bool added = mDatabase->AddRecord(row, -1, table, rowMarker);
    if (added)
        ++mAdded[table];
    return added;
}

int ResultWriters::SaveSummary(PageReading &page)
{
    return guardedResult(mLog, {module, "Sub SaveSummary"_L1}, int(NothingSaved), [&](int &code) {
        QString url = page.url();
        if (isOn(uniqueServers))
            url = cIEText::GetServerFromUrl(url, cIEText::hostOnly);
        url = asStored(url);
        if (url.isEmpty())
            return;
        if (exists("SELECT * FROM SiteSummary WHERE Url='"_L1 + url + u'\'')) {
            code = AlreadyThere;
            return;
        }
        QString data;
        if (mOutputs.chkSavePages.value() == 1 && mOutputs.chkSaveToSS.value() == 1)
            data = mData.GetPageData(page, PageData::Target::SiteSummary);
        const QStringList row{recordElement("Title"_L1, page.title()), recordElement("Url"_L1, url),
                              recordElement("FullPage"_L1, data)};
        if (add(u"SiteSummary"_s, row))
            code = data.isEmpty() ? AddedWithoutPage : AddedWithPage;
    });
}

bool ResultWriters::summaryIndex(PageReading &page, const QString &url, QString &index)
{
    if (!mOutputs.chkSaveSummary.isOn())
        return true;
    index = GetSSIndex(page, url);
    return isNumeric(index);
}

bool ResultWriters::SavePassUrl(PageReading &page)
{
    return guardedResult(mLog, {module, "Sub SavePassUrl"_L1}, false, [&](bool &saved) {
        const QString url = asStored(page.url());
        if (url.isEmpty())
            return;
        const QString table = mSavedUrls.table(SavedUrls::Kind::PassUrl);
        QString index;
        if (exists("SELECT Url FROM "_L1 + table + " WHERE Url='"_L1 + url + u'\'') || !summaryIndex(page, url, index))
            return;
        saved = add(table, {recordElement("SSIndex"_L1, index),
                            recordElement("MaskName"_L1, mSavedUrls.GetNewMaskName(SavedUrls::Kind::PassUrl)),
                            recordElement("Url"_L1, url)});
    });
}

bool ResultWriters::SaveEmail(PageReading &page)
{
    return guardedResult(mLog, {module, "Sub SaveEmail"_L1}, false, [&](bool &saved) {
        const QStringList addresses = mFindings.emails(page);
        const QString url = isOn(saveUrlWithEmail) ? page.url() : QString();
        QString index;
        if (firstOf(addresses).isEmpty() || !summaryIndex(page, {}, index))
            return;
        bool added = false;
        for (const QString &found : addresses) {
            const QString address = cUtility::asColumnText(found);
            if (!address.isEmpty() && !exists("SELECT Address FROM EmailAddress WHERE address='"_L1 + address + u'\''))
                added |= add(u"EmailAddress"_s, {recordElement("SSIndex"_L1, index),
                                                 recordElement("Address"_L1, address), recordElement("Url"_L1, url)});
        }
        saved = added;
    });
}

bool ResultWriters::SavePhone(PageReading &page)
{
    return guardedResult(mLog, {module, "Sub SavePhone"_L1}, false, [&](bool &saved) {
        const QStringList numbers = mFindings.phones(page);
        const QString url = isOn(saveUrlWithPhone) ? page.url() : QString();
        const QString type = mFindings.faxOnly() ? u"Fax"_s : u"Any"_s;
        QString index;
        if (firstOf(numbers).isEmpty() || !summaryIndex(page, {}, index))
            return;
        bool added = false;
        for (const QString &number : numbers) {
            if (!number.isEmpty() && !exists("SELECT Number FROM PhoneNumber WHERE Number='"_L1 + number + u'\''))
                added |= add(u"PhoneNumber"_s, {recordElement("SSIndex"_L1, index), recordElement("Number"_L1, number),
                                                recordElement("Type"_L1, type), recordElement("Url"_L1, url)});
        }
        saved = added;
    });
}

QString ResultWriters::GetSSIndex(PageReading &page, const QString &url)
{
    return guardedResult(mLog, {module, "Function GetSSIndex"_L1}, QString(), [&](QString &index) {
        const QString key = cUtility::asColumnText(url.isEmpty() ? page.url() : url);
        const QString keyServer = url.isEmpty() ? cIEText::GetServerFromUrl(key, cIEText::hostOnly) : QString();
        index = QString::number(mSummaryIndex.find(*mDatabase, key, keyServer));
    });
}
