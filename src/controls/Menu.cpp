#include "controls/Menu.h"

#include "util/Errors.h"

using namespace Qt::StringLiterals;

void MenuItem::setChecked(bool checked)
{
    if (assign(mChecked, checked))
        Q_EMIT altered();
}

void MenuItem::click()
{
    if (isEnabled())
        Q_EMIT Click();
}

QString MenuItem::stored() const
{
    return mChecked ? u"True"_s : u"False"_s;
}

void MenuItem::restore(const QString &value)
{
    setChecked(value == "True"_L1 || value == "1"_L1);
}

void MenuItem::enter(const QString &value)
{
    if (value != "0"_L1 && value != "1"_L1)
        refuse(u"a menu item takes 0 or 1, not \"%1\""_s.arg(value));
    if (mChecked == (value == "1"_L1))
        return;
    if (!isEnabled())
        refuse(u"this menu item is disabled at the moment"_s);
    click();
}

Menu::Menu(const QString &name, std::span<const MenuRow> rows, QObject *form, const QString &caption)
    : Control(name, form, caption)
{
    mItems.reserve(rows.size());
    for (const MenuRow &row : rows)
        add(row.name, row.parent, row.caption);
}

MenuItem &Menu::item(QAnyStringView name) const
{
    for (const auto &item : mItems) {
        if (item->name() == name)
            return *item;
    }
    throw RuntimeError(340, u"Control array element '%1' doesn't exist"_s.arg(name.toString()));
}

MenuItem &Menu::item(QLatin1StringView array, int index) const
{
    return item(u"%1(%2)"_s.arg(array).arg(index));
}

std::vector<MenuItem *> Menu::children(QAnyStringView parentItem) const
{
    std::vector<MenuItem *> found;
    for (const auto &item : mItems) {
        if (item->parentItem() == parentItem)
            found.push_back(item.get());
    }
    return found;
}

MenuItem &Menu::add(const QString &name, const QString &parentItem, const QString &caption)
{
    return *mItems.emplace_back(std::make_unique<MenuItem>(name, parentItem, caption, parent()));
}
