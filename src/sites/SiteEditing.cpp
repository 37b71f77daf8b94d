#include "sites/SiteEditing.h"

#include "pages/EmailFinder.h"
#include "pages/LinkStages.h"
#include "store/FixNull.h"
#include "store/Schema.h"
#include "util/AddressList.h"
#include "util/ColumnText.h"
#include "util/Text.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr int firstFamilyBox = 2, lastBox = 8, noBox = 9;
constexpr int lastSlot = 5;
constexpr auto emptyNumber = "000"_L1;

bool stands(const ComboBox &box)
{
    const QString text = box.text();
    return !text.isEmpty() && std::any_of(box.items().begin(), box.items().end(),
                                          [&](const QString &item) { return cUtility::equalIgnoringCase(item, text); });
}

/// The number of a "contains" or "contains not" box among those of its kind; none for other fields.
std::optional<int> countBox(SiteField field)
{
    if (field == SiteField::UrlMC)
        return 0;
    if (field == SiteField::UrlMNC)
        return 1;
    return std::nullopt;
}

/// The number that a stored text spells; nothing for a text that spells none.
std::optional<int> numberIn(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}
} // namespace

SiteEditing::SiteEditing(ErrorReceiver &log, SiteEditor &editor, const RunFlags &runs, DatabaseHolder &database,
                         SiteRecords &records)
    : mLog(log), mEditor(editor), mRuns(runs), mDatabase(database), mRecords(records)
{
}

int SiteEditing::SDTranslateSDtoSDC(SiteField field)
{
    if (field == SiteField::SiteName)
        return 1;
    const int box = static_cast<int>(field) - static_cast<int>(SiteField::Url) + firstFamilyBox;
    return box >= firstFamilyBox && box <= lastBox ? box : noBox;
}

QString SiteEditing::DoesSDExist() const
{
    return IsSDSaved(1) ? mEditor.cboSD(1).text() : QString();
}

bool SiteEditing::IsSDSaved(int box) const
{
    return stands(mEditor.cboSD(box));
}

Recordset SiteEditing::recordOf(const QString &site)
{
    return mDatabase->GetRecordset("SELECT * FROM SearchSites WHERE SiteName='"_L1 + site + u'\'');
}

QString SiteEditing::ModifySearchData(SiteField field, Change change)
{
    return guardedResult(mLog, {module, "Function ModifySearchData"_L1}, QString(), [&](QString &message) {
        const QString site = DoesSDExist();
        const bool addsSite = field == SiteField::SiteName && change == Change::Add;
        if (site.isEmpty() && !addsSite) {
            message = u"Site doesn't exist"_s;
            return;
        }
        if (field == SiteField::SiteName) {
            message = addsSite ? AddSearchSite() : DeleteSearchSite();
            return;
        }
        const QString value = boxValue(field);
        if (value.isEmpty())
            return;
        if (field == SiteField::Url) {
            // An address serves one record at most; so one that is stored is refused here for whatever is to be done.
            if (const QString owner = mRecords.GetSiteNameFromUrl(value); !owner.isEmpty()) {
                message = "Exists in "_L1 + owner;
                return;
            }
        }
        message = GetSearchSiteData(site, value, field, change);
    });
}

/// The text of the field's box as a record holds it: where the texts are counted, with its count. "" for an empty box.
QString SiteEditing::boxValue(SiteField field) const
{
    const QString text = mEditor.cboSD(SDTranslateSDtoSDC(field)).text();
    const auto count = countBox(field);
    if (text.isEmpty() || !count)
        return cUtility::asColumnText(text);
    return JoinSD(text, mEditor.incSDMCMNC(*count).value());
}

QString SiteEditing::GetSearchSiteData(const QString &site, const QString &value, SiteField field, Change change)
{
    constexpr Place place{module, "Function GetSearchSiteData"_L1};
    return guardedResult(mLog, place, QString(), [&](QString &message) {
        if (mbLoadingSD)
            return;
        Recordset record = recordOf(site);
        const QLatin1StringView name = SiteRecords::fieldName(field);
        if (!record.isEmpty() && SiteRecords::isFamily(field)) {
            message = writeSlot(record, field, value, change);
            return;
        }
        if (change == Change::Remove) {
            message = SeparateSD(0, value) + " not deleted"_L1;
        } else if (record.isEmpty()) {
            message = u"Not added"_s;
        } else {
            record.Fields()[name].setValue(value);
            record.Update();
            message = name + " UpDated"_L1;
        }
    });
}

