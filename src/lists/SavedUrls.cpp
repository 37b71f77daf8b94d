#include "lists/SavedUrls.h"

#include "store/FixNull.h"
#include "store/Schema.h"
#include "util/Arrays.h"
#include "util/Text.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto section = "SecFrmSearch"_L1;
constexpr auto lineEnd = "\r\n"_L1;
constexpr int openNextOnDelete = 4;
constexpr int incrementPassUrl = 5;
constexpr int incrementSavedUrl = 6;

struct KindRow
{
    QLatin1StringView family;
    QLatin1StringView firstName;
    QLatin1StringView label;
};

constexpr KindRow passUrls{"PassUrls"_L1, "PassUrl-99"_L1, " Pass Urls"_L1};
constexpr KindRow savedUrls{"RPgUrls"_L1, "Results-99"_L1, " Saved Links"_L1};

const KindRow &row(SavedUrls::Kind kind)
{
    return kind == SavedUrls::Kind::PassUrl ? passUrls : savedUrls;
}

bool isEmptyArray(const QStringList &array)
{
    return upperBound(array) == 0 && array.constFirst().isEmpty();
}

void appendTo(QStringList &array, const QString &element)
{
    if (isEmptyArray(array))
        array.clear();
    array.append(element);
}
} // namespace

SavedUrls::SavedUrls(ErrorReceiver &log, frmSearch &form, StatusLine &status, ControlStates &states,
                     SettingsStore &settings, DatabaseHolder &database, BrowserHolder &browser, SiteRecords &records,
                     Navigation &navigation)
    : mLog(log), mForm(form), mStatus(status), mStates(states), mSettings(settings), mDatabase(database),
      mBrowser(browser), mRecords(records), mNavigation(navigation)
{
}

QString SavedUrls::table(Kind kind) const
{
    return row(kind).family + mForm.saved.cboANList.list(mForm.saved.cboANList.listIndex());
}

QString SavedUrls::GetSavedUrl(Answer answer, int index, const QString &item, const QString &name, const QString &url)
{
    return guardedResult(mLog, {module, "Function GetSavedUrl"_L1}, QString(), [&](QString &result) {
        const QStringList &array = mForm.saved.mastrSavedUrlIds;
        for (int i = 0; i <= upperBound(array); ++i) {
            const QStringList parts = array[i].split(lineEnd);
            const QString address = parts.value(1);
            const bool hit = index >= 0        ? i == index
                             : !item.isEmpty() ? array[i] == item
                             : !name.isEmpty() ? parts[0] == name
                                               : !url.isEmpty() && address == url;
            if (!hit)
                continue;
            result = answer == Answer::Index ? QString::number(i) : answer == Answer::Name ? parts[0] : address;
            return;
        }
    });
}

QString SavedUrls::GetNewMaskName(Kind kind, const QString &otherTable)
{
    return guardedResult(mLog, {module, "Function GetNewMaskName"_L1}, QString(), [&](QString &result) {
        result = mNewNames.find(*mDatabase, otherTable.isEmpty() ? table(kind) : otherTable, row(kind).firstName);
    });
}

void SavedUrls::LoadSavedUrls(Kind kind)
{
    guarded(mLog, {module, "Sub LoadSavedUrls"_L1}, [&] {
        mForm.saved.cboANSavedUrls.clear();
        mForm.saved.mastrSavedUrlIds = emptyList();
        Recordset rows = mDatabase->GetRecordset("SELECT MaskName,Url FROM "_L1 + table(kind));
        std::optional<MaskNames> names; // read when the first row without a name asks for it
        for (; !rows.Eof(); rows.MoveNext()) {
            QString name = FixNull(rows.Fields()["MaskName"_L1]);
            if (name.isEmpty()) {
                if (!names)
                    names.emplace(*mDatabase, table(kind), row(kind).firstName);
                name = names->next();
                rows.Fields()["MaskName"_L1].setValue(name);
                rows.Update();
            }
            appendTo(mForm.saved.mastrSavedUrlIds, name + lineEnd + FixNull(rows.Fields()["Url"_L1]));
            mForm.saved.cboANSavedUrls.addItem(name);
        }
    });
    mStates.SetStateOfControls();
}

QString SavedUrls::ExistsSavedUrl(const QString &url, const QString &name)
{
    return guardedResult(mLog, {module, "Function ExistsSavedUrl"_L1}, QString(), [&](QString &result) {
        const Recordset rows = mDatabase->GetRecordset("SELECT Url FROM "_L1 + name + " WHERE Url='"_L1 + url + u'\'');
        if (rows.Bof() && rows.Eof())
            result = GetNewMaskName(Kind::SavedUrl, name);
    });
}

