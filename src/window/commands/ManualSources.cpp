#include "window/commands/ManualSources.h"

#include "window/commands/CommandRows.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto items = "mnuMNLSU"_L1;

/// Where an item loads from; the caption, where there is one, gets the Auto list's name.
struct Source
{
    QLatin1StringView table, caption;
};
constexpr Source sources[] = {{"ANSelectUrls"_L1, {}},
                              {"MNSelectUrls"_L1, {}},
                              {"PassUrls"_L1, "Pass (Auto - %1)"_L1},
                              {"RPgUrls"_L1, "Saved (Auto - %1)"_L1},
                              {"UrlsCache"_L1, {}}};
} // namespace

ManualSources::ManualSources(const Context &context, const Menu &menu, const SavedAddresses &saved,
                             const ManualDesk &desk, const ManualWork &work, ManualTables &tables)
    : mContext(context), mMenu(menu), mSaved(saved), mDesk(desk), mWork(work), mTables(tables)
{
    static constexpr CommandRow<ManualSources> rows[] = {
        {"mnuMNLoadSelectUrls"_L1, "Sub mnuMNLoadSelectUrls_Click"_L1, &ManualSources::mnuMNLoadSelectUrls_Click},
        {"mnuMNUseSiteData"_L1, "Sub mnuMNUseSiteData_Click"_L1, &ManualSources::mnuMNUseSiteData_Click},
    };
    connectCommands(*this, rows, menu, context.log, work.work());
    connect(&menu, &Menu::aboutToShow, this, &ManualSources::mnuMNLoadSelectUrls_Click);
    for (int i = 0; i < static_cast<int>(std::size(sources)); ++i)
        connect(&menu.item(items, i), &MenuItem::Click, this, [this, i] { mnuMNLSU_Click(i); });
}

void ManualSources::mnuMNLoadSelectUrls_Click()
{
    for (int i = 0; i < static_cast<int>(std::size(sources)); ++i) {
        if (!sources[i].caption.isEmpty())
            mMenu.item(items, i).setCaption(QString(sources[i].caption).arg(mSaved.cboANList.text()));
    }
}

void ManualSources::mnuMNLSU_Click(int index)
{
    const Source &source = sources[index];
    LoadDBItemsMN(source.caption.isEmpty() ? QString(source.table) : source.table + mSaved.cboANList.text());
}

void ManualSources::LoadDBItemsMN(const QString &table)
{
    guarded(mContext.log, {module, "Sub LoadDBItemsMN"_L1},
            [&] { mWork.count(u"Loading"_s, [&] { return mTables.addNew(mDesk.list(), table); }); });
}

void ManualSources::mnuMNUseSiteData_Click()
{
    MenuItem &item = mMenu.item("mnuMNUseSiteData"_L1);
    item.setChecked(!item.isChecked());
}