QString SiteEditing::writeSlot(Recordset &record, SiteField field, const QString &value, Change change)
{
    const auto slotHolding = [&](const QString &wanted) {
        for (int slot = 1; slot <= lastSlot; ++slot) {
            QString name = SiteRecords::slotName(field, slot);
            if (cUtility::equalIgnoringCase(FixNull(record.Fields()[name]), wanted))
                return name;
        }
        return QString();
    };
    const QString shown = SeparateSD(0, value);
    const bool adds = change == Change::Add;
    if (adds && !slotHolding(value).isEmpty())
        return shown + " exists"_L1;
    const QString slot = slotHolding(adds ? QString() : value);
    if (slot.isEmpty())
        return adds ? u"Not added"_s : shown + " not deleted"_L1;
    record.Fields()[slot].setValue(adds ? value : QString());
    record.Update();
    record.Close();
    LoadSearchSiteData(static_cast<int>(field));
    return shown + (adds ? " added"_L1 : " deleted"_L1);
}

QString SiteEditing::AddSearchSite()
{
    return guardedResult(mLog, {module, "Function AddSearchSite"_L1}, QString(), [&](QString &message) {
        const QString name = cUtility::asColumnText(mEditor.cboSD(1).text());
        if (name.isEmpty()) {
            message = u"No Site Name Provided"_s;
            return;
        }
        if (!recordOf(name).isEmpty()) {
            message = name + " exists"_L1;
            return;
        }
        QStringList elements;
        message = CollectSearchSiteData(elements);
        if (!message.isEmpty() || !mDatabase->AddRecord(elements, -1, u"SearchSites"_s, rowMarker))
            return;
        message = "Added "_L1 + name;
        mEditor.cboSD(1).addItem(name);
    });
}

QString SiteEditing::CollectSearchSiteData(QStringList &elements)
{
    const QString name = cUtility::asColumnText(mEditor.cboSD(1).text());
    const QString url = boxValue(SiteField::Url);
    if (name.isEmpty() || url.isEmpty())
        return u"Url is required"_s;
    if (cIEText::IsThisEmailOrLink(url, true) != cIEText::TextKind::Link)
        return url + " is invalid"_L1;
    if (const QString owner = mRecords.GetSiteNameFromUrl(url); !owner.isEmpty())
        return url + " exists in "_L1 + owner;
    const bool hasLength = mEditor.cboSDLen.listIndex() >= 0 && mEditor.incSDUrlLen.value() >= 1;
    elements = {
        recordElement("SiteName"_L1, name),
        recordElement("CnvHex"_L1, QString::number(mEditor.chkSDHex.value())),
        recordElement("UrlLen"_L1,
                      hasLength ? JoinSD(QString::number(mEditor.cboSDLen.listIndex()), mEditor.incSDUrlLen.value())
                                : QString()),
        recordElement("Group"_L1, QString::number(mEditor.cboSDGroup.listIndex())),
        recordElement("Url-1"_L1, url),
        recordElement("BeginUrl-1"_L1, boxValue(SiteField::BeginUrl)),
        recordElement("EndUrl-1"_L1, boxValue(SiteField::EndUrl)),
        recordElement("UrlMC-1"_L1, boxValue(SiteField::UrlMC)),
        recordElement("UrlMNC-1"_L1, boxValue(SiteField::UrlMNC)),
        recordElement("BUrlCol-1"_L1, boxValue(SiteField::BUrlCol)),
        recordElement("EUrlCol-1"_L1, boxValue(SiteField::EUrlCol)),
    };
    return {};
}

QString SiteEditing::DeleteSearchSite()
{
    return guardedResult(mLog, {module, "Function DeleteSearchSite"_L1}, QString(), [&](QString &message) {
        const QString site = DoesSDExist();
        if (site.isEmpty()) {
            message = u"Nothing selected"_s;
            return;
        }
        static_cast<void>(mDatabase->GetRecordset("DELETE * FROM SearchSites WHERE SiteName='"_L1 + site + u'\''));
        if (!recordOf(site).isEmpty()) {
            message = site + " not deleted"_L1;
            return;
        }
        ClearSD(false);
        LoadSearchSiteData(allNames);
        message = site + " deleted"_L1;
    });
}

void SiteEditing::LoadSearchSiteData(int code)
{
    const QScopedValueRollback<bool> loading(mbLoadingSD, true);
    guarded(mLog, {module, "Sub LoadSearchSiteData"_L1}, [&] {
        if (code == allNames) {
            QStringList names = mDatabase->GetFieldData(u"SiteName"_s, u"SearchSites"_s);
            names.removeAll(QString());
            mEditor.cboSD(1).setItems(names);
            return;
        }
        const QString site = DoesSDExist();
        if (site.isEmpty() || recordOf(site).isEmpty())
            return;
        for (int field = static_cast<int>(SiteField::Url); field <= static_cast<int>(SiteField::EUrlCol); ++field) {
            if (code == field || code == wholeRecord)
                loadFamily(static_cast<SiteField>(field));
        }
        loadSingles(site, code);
        for (int box = firstFamilyBox; code == wholeRecord && box <= lastBox; ++box) {
            if (mEditor.cboSD(box).listCount() > 0)
                mEditor.cboSD(box).setListIndex(0);
        }
    });
}