void SavedUrls::AddSavedUrl(bool report, const QString &letter)
{
    guarded(mLog, {module, "Sub AddSavedUrl"_L1}, [&] {
        if (mForm.saved.mbPassUrlsLoaded)
            return mStatus.UpDateStatus(u"Can't Add PassUrls"_s);
        if (!mRecords.IsSiteDataSaved())
            return mStatus.UpDateStatus(u"No data saved for site"_s);
        const QString onShow = mForm.saved.cboANList.list(mForm.saved.cboANList.listIndex());
        const QString target = savedUrls.family + (letter.isEmpty() ? onShow : letter);
        const QString url = mBrowser->GetSiteUrl();
        const QString name = ExistsSavedUrl(url, target);
        if (name.isEmpty())
            return mStatus.UpDateStatus(report ? u"Url Exists (%1)"_s.arg(target) : QString());
        if (letter.isEmpty() || letter == onShow) {
            appendTo(mForm.saved.mastrSavedUrlIds, name + lineEnd + url);
            mForm.saved.cboANSavedUrls.addItem(name);
            mForm.saved.cboANSavedUrls.setListIndex(mForm.saved.cboANSavedUrls.listCount() - 1);
        }
        // What did not reach the table is not told as saved.
        if (mDatabase->AddRecord({recordElement("MaskName"_L1, name), recordElement("Url"_L1, url)}, -1, target,
                                 rowMarker))
            mStatus.UpDateStatus(u"%1 Saved (%2)"_s.arg(name, target));
    });
}

void SavedUrls::refillBox()
{
    mForm.saved.cboANSavedUrls.clear();
    for (const QString &element : std::as_const(mForm.saved.mastrSavedUrlIds)) {
        if (!element.isEmpty())
            mForm.saved.cboANSavedUrls.addItem(element.section(lineEnd, 0, 0));
    }
}

void SavedUrls::RemoveSavedUrl()
{
    const int index = mForm.saved.cboANSavedUrls.listIndex();
    const Kind kind = mForm.saved.mbPassUrlsLoaded ? Kind::PassUrl : Kind::SavedUrl;
    guarded(mLog, {module, "Sub RemoveSavedUrl"_L1}, [&] {
        if (index < 0)
            return;
        mDatabase->DeleteRecords(table(kind), u"MaskName"_s,
                                 cUtility::Trim(mForm.saved.cboANSavedUrls.text()).toString(), false);
        if (index > upperBound(mForm.saved.mastrSavedUrlIds))
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange, u"Subscript out of range"_s);
        mForm.saved.mastrSavedUrlIds[index].clear();
        mForm.saved.mastrSavedUrlIds = orEmptyList(cUtility::RemoveEmptyItemsFromArray(mForm.saved.mastrSavedUrlIds));
        refillBox();
        const int count = mForm.saved.cboANSavedUrls.listCount();
        if (count > 0) {
            mForm.saved.cboANSavedUrls.setListIndex(std::min(index, count - 1));
        } else {
            if (mForm.saved.mbPassUrlsLoaded) {
                mForm.saved.mbPassUrlsLoaded = false;
                mForm.saved.cboANSavedUrls.setToolTipText(mForm.options.chkSMV(0).value() == 1 ? u"Saved Urls"_s
                                                                                               : QString());
                LoadSavedUrls(Kind::SavedUrl);
            }
            mForm.saved.chkUseSavedUrls.setValue(0);
        }
        mStatus.UpDateStatus(QString::number(count) + row(kind).label);
        if (count > 0 && kind == Kind::PassUrl && mForm.options.chkSMA(openNextOnDelete).value() == 1)
            cmdANSavedGo_Click();
    });
    mStates.SetStateOfControls();
}

void SavedUrls::cmdANSavedGo_Click()
{
    guarded(mLog, {module, "Sub cmdANSavedGo_Click"_L1}, [&] {
        const int index = mForm.saved.cboANSavedUrls.listIndex();
        if (index < 0)
            return;
        const QString url = GetSavedUrl(Answer::Url, -1, mForm.saved.mastrSavedUrlIds.value(index), {}, {});
        if (url.isEmpty())
            return;
        mNavigation.OpenSite(url);
        const int option = mForm.saved.mbPassUrlsLoaded ? incrementPassUrl : incrementSavedUrl;
        if (mForm.options.chkSMA(option).value() == 1 && index + 1 < mForm.saved.cboANSavedUrls.listCount())
            mForm.saved.cboANSavedUrls.setListIndex(index + 1);
    });
}

void SavedUrls::SaveSavedUrlPos()
{
    if (const int index = mForm.saved.cboANSavedUrls.listIndex(); index >= 0)
        mSettings.SaveSetting(section, "ANListIndex"_L1 + mForm.saved.cboANList.text(), QString::number(index));
}

void SavedUrls::SetSavedUrlPos()
{
    const int index = mSettings.GetSetting(section, "ANListIndex"_L1 + mForm.saved.cboANList.text(), u"0"_s).toInt();
    if (index >= 0 && index < mForm.saved.cboANSavedUrls.listCount())
        mForm.saved.cboANSavedUrls.setListIndex(index);
}
