#include "controls/cLstBx.h"

#include "util/AddressList.h"

#include <QSet>

namespace {
bool isBlank(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c == u' '; });
}
} // namespace

QStringList cLstBx::GetItems(const ListBox &list, Which which)
{
    QStringList found;
    for (int i = 0; i < list.listCount(); ++i) {
        if ((which == Which::All || list.isSelected(i)) && !isBlank(list.list(i)))
            found.append(list.list(i));
    }
    return orEmptyList(std::move(found));
}

void cLstBx::UnSelect(ListBox &list)
{
    for (int i = 0; i < list.listCount(); ++i)
        list.setSelected(i, false);
}

bool cLstBx::DoesItemExist(const ListBox &list, const QString &item)
{
    const QString wanted = item.toLower();
    return std::any_of(list.items().begin(), list.items().end(),
                       [&](const QString &present) { return present.toLower() == wanted; });
}

void cLstBx::PopulateListBox(ListBox &list, const QStringList &values, bool noBlanks, bool clearPrevious)
{
    // The values may be the list's own items, which go away under them.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const QStringList wanted = values;
    if (clearPrevious)
        list.clear();
    QSet<QString> present;
    for (const QString &item : list.items())
        present.insert(item.toLower());
    for (const QString &value : wanted) {
        if (!present.contains(value.toLower()) && !(noBlanks && isBlank(value)))
            list.addItem(value);
    }
}