void SiteEditing::loadFamily(SiteField field)
{
    const QStringList values = mRecords.GetSearchSiteData(DoesSDExist(), field);
    const auto count = countBox(field);
    QStringList shown;
    for (const QString &value : values) {
        if (value.isEmpty())
            continue;
        shown.append(count ? SeparateSD(0, value) : value);
        if (count)
            mEditor.incSDMCMNC(*count).setText(SeparateSD(1, value));
    }
    mEditor.cboSD(SDTranslateSDtoSDC(field)).setItems(shown);
}

void SiteEditing::loadSingles(const QString &site, int code)
{
    const auto stored = [&](SiteField field) {
        const bool asked = code == static_cast<int>(field) || code == wholeRecord;
        return asked ? firstOf(mRecords.GetSearchSiteData(site, field)) : QString();
    };
    if (const auto hex = numberIn(stored(SiteField::CnvHex)))
        mEditor.chkSDHex.setValue(*hex);
    if (const QString length = stored(SiteField::UrlLen); !length.isEmpty()) {
        mEditor.cboSDLen.setListIndex(numberIn(SeparateSD(0, length)).value_or(0));
        mEditor.incSDUrlLen.setText(SeparateSD(1, length));
    }
    if (const auto group = numberIn(stored(SiteField::Group)))
        mEditor.cboSDGroup.setListIndex(*group);
}

void SiteEditing::ClearSD(bool keepSiteList)
{
    const QScopedValueRollback<bool> loading(mbLoadingSD, true); // the record that was on show keeps what it has
    guarded(mLog, {module, "Sub ClearSD"_L1}, [&] {
        if (!keepSiteList)
            mEditor.cboSD(1).clear();
        for (int box = firstFamilyBox; box <= lastBox; ++box)
            mEditor.cboSD(box).clear();
        for (NumberBox *number : {&mEditor.incSDMCMNC(0), &mEditor.incSDMCMNC(1), &mEditor.incSDUrlLen})
            number->setText(emptyNumber);
        mEditor.cboSDGroup.setListIndex(0);
        mEditor.cboSDLen.setListIndex(0);
    });
}

bool SiteEditing::canAdd(int box) const
{
    const QString text = mEditor.cboSD(box).text();
    if (box == firstFamilyBox)
        return cIEText::IsThisEmailOrLink(text, true) == cIEText::TextKind::Link;
    return !text.isEmpty() && !IsSDSaved(box);
}

void SiteEditing::SetSDState(bool keepEnabled)
{
    guarded(mLog, {module, "Sub SetSDState"_L1}, [&] {
        const std::array<Control *, 4> whole{&mEditor.cmdSDDefault, &mEditor.cboSDLen, &mEditor.cboSDGroup,
                                             &mEditor.chkSDHex};
        const auto enableAll = [&](bool enabled) {
            for (Control *control : whole)
                control->setEnabled(enabled);
        };
        if (!keepEnabled) {
            enableAll(false);
            for (int box = 1; box <= lastBox; ++box) {
                for (Control *control :
                     {static_cast<Control *>(&mEditor.cboSD(box)), static_cast<Control *>(&mEditor.cmdSD(2 * box - 1)),
                      static_cast<Control *>(&mEditor.cmdSD(2 * box))})
                    control->setEnabled(false);
            }
        }
        if (!mRuns.idle())
            return;
        enableAll(true);
        mEditor.cboSD(1).setEnabled(true);
        if (!DoesSDExist().isEmpty())
            mEditor.cmdSD(2).setEnabled(true);
        if (!mEditor.cboSD(1).text().isEmpty())
            mEditor.cmdSD(1).setEnabled(true);
        // Once a box can add, so can all boxes below it that have room: an empty one then answers with nothing.
        bool adds = false;
        for (int box = firstFamilyBox; box <= lastBox; ++box) {
            mEditor.cboSD(box).setEnabled(true);
            if (IsSDSaved(box))
                mEditor.cmdSD(2 * box).setEnabled(true);
            if (mEditor.cboSD(box).listCount() >= lastSlot)
                continue;
            adds = adds || canAdd(box);
            mEditor.cmdSD(2 * box - 1).setEnabled(adds);
        }
    });
}
