#include "window/commands/FilesSitesEvents.h"

#include "app/SettingKeys.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int files = 0;
constexpr auto linksInto = "mnuMNStatusListCL"_L1;
constexpr auto pagesInto = "mnuMNStatusListCP"_L1;
} // namespace

FilesSitesEvents::FilesSitesEvents(const Context &context, frmSearch &form) : mContext(context), mForm(form)
{
    connect(&form.manual.cboFilesSites, &ComboBox::Click, this, &FilesSitesEvents::cboFilesSites_Click);
}

void FilesSitesEvents::cboFilesSites_Click()
{
    if (!mForm.mbFormReady)
        return;
    guarded(mContext.log, {"frmSearch"_L1, "Sub cboFilesSites_Click"_L1}, [&] {
        if (mForm.manual.cboFilesSites.listIndex() == files)
            keep();
        else
            comeBack();
    });
    mContext.states.SetStateOfControls();
}

/// The list of an array of items that is checked; -1 for none.
int FilesSitesEvents::checked(QLatin1StringView array) const
{
    for (int list = 0; list < listNames.size(); ++list) {
        if (mForm.menus.mnuPopUpMNStatus.item(array, list).isChecked())
            return list;
    }
    return -1;
}

/// What is on goes off, and is remembered.
void FilesSitesEvents::keep()
{
    const int links = checked(linksInto);
    const int pages = checked(pagesInto);
    if (links >= 0)
        Q_EMIT linksToggled(links);
    if (pages >= 0)
        Q_EMIT pagesToggled(pages);
    mContext.settings.SaveSetting(Sections::Main, Keys::PageList, QString::number(pages));
    mContext.settings.SaveSetting(Sections::Main, Keys::LinkList, QString::number(links));
    Q_EMIT coloursAsked();
}

void FilesSitesEvents::comeBack()
{
    toggleStored(Keys::LinkList, linksInto, &FilesSitesEvents::linksToggled);
    toggleStored(Keys::PageList, pagesInto, &FilesSitesEvents::pagesToggled);
}

void FilesSitesEvents::toggleStored(QLatin1StringView key, QLatin1StringView array,
                                    void (FilesSitesEvents::*toggled)(int))
{
    if (checked(array) >= 0)
        return;
    const int list = mContext.settings.GetSetting(Sections::Main, key, u"-1"_s).toInt();
    if (list >= 0 && list < listNames.size())
        Q_EMIT(this->*toggled)(list);
}
