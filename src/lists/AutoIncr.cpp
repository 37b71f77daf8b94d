#include "lists/AutoIncr.h"

#include "app/SettingKeys.h"
#include "util/Incr.h"
#include "util/Text.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto positions = "mnuMNStatusAutoIncrPos"_L1;
constexpr int sites = 1;
constexpr qsizetype stepWidth = 3;
constexpr qsizetype startWidth = 10;
} // namespace

MenuItem &AutoIncr::positionItem(int position) const
{
    return mForm.menus.mnuPopUpMNStatus.item(positions, position);
}

void AutoIncr::SetAutoIncrPos(int position)
{
    guarded(mContext.log, {module, "Sub SetAutoIncrPos"_L1}, [&] {
        const bool on = !positionItem(position).isChecked();
        if (on && mDesk.usesBase())
            mnuMNUseAutoBase_Click();
        for (int i = 1; i <= Series::MostPositions; ++i)
            positionItem(i).setChecked(on && i == position);
        if (on)
            mForm.series.incMNAutoUrl.setText(Series(url(), position).number());
        const bool isOn = SetupAutoIncrMenu() >= 1;
        if (!isOn && mDesk.list().listCount() == 0)
            mForm.manual.cmdMNStart.setEnabled(false);
        Q_EMIT coloursAsked();
        mContext.status.UpDateStatus(isOn ? u"(AutoIncr ON)"_s : u"(AutoIncr OFF)"_s);
    });
}

int AutoIncr::SetupAutoIncrMenu()
{
    return guardedResult(mContext.log, {module, "Function SetupAutoIncrMenu"_L1}, 0, [&](int &answer) {
        const int checked = mDesk.GetAutoIncrChecked();
        for (int i = 1; i <= Series::MostPositions; ++i) {
            positionItem(i).setChecked(false);
            positionItem(i).setEnabled(false);
        }
        const qsizetype count = mForm.browser.mbInitialized ? SeriesRules::countNumbers(url()) : 0;
        // An address with more numbers than there are positions ends in the log, behind the last position.
        for (int i = 1; i <= count; ++i) {
            positionItem(i).setEnabled(true);
            if (i != checked)
                continue;
            positionItem(i).setChecked(true);
            answer = i;
            if (!mForm.runs.mbANRunning)
                mForm.manual.cmdMNStart.setEnabled(true);
            if (!mForm.mbFormReady)
                mnuMNSetFirstAndLastFromUrl_Click(cUtility::Trim(url()).toString());
        }
        mContext.settings.SaveSetting(Sections::Main, Keys::AutoIncrPos, QString::number(answer));
        mForm.collect.lblAutoIncrPos.setCaption(QString::number(answer));
        Q_EMIT coloursAsked();
    });
}

void AutoIncr::ManageAutoText()
{
    guarded(mContext.log, {module, "Sub ManageAutoText"_L1}, [&] {
        if (url().isEmpty())
            return;
        const SeriesRules::Row row = mTexts.GetAutoTextData();
        const int checked = mDesk.GetAutoIncrChecked();
        const int position = static_cast<int>(row.position);
        if (position < 1) {
            if (checked > 0)
                SetAutoIncrPos(checked);
        } else {
            if (checked != position)
                SetAutoIncrPos(position);
            mForm.series.incMNStep.setText(cUtility::PaddDigits(QString::number(row.step), stepWidth));
            mForm.series.incMNAutoUrl.setText(cUtility::PaddDigits(QString::number(row.start), startWidth));
        }
        Q_EMIT coloursAsked();
    });
}

void AutoIncr::MaintainAutoIncr()
{
    guarded(mContext.log, {module, "Sub MaintainAutoIncr"_L1}, [&] {
        const int position = mDesk.GetAutoIncrChecked();
        if (!mForm.browser.mbInitialized || position < 1)
            return;
        mTexts.removeSameSeries(Series(url(), position));
        mTexts.AddAutoTextUrl({}, position);
    });
}

