#include "lists/SavedUrls.h"

#include "app/SettingKeys.h"
#include "store/FixNull.h"
#include "store/Schema.h"
#include "util/Arrays.h"
#include "util/ColumnText.h"
#include "util/Text.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto lineEnd = "\r\n"_L1;

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

// The two parts of an element.
QStringView nameOf(const QString &element)
{
    const qsizetype at = element.indexOf(lineEnd);
    return QStringView(element).left(at < 0 ? element.size() : at);
}

QStringView addressOf(const QString &element)
{
    const qsizetype at = element.indexOf(lineEnd);
    if (at < 0)
        return {};
    const QStringView behind = QStringView(element).mid(at + lineEnd.size());
    const qsizetype end = behind.indexOf(lineEnd);
    return end < 0 ? behind : behind.left(end);
}

void appendTo(QStringList &array, const QString &element)
{
    if (isEmptyArray(array))
        array.clear();
    array.append(element);
}
} // namespace

SavedUrls::SavedUrls(const Context &context, SavedAddresses &saved, const OptionBoxes &options,
                     DatabaseHolder &database, BrowserHolder &browser, SiteRecords &records, Navigation &navigation)
    : mContext(context), mSaved(saved), mOptions(options), mDatabase(database), mBrowser(browser), mRecords(records),
      mNavigation(navigation)
{
}

QString SavedUrls::table(Kind kind) const
{
    return row(kind).family + mSaved.cboANList.list(mSaved.cboANList.listIndex());
}

QString SavedUrls::GetSavedUrl(Answer answer, int index, const QString &item, const QString &name, const QString &url)
{
    return guardedResult(mContext.log, {module, "Function GetSavedUrl"_L1}, QString(), [&](QString &result) {
        const QStringList &array = mSaved.mastrSavedUrlIds;
        const auto isWanted = [&](const QString &element) {
            return !item.isEmpty()   ? element == item
                   : !name.isEmpty() ? nameOf(element) == name
                                     : !url.isEmpty() && addressOf(element) == url;
        };
        const auto found = index < 0                    ? std::find_if(array.begin(), array.end(), isWanted)
                           : index <= upperBound(array) ? array.begin() + index
                                                        : array.end();
        if (found == array.end())
            return;
        if (answer == Answer::Index)
            result = QString::number(found - array.begin());
        else
            result = (answer == Answer::Name ? nameOf(*found) : addressOf(*found)).toString();
    });
}

QString SavedUrls::GetNewMaskName(Kind kind, const QString &otherTable)
{
    return guardedResult(mContext.log, {module, "Function GetNewMaskName"_L1}, QString(), [&](QString &result) {
        result = mNewNames.find(*mDatabase, otherTable.isEmpty() ? table(kind) : otherTable, row(kind).firstName);
    });
}

void SavedUrls::LoadSavedUrls(Kind kind)
{
    guarded(mContext.log, {module, "Sub LoadSavedUrls"_L1}, [&] {
        mSaved.cboANSavedUrls.clear();
        mSaved.mastrSavedUrlIds = emptyList();
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
            appendTo(mSaved.mastrSavedUrlIds, name + lineEnd + FixNull(rows.Fields()["Url"_L1]));
            mSaved.cboANSavedUrls.addItem(name);
        }
    });
    mContext.states.SetStateOfControls();
}

QString SavedUrls::ExistsSavedUrl(const QString &url, const QString &name)
{
    return guardedResult(mContext.log, {module, "Function ExistsSavedUrl"_L1}, QString(), [&](QString &result) {
        const Recordset rows = mDatabase->GetRecordset("SELECT Url FROM "_L1 + name + " WHERE Url='"_L1 + url + u'\'');
        if (rows.isEmpty())
            result = GetNewMaskName(Kind::SavedUrl, name);
    });
}

void SavedUrls::AddSavedUrl(bool report, const QString &letter)
{
    guarded(mContext.log, {module, "Sub AddSavedUrl"_L1}, [&] {
        if (mSaved.mbPassUrlsLoaded)
            return mContext.status.UpDateStatus(u"Can't Add PassUrls"_s);
        if (!mRecords.IsSiteDataSaved())
            return mContext.status.UpDateStatus(u"No data saved for site"_s);
        const QString onShow = mSaved.cboANList.list(mSaved.cboANList.listIndex());
        const QString target = savedUrls.family + (letter.isEmpty() ? onShow : letter);
        const QString url = cUtility::asColumnText(mBrowser->GetSiteUrl());
        const QString name = ExistsSavedUrl(url, target);
        if (name.isEmpty())
            return mContext.status.UpDateStatus(report ? u"Url Exists (%1)"_s.arg(target) : QString());
        // What did not reach the table is neither shown nor told as saved.
        if (!mDatabase->AddRecord({recordElement("MaskName"_L1, name), recordElement("Url"_L1, url)}, -1, target,
                                  rowMarker))
            return;
        if (letter.isEmpty() || letter == onShow) {
            appendTo(mSaved.mastrSavedUrlIds, name + lineEnd + url);
            mSaved.cboANSavedUrls.addItem(name);
            mSaved.cboANSavedUrls.setListIndex(mSaved.cboANSavedUrls.listCount() - 1);
        }
        mContext.status.UpDateStatus(u"%1 Saved (%2)"_s.arg(name, target));
    });
}

