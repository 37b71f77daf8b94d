// The Manual tab's state with a real database, a fake browser, fake time and a fake user, for the tests of what works
// on its lists.
#pragma once

#include "lists/ManualDesk.h"
#include "lists/ManualTables.h"
#include "sites/DiscoveredLinks.h"
#include "support/FormWithDatabase.h"

class ManualTest : public FormDatabaseTest
{
  protected:
    [[nodiscard]] ListBox &list() { return form.lists.shown(); }
    void addUrl(const QString &table, const QString &url) { addRow(*database, table, {{QStringLiteral("Url"), url}}); }
    void useBase(bool on) { form.menus.mnuPopUpMNStatus.item(QStringLiteral("mnuMNUseAutoBase")).setChecked(on); }
    void setSeries(int position)
    {
        for (int i = 1; i <= 9; ++i)
            form.menus.mnuPopUpMNStatus.item(QLatin1StringView("mnuMNStatusAutoIncrPos"), i).setChecked(i == position);
    }
    void choose(int index, const std::vector<int> &selected)
    {
        std::vector<bool> flags(static_cast<std::size_t>(list().listCount()));
        for (const int i : selected)
            flags[static_cast<std::size_t>(i)] = true;
        list().choose(index, flags);
    }
    void showPage(const QString &address, const QStringList &links, const QString &title = {})
    {
        FakePage &page = browsers.running->pages[address];
        page.links = links;
        page.title = title;
        browsers.running->show(address);
    }

    ManualDesk desk{form, status};
    DeletedRows deleted{log, database, work};
    ManualTables tables{log, database, work};
};
