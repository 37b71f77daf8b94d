// The list operations in their plain form, step by step as they are told, without regard to cost. Random lists hold the
// program's own versions against these.
#pragma once

#include "controls/ListControls.h"
#include "util/PlainLanguage.h"

#include <algorithm>

namespace plain {
/// A list box with nothing but its items, one after the other.
struct List
{
    QStringList items;
    std::vector<bool> selected;
    int listIndex = -1;

    [[nodiscard]] int ListCount() const { return static_cast<int>(items.size()); }
    [[nodiscard]] int SelCount() const { return static_cast<int>(std::count(selected.begin(), selected.end(), true)); }
    [[nodiscard]] bool Selected(int index) const { return selected[static_cast<std::size_t>(index)]; }
    void setSelected(int index, bool value) { selected[static_cast<std::size_t>(index)] = value; }
    void AddItem(const QString &item)
    {
        items.append(item);
        selected.push_back(false);
    }
    void RemoveItem(int index)
    {
        items.removeAt(index);
        selected.erase(selected.begin() + index);
        if (index == listIndex)
            listIndex = -1;
        else if (index < listIndex)
            --listIndex;
    }
    void Clear()
    {
        items.clear();
        selected.clear();
        listIndex = -1;
    }
};

inline void fillBox(ListBox &box, const List &list)
{
    box.setItems(list.items);
    box.choose(list.listIndex, list.selected);
}

inline List of(const ListBox &box)
{
    return {box.items(), box.selection(), box.listIndex()};
}

inline bool operator==(const List &left, const List &right)
{
    return left.items == right.items && left.selected == right.selected && left.listIndex == right.listIndex;
}

inline void PrintTo(const List &list, std::ostream *out)
{
    *out << "index " << list.listIndex << ":";
    for (int i = 0; i < list.ListCount(); ++i)
        *out << (list.Selected(i) ? " *" : " ") << '"' << list.items[i].toStdString() << '"';
}

inline QStringList GetItems(const List &list, bool bSelected)
{
    QStringList found{QString()};
    for (int i = 0; i < list.ListCount(); ++i) {
        if ((bSelected && !list.Selected(i)) || Trim(list.items[i]).isEmpty())
            continue;
        if (!found[0].isEmpty())
            found.append(QString());
        found.last() = list.items[i];
    }
    return found;
}

inline void UnSelect(List &list)
{
    while (list.SelCount() > 0) {
        for (int i = 0; i < list.ListCount(); ++i) {
            if (list.Selected(i)) {
                list.setSelected(i, false);
                break;
            }
        }
    }
}

inline void ClearSelected(List &list)
{
    while (list.SelCount() > 0) {
        for (int i = 0; i < list.ListCount(); ++i) {
            if (list.Selected(i)) {
                list.RemoveItem(i);
                break;
            }
        }
    }
}

inline void SelectAllLst(List &list)
{
    for (int i = 0; i < list.ListCount(); ++i)
        list.setSelected(i, true);
}

inline bool DoesItemExist(const List &list, const QString &item)
{
    for (const QString &present : list.items) {
        if (LCase(present) == LCase(item))
            return true;
    }
    return false;
}

inline int FindText(List &list, const QString &text, int start)
{
    UnSelect(list);
    const auto hit = [&](int i) {
        list.setSelected(i, true);
        list.listIndex = i;
        return i;
    };
    for (int i = start; i < list.ListCount(); ++i) {
        if (LCase(list.items[i]) == LCase(text))
            return hit(i);
    }
    for (qsizetype length = Len(text); length >= 2; --length) {
        for (int i = start; i < list.ListCount(); ++i) {
            if (InStr(1, list.items[i], Left(text, length), Textual) > 0)
                return hit(i);
        }
    }
    return 0;
}

inline QString CopySelected(const List &list, const QString &delimiter)
{
    QString text;
    if (list.SelCount() > 1) {
        for (int i = 0; i < list.ListCount(); ++i) {
            if (list.Selected(i))
                text = text + list.items[i] + delimiter;
        }
    } else if (list.SelCount() == 1) {
        text = list.items.value(list.listIndex);
    } else {
        for (int i = 0; i < list.ListCount(); ++i) {
            if (!list.items[i].isEmpty())
                text = text + list.items[i] + delimiter;
        }
    }
    return text;
}

inline void PopulateListBox(List &list, const QStringList &newVals, bool noBlanks, bool clearPrevious)
{
    QStringList remaining;
    if (clearPrevious) {
        list.Clear();
        remaining = newVals;
    } else {
        for (const QString &value : newVals) {
            if (!DoesItemExist(list, value))
                remaining.append(value);
        }
    }
    for (const QString &value : remaining) {
        if (!(noBlanks && Trim(value).isEmpty()))
            list.AddItem(value);
    }
}

inline void TruncateList(List &list, const QString &text, bool leftSide)
{
    QStringList items;
    for (const QString &item : list.items) {
        if (Trim(item).isEmpty())
            continue;
        const qsizetype p = InStr(1, item, text, Textual);
        if (p == 0)
            items.append(item);
        else if (leftSide)
            items.append(Mid(item, p + Len(text)));
        else
            items.append(Left(item, p - 1));
    }
    PopulateListBox(list, items, true, true);
}

inline void ClearItemsCorNC(List &list, const QString &text, bool containing)
{
    if (text.isEmpty())
        return;
    for (int i = list.ListCount() - 1; i >= 0; --i) {
        if ((InStr(1, list.items[i], text, Textual) > 0) == containing)
            list.RemoveItem(i);
    }
}

inline void PasteToListBox(List &list, const QString &clipboard, const QString &delimiter)
{
    if (clipboard.isEmpty())
        return;
    if (InStr(1, clipboard, delimiter) == 0)
        return list.AddItem(Left(clipboard, 255));
    for (const QString &piece : Split(clipboard, delimiter)) {
        if (!piece.isEmpty())
            list.AddItem(Left(piece, 255));
    }
}
} // namespace plain