/// "" where the number could be taken.
QString AutoIncr::startFrom(const QString &address)
{
    const bool base = mDesk.usesBase();
    int position = mDesk.GetAutoIncrChecked();
    if (position == 0)
        position = static_cast<int>(mTexts.GetAutoIncrNumber({}, {}));
    switch (SeriesRules::startIn(address, position, NumberBox::MaxDigits)) {
    case SeriesRules::Start::NoLink:
        return u"InValid Url"_s;
    case SeriesRules::Start::NoNumber:
        return base ? u"(UseBase ON)"_s : u"No number in Url"_s;
    case SeriesRules::Start::NoPosition:
        return base ? u"(UseBase ON)"_s : u"(AutoIncr # Unknown)"_s;
    case SeriesRules::Start::TooFewNumbers:
        SetAutoIncrPos(position);
        return u"(AutoIncr # Unknown)"_s;
    case SeriesRules::Start::TooLarge:
        return u"Number too large"_s;
    case SeriesRules::Start::Found:
        mForm.series.incMNAutoUrl.setText(Series(address, position).number());
        break;
    }
    return {};
}

void AutoIncr::mnuMNSetFirstAndLastFromUrl_Click(const QString &address)
{
    guarded(mContext.log, {module, "Sub mnuMNSetFirstAndLastFromUrl_Click"_L1}, [&] {
        if (const QString message = startFrom(address); !message.isEmpty())
            mContext.status.UpDateStatus(message);
    });
}

void AutoIncr::mnuMNUseAutoBase_Click()
{
    guarded(mContext.log, {module, "Sub mnuMNUseAutoBase_Click"_L1}, [&] {
        MenuItem &item = mForm.menus.mnuPopUpMNStatus.item("mnuMNUseAutoBase"_L1);
        const bool refused = !item.isChecked() && mDesk.GetAutoIncrChecked() > 0;
        if (!refused)
            item.setChecked(!item.isChecked());
        const bool on = item.isChecked();
        if (!on && !refused)
            Q_EMIT baseSwitchedOff();
        // A refusal stores no value at all, which reads as off.
        mContext.settings.SaveSetting(Sections::Main, Keys::UseAutoBase, refused ? QString() : on ? u"1"_s : u"0"_s);
        mContext.status.UpDateStatus(refused ? u"(AutoIncr ON)"_s : on ? u"(UseBase ON)"_s : u"(UseBase OFF)"_s);
    });
}

bool AutoIncr::isCollecting() const
{
    const auto anyChecked = [](const Menu &menu, QAnyStringView parent) {
        const std::vector<MenuItem *> items = menu.children(parent);
        return std::any_of(items.begin(), items.end(), [](const MenuItem *item) { return item->isChecked(); });
    };
    return anyChecked(mForm.menus.mnuPopUpMNStatus, "mnuMNStatusAutoCollectLinks"_L1) ||
           anyChecked(mForm.menus.mnuPopUpMNStatus, "mnuMNStatusAutoCollectPageUrls"_L1) ||
           anyChecked(mForm.menus.mnuPopUpANStatus, "mnuANStatusAutoSave"_L1);
}

bool AutoIncr::CheckMNAutoNav()
{
    return guardedResult(mContext.log, {module, "Function CheckMNAutoNav"_L1}, false, [&](bool &available) {
        const Menu &menu = mForm.menus.mnuPopUpMNStatus;
        const bool series = mDesk.GetAutoIncrChecked() >= 1;
        if (series) {
            menu.item("mnuMNStatusNavigateToAutoTextUrl"_L1).setEnabled(true);
            menu.item("mnuMNSetFirstFromTextBox"_L1).setEnabled(true);
        }
        const bool forSites = series && mForm.manual.cboFilesSites.listIndex() == sites;
        if (forSites && mDesk.list().listCount() > 0)
            return; // as it was
        available = forSites && !isCollecting() && !mDesk.usesBase();
        MenuItem &autoNavigate = menu.item("mnuMNStatusAutoNavigate"_L1);
        autoNavigate.setEnabled(available);
        if (!available)
            autoNavigate.setChecked(false);
    });
}

void AutoIncr::showReached(const QString &address, qint64 number)
{
    const QScopedValueRollback<bool> writing(mWriting, true);
    mForm.series.incMNAutoUrl.setText(QString::number(number));
    mForm.series.cboMNAutoUrl.setText(address);
}

void AutoIncr::incMNAutoUrl_ValueChanged(const QString &value)
{
    guarded(mContext.log, {module, "Sub incMNAutoUrl_ValueChanged"_L1}, [&] {
        const int position = mDesk.GetAutoIncrChecked();
        if (!mForm.mbFormReady || position < 1 || url().isEmpty())
            return;
        const QScopedValueRollback<bool> writing(mWriting, true);
        mForm.series.cboMNAutoUrl.setText(Series(url(), position).withNumber(value).address());
    });
}
