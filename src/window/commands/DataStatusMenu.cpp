#include "window/commands/DataStatusMenu.h"

using namespace Qt::StringLiterals;

DataStatusMenu::DataStatusMenu(const Context &context, const FilePlaces &places, Menu &mnuPopUpDBStatus, DataView &view,
                               Exports &exports)
    : mContext(context), mPlaces(places), mView(view)
{
    connect(&mnuPopUpDBStatus, &Menu::aboutToShow, this, [&mnuPopUpDBStatus, &view] {
        mnuPopUpDBStatus.item("mnuDBStatusExportTable"_L1).setEnabled(!view.table().isEmpty());
    });
    for (const ExportKind &kind : ExportKinds::all)
        connect(&mnuPopUpDBStatus.item(kind.menuItem), &MenuItem::Click, this,
                [&exports, number = kind.number] { exports.ExportRecordSet(number); });
    connect(&mnuPopUpDBStatus.item("mnuDBStatusReLoadRSFile"_L1), &MenuItem::Click, this, &DataStatusMenu::reload);
}

void DataStatusMenu::reload()
{
    const QString path =
        mContext.dialogs.chooseFile(mPlaces.txtSFDBDir.text(), u"Dat Files (*.dat)|*.dat|"_s, u"Select File"_s);
    if (!path.isEmpty())
        mView.showSaved(path);
}
