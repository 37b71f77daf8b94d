#include "window/commands/ManualTab.h"

#include "app/SettingKeys.h"
#include "pages/Addresses.h"
#include "pages/EmailFinder.h"
#include "util/ColumnText.h"
#include "util/Text.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
} // namespace

ManualTab::ManualTab(const Context &context, frmSearch &form, const ManualDesk &desk, ManualTables &tables,
                     ManualFeed &feed, AutoText &texts, AutoIncr &series)
    : mContext(context), mForm(form), mDesk(desk), mTables(tables), mFeed(feed), mTexts(texts), mSeries(series)
{
    connectLists();
    connectUrlBox();
    showOnly(desk.index());
}

void ManualTab::connectLists()
{
    connect(&mForm.lists.cboMNList, &ComboBox::Click, this, &ManualTab::cboMNList_Click);
    for (int i = mForm.lists.lstMN.first(); i <= mForm.lists.lstMN.last(); ++i) {
        ListBox &list = mForm.lists.lstMN(i);
        connect(&list, &ListBox::Click, this, [this, &list] { lstMN_Click(list); });
        connect(&list, &ListBox::doubleClicked, this, [this, &list] { lstMN_DblClick(list); });
        connect(&list, &ListBox::choiceEnded, this, &ManualTab::lstMN_MouseUp);
        connect(&list, &ListBox::mousePressed, this, [this](MouseButton button) {
            if (button == MouseButton::Right)
                Q_EMIT menuWanted(mForm.menus.mnuPopUpMN);
        });
        connect(&list, &ListBox::textDropped, this, [this, i](const QString &text) { mFeed.drop(i, text); });
    }
}

void ManualTab::connectUrlBox()
{
    ComboBox &box = mForm.series.cboMNAutoUrl;
    connect(&box, &ComboBox::Change, this, &ManualTab::cboMNAutoUrl_Change);
    connect(&box, &ComboBox::Click, this, &ManualTab::cboMNAutoUrl_Click);
    connect(&box, &ComboBox::Validate, this, &ManualTab::cboMNAutoUrl_Validate);
    connect(&box, &ComboBox::textDropped, this, &ManualTab::dropOnUrlBox);
    connect(&mForm.series.incMNAutoUrl, &NumberBox::ValueChanged, &mSeries, &AutoIncr::incMNAutoUrl_ValueChanged);
    connect(&mForm.series.incMNStep, &NumberBox::ValueChanged, this,
            [this](const QString &step) { mForm.series.incMNAutoUrl.setStep(step.toLongLong()); });
    connect(&mForm.collect.lblAutoIncrPos, &Label::mousePressed, this, &ManualTab::lblAutoIncrPos_MouseDown);
}

void ManualTab::showOnly(int index)
{
    for (int i = mForm.lists.lstMN.first(); i <= mForm.lists.lstMN.last(); ++i)
        mForm.lists.lstMN(i).setVisible(i == index);
}

void ManualTab::cboMNList_Click()
{
    guarded(mContext.log, {module, "Sub cboMNList_Click"_L1}, [&] {
        showOnly(mDesk.index());
        const QString url = mContext.settings.GetSetting(Sections::Main, Keys::AutoTextUrl + mDesk.listName());
        if (!url.isEmpty())
            mForm.series.cboMNAutoUrl.setText(url);
        if (!mForm.mbFormReady)
            return; // the tables are loaded later
        const QString saved = mTables.summary(mDesk.table());
        Q_EMIT listChosen();
        mTexts.LoadAutoTextUrls();
        mSeries.ManageAutoText();
        Q_EMIT mSeries.coloursAsked();
        mContext.states.SetStateOfControls();
        mContext.status.UpDateStatus(saved);
    });
}

void ManualTab::lstMN_Click(ListBox &list)
{
    if (mContext.tips.areShown() && mForm.browser.mbInitialized)
        list.setToolTipText(list.list(list.listIndex()));
}

void ManualTab::lstMN_DblClick(const ListBox &list)
{
    if (mForm.browser.mbInitialized && mForm.runs.idle())
        Q_EMIT openWanted(list.list(list.listIndex()));
}

void ManualTab::lstMN_MouseUp()
{
    if (!std::exchange(mSkipShowSelected, false))
        mDesk.ShowSelected();
}

void ManualTab::keepUrl()
{
    mContext.settings.SaveSetting(Sections::Main, Keys::AutoTextUrl + mDesk.listName(),
                                  mForm.series.cboMNAutoUrl.text());
}

void ManualTab::cboMNAutoUrl_Change()
{
    guarded(mContext.log, {module, "Sub cboMNAutoUrl_Change"_L1}, [&] {
        if (isSilent())
            return;
        ComboBox &box = mForm.series.cboMNAutoUrl;
        const QString stored = cUtility::asColumnText(SeriesRules::storedUrl(box.text()));
        if (stored != box.text())
            return box.setText(stored);
        box.setToolTipText(mContext.tips.ifShown(stored));
        keepUrl();
    });
}

void ManualTab::cboMNAutoUrl_Click()
{
    guarded(mContext.log, {module, "Sub cboMNAutoUrl_Click"_L1}, [&] {
        if (isSilent())
            return;
        Q_EMIT urlChosen();
        mSeries.ManageAutoText();
        mContext.states.SetStateOfControls();
    });
}

void ManualTab::cboMNAutoUrl_Validate()
{
    guarded(mContext.log, {module, "Sub cboMNAutoUrl_Validate"_L1}, [&] {
        const QString url = mForm.series.cboMNAutoUrl.text();
        if (url.isEmpty()) {
            if (mDesk.usesBase())
                mSeries.mnuMNUseAutoBase_Click();
        } else if (!cIEText::CheckForInvalidUrlChar(url) &&
                   cIEText::IsThisEmailOrLink(url, true) == cIEText::TextKind::Link) {
            keepUrl();
            mSeries.mnuMNSetFirstAndLastFromUrl_Click(url);
        } else {
            mContext.status.UpDateStatus(u"Invalid Url"_s);
        }
        mForm.series.cboMNAutoUrl.setToolTipText(mContext.tips.ifShown(url));
        mContext.states.SetStateOfControls();
    });
}

void ManualTab::dropOnUrlBox(const QString &text)
{
    guarded(mContext.log, {module, "Sub cboMNAutoUrl_OLEDragDrop"_L1}, [&] {
        mForm.series.cboMNAutoUrl.setText(cUtility::asColumnText(cUtility::MultipleLinesToSingle(text)));
        mContext.states.SetStateOfControls();
    });
}

/// On the Manual tab the left button also brings back the position that is remembered, or ends the base.
void ManualTab::togglePosition()
{
    const int position = mDesk.GetAutoIncrChecked();
    if (position > 0)
        return mSeries.SetAutoIncrPos(position);
    if (mForm.frame.sstSearch.tab() != Tab::Manual)
        return;
    if (mDesk.usesBase()) {
        if (!mSeries.isCollecting())
            mSeries.mnuMNUseAutoBase_Click();
    } else if (const qint64 stored = mTexts.GetAutoIncrNumber({}, {}); stored >= 1) {
        mSeries.SetAutoIncrPos(static_cast<int>(stored));
    }
}

void ManualTab::lblAutoIncrPos_MouseDown(MouseButton button)
{
    guarded(mContext.log, {module, "Sub lblAutoIncrPos_MouseDown"_L1}, [&] {
        const int tab = mForm.frame.sstSearch.tab();
        if (button == MouseButton::Left || (tab != Tab::Auto && tab != Tab::Manual))
            togglePosition();
    });
}