void SavedUrls::refillBox()
{
    QStringList names;
    for (const QString &element : std::as_const(mSaved.mastrSavedUrlIds)) {
        if (!element.isEmpty())
            names.append(nameOf(element).toString());
    }
    mSaved.cboANSavedUrls.setItems(names);
}

void SavedUrls::RemoveSavedUrl()
{
    const int index = mSaved.cboANSavedUrls.listIndex();
    const Kind kind = mSaved.mbPassUrlsLoaded ? Kind::PassUrl : Kind::SavedUrl;
    guarded(mContext.log, {module, "Sub RemoveSavedUrl"_L1}, [&] {
        if (index < 0)
            return;
        const QString name = cUtility::Trim(mSaved.cboANSavedUrls.text()).toString();
        mDatabase->DeleteRecords(table(kind), u"MaskName"_s, name, false);
        const QString standing = "SELECT Url FROM "_L1 + table(kind) + " WHERE MaskName='"_L1 + name + u'\'';
        if (!mDatabase->GetRecordset(standing).isEmpty())
            return;
        if (index > upperBound(mSaved.mastrSavedUrlIds))
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange, u"Subscript out of range"_s);
        mSaved.mastrSavedUrlIds[index].clear();
        mSaved.mastrSavedUrlIds = orEmptyList(cUtility::RemoveEmptyItemsFromArray(mSaved.mastrSavedUrlIds));
        refillBox();
        const int count = mSaved.cboANSavedUrls.listCount();
        if (count > 0) {
            mSaved.cboANSavedUrls.setListIndex(std::min(index, count - 1));
        } else {
            if (mSaved.mbPassUrlsLoaded) {
                mSaved.mbPassUrlsLoaded = false;
                mSaved.cboANSavedUrls.setToolTipText(mContext.tips.ifShown(u"Saved Urls"_s));
                LoadSavedUrls(Kind::SavedUrl);
            }
            mSaved.chkUseSavedUrls.setValue(0);
        }
        mContext.status.UpDateStatus(QString::number(count) + row(kind).label);
        if (count > 0 && kind == Kind::PassUrl && mOptions.chkSMA(SMA::OpenNextOnDelete).value() == 1)
            cmdANSavedGo_Click();
    });
    mContext.states.SetStateOfControls();
}

void SavedUrls::cmdANSavedGo_Click()
{
    guarded(mContext.log, {module, "Sub cmdANSavedGo_Click"_L1}, [&] {
        const int index = mSaved.cboANSavedUrls.listIndex();
        if (index < 0)
            return;
        const QString url = GetSavedUrl(Answer::Url, -1, mSaved.mastrSavedUrlIds.value(index), {}, {});
        if (url.isEmpty())
            return;
        Q_EMIT opening();
        mNavigation.OpenSite(url);
        const int option = mSaved.mbPassUrlsLoaded ? SMA::IncrementPassUrl : SMA::IncrementSavedUrl;
        if (mOptions.chkSMA(option).value() == 1 && index + 1 < mSaved.cboANSavedUrls.listCount())
            mSaved.cboANSavedUrls.setListIndex(index + 1);
    });
}

/// Each list has a position of its own.
QString SavedUrls::positionKey() const
{
    return Keys::SavedUrlPos + mSaved.cboANList.text();
}

void SavedUrls::SaveSavedUrlPos()
{
    if (const int index = mSaved.cboANSavedUrls.listIndex(); index >= 0)
        mContext.settings.SaveSetting(Sections::Main, positionKey(), QString::number(index));
}

void SavedUrls::SetSavedUrlPos()
{
    const int index = mContext.settings.GetSetting(Sections::Main, positionKey(), u"0"_s).toInt();
    if (index >= 0 && index < mSaved.cboANSavedUrls.listCount())
        mSaved.cboANSavedUrls.setListIndex(index);
}

void SavedUrls::ResetSavedUrlPos()
{
    mContext.settings.SaveSetting(Sections::Main, positionKey(), u"0"_s);
}

QString SavedUrls::chosenAddress()
{
    const QString name = mSaved.cboANSavedUrls.text();
    return name.isEmpty() ? QString() : GetSavedUrl(Answer::Url, -1, {}, name, {});
}
