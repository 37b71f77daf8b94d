#include "window/commands/CollectCommands.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr int listCount = 5;

/// The right button walks through the five lists.
int behind(int list)
{
    return (list + 1) % listCount;
}
} // namespace

CollectCommands::CollectCommands(const Context &context, frmSearch &form, const ManualDesk &desk, CollectChoice &choice,
                                 AutoIncr &autoIncr, ResultLinks &links)
    : mContext(context), mForm(form), mDesk(desk), mChoice(choice), mAutoIncr(autoIncr), mLinks(links)
{
    connectMenus();
    CollectLabels &labels = form.collect;
    connect(&labels.lblAutoCollect, &Label::mousePressed, this, &CollectCommands::lblAutoCollect_MouseDown);
    connect(&labels.lblAutoCollect, &Label::mouseMoved, this, &CollectCommands::lblAutoCollect_MouseMove);
    connect(&labels.lblAutoPgUrls, &Label::mousePressed, this, &CollectCommands::lblAutoPgUrls_MouseDown);
    connect(&labels.lblAutoIncrPos, &Label::mousePressed, this, &CollectCommands::lblAutoIncrPos_MouseDown);
}

void CollectCommands::connectMenus()
{
    const Menu &manual = mForm.menus.mnuPopUpMNStatus;
    for (int list = 0; list < listCount; ++list) {
        connect(&manual.item("mnuMNStatusListCL"_L1, list), &MenuItem::Click, this,
                [this, list] { mChoice.SetAutoCollectLinks(list); });
        connect(&manual.item("mnuMNStatusListCP"_L1, list), &MenuItem::Click, this, [this, list] {
            savedPagesOff();
            mChoice.SetAutoCollectPgUrlsMN(list);
        });
        connect(&mForm.menus.mnuPopUpANStatus.item("mnuANStatusACList"_L1, list), &MenuItem::Click, this, [this, list] {
            manualPagesOff();
            mChoice.SetAutoCollectPgUrlsAN(list);
        });
    }
}

void CollectCommands::linksOff()
{
    if (const int list = mChoice.GetAutoCollectLinksChecked(); list >= 0)
        mChoice.SetAutoCollectLinks(list);
}

void CollectCommands::manualPagesOff()
{
    if (const int list = mChoice.GetAutoCollectPgUrlsCheckedMN(); list >= 0)
        mChoice.SetAutoCollectPgUrlsMN(list);
}

void CollectCommands::savedPagesOff()
{
    if (const int list = mChoice.GetAutoCollectPgUrlsCheckedAN(); list >= 0)
        mChoice.SetAutoCollectPgUrlsAN(list);
}

void CollectCommands::lblAutoCollect_MouseDown(MouseButton button)
{
    guarded(mContext.log, {module, "Sub lblAutoCollect_MouseDown"_L1}, [&] {
        if (tab() == Tab::Auto)
            return;
        const int links = mChoice.GetAutoCollectLinksChecked();
        if (tab() != Tab::Manual || !areSites()) {
            linksOff();
            if (tab() == Tab::Manual)
                return mContext.status.UpDateStatus(u"No Auto for type File"_s);
        } else if (button == MouseButton::Right) {
            mChoice.SetAutoCollectLinks(behind(links));
        } else {
            mChoice.SetAutoCollectLinks(links >= 0 ? links : mForm.lists.cboMNList.listIndex());
        }
        mChoice.ShowAutoCollectState();
    });
}

void CollectCommands::lblAutoCollect_MouseMove()
{
    if (tab() != Tab::Auto && mContext.tips.areShown())
        mForm.collect.lblAutoCollect.setToolTipText(
            u"Left click toggle collect urls on sites. Right click selects list to collect in"_s);
}

void CollectCommands::lblAutoPgUrls_MouseDown(MouseButton button)
{
    guarded(mContext.log, {module, "Sub lblAutoPgUrls_MouseDown"_L1}, [&] {
        if (tab() == Tab::Manual)
            return choosePagesOfSites(button);
        if (tab() == Tab::Auto)
            return chooseSavedPages(button);
        manualPagesOff();
        savedPagesOff();
    });
}

void CollectCommands::choosePagesOfSites(MouseButton button)
{
    const int pages = mChoice.GetAutoCollectPgUrlsCheckedMN();
    if (!areSites()) {
        manualPagesOff();
        return mContext.status.UpDateStatus(u"No AutoCollect for type File"_s);
    }
    savedPagesOff();
    if (button == MouseButton::Right)
        mChoice.SetAutoCollectPgUrlsMN(behind(pages));
    else
        mChoice.SetAutoCollectPgUrlsMN(pages >= 0 ? pages : mForm.lists.cboMNList.listIndex());
}

void CollectCommands::chooseSavedPages(MouseButton button)
{
    if (mForm.runs.mbANRunning)
        return;
    const int saved = mChoice.GetAutoCollectPgUrlsCheckedAN();
    if (!mLinks.IsSiteDataSaved()) {
        savedPagesOff();
        return mContext.status.UpDateStatus(u"No data saved for site"_s);
    }
    manualPagesOff();
    if (button == MouseButton::Right)
        mChoice.SetAutoCollectPgUrlsAN(behind(saved));
    else
        mChoice.SetAutoCollectPgUrlsAN(saved >= 0 ? saved : mForm.saved.cboANList.listIndex());
}

/// Without a series the right button steps through links, mail addresses and numbers; the latter two need a base.
void CollectCommands::lblAutoIncrPos_MouseDown(MouseButton button)
{
    guarded(mContext.log, {module, "Sub lblAutoIncrPos_MouseDown"_L1}, [&] {
        if (tab() != Tab::Manual || button != MouseButton::Right || mDesk.GetAutoIncrChecked() > 0)
            return;
        mChoice.SetAutoCollectState(CollectState::Kind::EmailPhone, false);
        const CollectState::Content content = CollectState::contentOf(mChoice.state());
        if ((content == CollectState::Content::Emails || content == CollectState::Content::Phones) && !mDesk.usesBase())
            mAutoIncr.mnuMNUseAutoBase_Click();
    });
}
