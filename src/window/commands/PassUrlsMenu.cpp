#include "window/commands/PassUrlsMenu.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto loadItem = "mnuPULoadPassUrls"_L1;
constexpr auto unloadItem = "mnuPUUnLoadPassUrls"_L1;
constexpr auto deletePassItem = "mnuPUDeletePassUrls"_L1;
constexpr auto deleteSavedItem = "mnuPUDeleteSaveUrls"_L1;
using Kind = SavedUrls::Kind;
} // namespace

PassUrlsMenu::PassUrlsMenu(const Context &context, frmSearch &form, SavedUrls &savedUrls, DeletedRows &deleted,
                           DatabaseHolder &database, PopUps &popUps)
    : mContext(context), mForm(form), mSavedUrls(savedUrls), mDeleted(deleted), mDatabase(database)
{
    Menu &menu = form.menus.mnuPopUpPassUrls;
    connect(&form.collect.lblAutoIncrPos, &Label::mousePressed, this, [this, &menu, &popUps](MouseButton button) {
        if (button == MouseButton::Right && mForm.frame.sstSearch.tab() == Tab::Auto)
            popUps.ShowPopUp(menu);
    });
    connect(&menu, &Menu::aboutToShow, this, &PassUrlsMenu::prepare);
    connect(&menu.item(loadItem), &MenuItem::Click, this, &PassUrlsMenu::load);
    connect(&menu.item(unloadItem), &MenuItem::Click, this, &PassUrlsMenu::unload);
    connect(&menu.item(deletePassItem), &MenuItem::Click, this, [this] { remove(Kind::PassUrl); });
    connect(&menu.item(deleteSavedItem), &MenuItem::Click, this, [this] { remove(Kind::SavedUrl); });
}

PassUrlsMenu::Enabled PassUrlsMenu::enabledFor(const Facts &facts)
{
    return {facts.hasPassUrls, facts.passUrlsLoaded, facts.hasPassUrls, !facts.passUrlsLoaded && facts.boxHasItems};
}

void PassUrlsMenu::prepare()
{
    guarded(mContext.log, {module, "Sub mnuPopUpPassUrls_Click"_L1}, [&] {
        const QString table = mSavedUrls.table(Kind::PassUrl);
        const bool hasPassUrls = !mDatabase->GetRecordset("SELECT TOP 1 Url FROM "_L1 + table).isEmpty();
        const SavedAddresses &saved = mForm.saved;
        const Enabled enabled = enabledFor({hasPassUrls, saved.mbPassUrlsLoaded, saved.cboANSavedUrls.listCount() > 0});
        const Menu &menu = mForm.menus.mnuPopUpPassUrls;
        menu.item(loadItem).setEnabled(enabled.load);
        menu.item(unloadItem).setEnabled(enabled.unload);
        menu.item(deletePassItem).setEnabled(enabled.deletePass);
        menu.item(deleteSavedItem).setEnabled(enabled.deleteSaved);
    });
}

void PassUrlsMenu::load()
{
    guarded(mContext.log, {module, "Sub mnuPULoadPassUrls_Click"_L1}, [&] {
        SavedAddresses &saved = mForm.saved;
        // The position is that of the Saved Urls on show, not of PassUrls that are loaded once more.
        if (!saved.mbPassUrlsLoaded)
            mSavedUrls.SaveSavedUrlPos();
        saved.mbPassUrlsLoaded = true;
        saved.cboANSavedUrls.setToolTipText(
            mContext.tips.ifShown(mSavedUrls.table(Kind::PassUrl) + " (Saved from search)"_L1));
        mSavedUrls.LoadSavedUrls(Kind::PassUrl);
        if (saved.cboANSavedUrls.listCount() > 0)
            saved.cboANSavedUrls.setListIndex(0);
    });
}

void PassUrlsMenu::unload()
{
    guarded(mContext.log, {module, "Sub mnuPUUnLoadPassUrls_Click"_L1}, [&] { showSaved(); });
}

void PassUrlsMenu::showSaved()
{
    mForm.saved.mbPassUrlsLoaded = false;
    mForm.saved.cboANSavedUrls.setToolTipText(u"Saved Urls"_s);
    mSavedUrls.LoadSavedUrls(Kind::SavedUrl);
    mSavedUrls.SetSavedUrlPos();
}

/// All addresses of a kind go; what the database refuses stays, and is not told as deleted.
void PassUrlsMenu::remove(Kind kind)
{
    const bool pass = kind == Kind::PassUrl;
    constexpr Place passPlace{module, "Sub mnuPUDeletePassUrls_Click"_L1};
    constexpr Place savedPlace{module, "Sub mnuPUDeleteSaveUrls_Click"_L1};
    guarded(mContext.log, pass ? passPlace : savedPlace, [&] {
        if (!pass && mForm.saved.cboANSavedUrls.listCount() == 0)
            return;
        const QString table = mSavedUrls.table(kind);
        const auto outcome = mDeleted.CacheDeletedData(table);
        if (outcome == DeletedRows::Outcome::Refused || outcome == DeletedRows::Outcome::Cancelled)
            return;
        if (pass) {
            showSaved();
        } else {
            mForm.saved.cboANSavedUrls.clear();
            mForm.saved.mastrSavedUrlIds = emptyList();
            mSavedUrls.ResetSavedUrlPos();
            mContext.states.SetStateOfControls();
        }
        mContext.status.UpDateStatus(table + " deleted"_L1);
    });
}
