// The whole program on its Manual tab, with what tests of its two menus ask for again and again.
#pragma once

#include "support/ProgramFixture.h"

#include <QFile>

class ManualCommandsTest : public RunTest
{
  protected:
    ManualCommandsTest() { form().frame.sstSearch.setTab(Tab::Manual); }

    [[nodiscard]] ListBox &list() { return form().lists.shown(); }
    [[nodiscard]] MenuItem &item(QLatin1StringView name)
    {
        return static_cast<MenuItem &>(*form().control(QString(name)));
    }
    void click(QLatin1StringView name)
    {
        statuses.clear();
        Menu &menu =
            QString(name).startsWith(QStringLiteral("mnuMNStatus")) || name == QLatin1StringView("mnuMNUseAutoBase")
                ? form().menus.mnuPopUpMNStatus
                : form().menus.mnuPopUpMN;
        menu.prepare();
        ASSERT_TRUE(item(name).isEnabled()) << name.data();
        item(name).click();
    }
    void fill(const QStringList &items, const std::vector<int> &selected = {}, int index = -1)
    {
        list().setItems(items);
        std::vector<bool> flags(static_cast<std::size_t>(items.size()));
        for (const int i : selected)
            flags[static_cast<std::size_t>(i)] = true;
        list().choose(index, flags);
        statuses.clear();
    }
    /// Which of the menu's items are enabled, asked just before it opens.
    [[nodiscard]] bool offers(QLatin1StringView name)
    {
        form().menus.mnuPopUpMN.prepare();
        return item(name).isEnabled();
    }
    void addUrl(const QString &table, const QString &url) { addRow(database(), table, {{QStringLiteral("Url"), url}}); }
    void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
};
