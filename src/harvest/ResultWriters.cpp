#include "harvest/ResultWriters.h"

#include "controls/cLstBx.h"
#include "pages/Addresses.h"
#include "pages/EmailFinder.h"
#include "pages/PhoneFinder.h"
#include "store/Schema.h"
#include "util/Arrays.h"
#include "util/Incr.h"
#include "util/Text.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr int uniqueServers = 1;
constexpr int saveUrlWithEmail = 3;
constexpr int saveUrlWithPhone = 4;
constexpr int faxOnly = 6;
constexpr int shortestPage = 10;

QString withoutQuotes(QString text)
{
    return text.remove(u'\'');
}

bool isNumeric(const QString &text)
{
    bool numeric = false;
    text.toDouble(&numeric);
    return numeric;
}
} // namespace

ResultWriters::ResultWriters(ErrorReceiver &log, frmSearch &form, DatabaseHolder &database, SavedUrls &savedUrls,
                             PageData &data)
    : mLog(log), mForm(form), mDatabase(database), mSavedUrls(savedUrls), mData(data),
      mSummaryIndex([](const QString &url) { return cIEText::GetServerFromUrl(url, cIEText::hostOnly); })
{
}

bool ResultWriters::exists(const QString &sql)
{
    const Recordset rows = mDatabase->GetRecordset(sql);
    return !(rows.Bof() && rows.Eof());
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
        if (mForm.options.chkSMD(uniqueServers).value() == 1)
            url = cIEText::GetServerFromUrl(url, cIEText::hostOnly);
        url = withoutQuotes(url);
        if (url.isEmpty())
            return;
        if (exists("SELECT * FROM SiteSummary WHERE Url='"_L1 + url + u'\'')) {
            code = AlreadyThere;
            return;
        }
        QString data;
        if (mForm.outputs.chkSavePages.value() == 1 && mForm.outputs.chkSaveToSS.value() == 1)
            data = mData.GetPageData(page, PageData::Target::SiteSummary);
        const QStringList row{recordElement("Title"_L1, page.title()), recordElement("Url"_L1, url),
                              recordElement("FullPage"_L1, data)};
        if (add(u"SiteSummary"_s, row))
            code = data.isEmpty() ? AddedWithoutPage : AddedWithPage;
    });
}

bool ResultWriters::SaveFile(PageReading &page)
{
    return guardedResult(mLog, {module, "Sub SaveFile"_L1}, false, [&](bool &saved) {
        const QString data = mData.GetPageData(page, PageData::Target::File);
        if (data.isEmpty())
            return;
        QString name = cUtility::Trim(mForm.places.txtSFMNDir.text()).toString() + "Page-1"_L1 +
                       (mForm.outputs.cboANSaveType.listIndex() == 0 ? ".htm"_L1 : ".txt"_L1);
        if (mForm.outputs.chkPutInOneFile.value() == 0) {
            while (QFile::exists(name))
                name = cUtility::Incr(name, 4, true, 1, u"", u"1", u"", false);
        }
        QFile file(name);
        if (!file.open(QIODevice::Append))
            throw RuntimeError(ErrorNumber::PathAccessError, file.errorString());
        // The mark tells every reader that the text is UTF-8, whatever encoding the page itself names.
        const QByteArray bytes = (file.size() == 0 ? "\xEF\xBB\xBF" : "") + data.toUtf8() + "\r\n";
        if (file.write(bytes) != bytes.size() || !file.flush())
            throw RuntimeError(ErrorNumber::DeviceIoError, file.errorString());
        saved = true;
    });
}

bool ResultWriters::summaryIndex(PageReading &page, const QString &url, QString &index)
{
    if (!mForm.outputs.chkSaveSummary.isOn())
        return true;
    index = GetSSIndex(page, url);
    return isNumeric(index);
}

bool ResultWriters::SavePassUrl(PageReading &page)
{
    return guardedResult(mLog, {module, "Sub SavePassUrl"_L1}, false, [&](bool &saved) {
        const QString url = withoutQuotes(page.url());
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
        const QString &html = page.html();
        QStringList addresses =
            html.size() < shortestPage ? QStringList() : cIEText::CollectEmail(html, u"@", mLog.ifListening());
        const QString url = mForm.options.chkSMD(saveUrlWithEmail).value() == 1 ? page.url() : QString();
        if (firstOf(addresses).isEmpty())
            return;
        addresses = cUtility::RemoveRepeatsFromArray(addresses);
        if (mForm.blocking.email.on.isOn())
            addresses =
                cUtility::FilterArray(addresses, cLstBx::GetItems(mForm.blocking.email.items, cLstBx::Which::All));
        QString index;
        if (firstOf(addresses).isEmpty() || !summaryIndex(page, {}, index))
            return;
        bool added = false;
        for (const QString &address : std::as_const(addresses)) {
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
        const QString url = mForm.options.chkSMD(saveUrlWithPhone).value() == 1 ? page.url() : QString();
        const bool fax = mForm.options.chkSMD(faxOnly).isOn();
        QStringList numbers =
            cAreaCode::FindPhoneNumbers(page.html(), cUtility::Trim(mForm.areaCodes.txtSBSelAreaCodes.text()), fax);
        if (firstOf(numbers).isEmpty())
            return;
        numbers = cUtility::RemoveRepeatsFromArray(numbers);
        QString index;
        if (!summaryIndex(page, {}, index))
            return;
        bool added = false;
        for (const QString &number : std::as_const(numbers)) {
            if (!number.isEmpty() && !exists("SELECT Number FROM PhoneNumber WHERE Number='"_L1 + number + u'\''))
                added |= add(u"PhoneNumber"_s,
                             {recordElement("SSIndex"_L1, index), recordElement("Number"_L1, number),
                              recordElement("Type"_L1, fax ? u"Fax"_s : u"Any"_s), recordElement("Url"_L1, url)});
        }
        saved = added;
    });
}

QString ResultWriters::GetSSIndex(PageReading &page, const QString &url)
{
    return guardedResult(mLog, {module, "Function GetSSIndex"_L1}, QString(), [&](QString &index) {
        const QString key = url.isEmpty() ? page.url() : url;
        const QString keyServer = url.isEmpty() ? cIEText::GetServerFromUrl(key, cIEText::hostOnly) : QString();
        index = QString::number(mSummaryIndex.find(*mDatabase, key, keyServer));
    });
}
