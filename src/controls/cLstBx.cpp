#include "controls/cLstBx.h"

#include "util/AddressList.h"
#include "util/ColumnText.h"
#include "util/Text.h"

#include <QSet>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr qsizetype shortestBeginning = 2;

bool isBlank(QStringView text)
{
    return cUtility::Trim(text).isEmpty();
}

/// The first item from `start` on that equals `text`; -1 if there is none.
int findEqual(const QStringList &items, const QString &text, int start)
{
    const auto found = std::find_if(items.begin() + start, items.end(),
                                    [&](const QString &item) { return cUtility::equalIgnoringCase(item, text); });
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

/// The first item that holds the longest beginning of `text`. An item that holds a beginning holds all shorter ones, so
/// one pass does that only asks whether an item holds more than the best one before it.
int findBeginning(const QStringList &items, const QString &text, int start)
{
    int best = -1;
    qsizetype wanted = shortestBeginning;
    for (int i = start; i < items.size() && wanted <= text.size(); ++i) {
        while (wanted <= text.size() && cUtility::holdsIgnoringCase(items[i], QStringView(text).left(wanted))) {
            best = i;
            ++wanted;
        }
    }
    return best;
}
} // namespace

QStringList cLstBx::GetItems(const ListBox &list, Which which)
{
    const QStringList &items = list.items();
    if (which == Which::All && std::none_of(items.begin(), items.end(), isBlank))
        return orEmptyList(items); // shared, whatever their number
    QStringList found;
    for (int i = 0; i < list.listCount(); ++i) {
        if ((which == Which::All || list.isSelected(i)) && !isBlank(items[i]))
            found.append(items[i]);
    }
    return orEmptyList(std::move(found));
}

void cLstBx::SelectAllLst(ListBox &list)
{
    list.setAllSelected(true);
}

void cLstBx::UnSelect(ListBox &list)
{
    list.setAllSelected(false);
}

void cLstBx::ClearSelected(ListBox &list)
{
    list.removeItems(list.selection());
}

void cLstBx::PasteToListBox(ListBox &list, const QString &text, const QString &delimiter)
{
    if (text.isEmpty())
        return;
    QStringList pieces = text.contains(delimiter) ? text.split(delimiter, Qt::SkipEmptyParts) : QStringList{text};
    for (QString &piece : pieces)
        piece = cUtility::asColumnText(piece);
    list.addItems(pieces);
}

QString cLstBx::CopySelected(const ListBox &list, const QString &delimiter)
{
    const int selected = list.selCount();
    if (selected == 1)
        return list.list(list.listIndex());
    QString text;
    for (int i = 0; i < list.listCount(); ++i) {
        const QString &item = list.items()[i];
        if (selected > 1 ? list.isSelected(i) : !item.isEmpty())
            text += item + delimiter;
    }
    return text;
}

QString cLstBx::CutLst(ListBox &list)
{
    QString text = CopySelected(list, u"\r\n"_s);
    ClearSelected(list);
    return text;
}

int cLstBx::FindText(ListBox &list, const QString &text, int start)
{
    start = std::clamp(start, 0, list.listCount());
    int found = findEqual(list.items(), text, start);
    if (found < 0)
        found = findBeginning(list.items(), text, start);
    std::vector<bool> selected(static_cast<std::size_t>(list.listCount()));
    if (found >= 0)
        selected[static_cast<std::size_t>(found)] = true;
    list.choose(found >= 0 ? found : list.listIndex(), selected);
    return std::max(found, 0);
}

bool cLstBx::DoesItemExist(const ListBox &list, const QString &item)
{
    return findEqual(list.items(), item, 0) >= 0;
}

void cLstBx::PopulateListBox(ListBox &list, const QStringList &values, bool noBlanks, bool clearPrevious)
{
    QSet<QString> isNew;
    if (!clearPrevious) {
        for (const QString &value : values)
            isNew.insert(cUtility::lowered(value));
        for (const QString &item : list.items())
            isNew.remove(cUtility::lowered(item));
    }
    QStringList added;
    added.reserve(values.size());
    std::copy_if(values.begin(), values.end(), std::back_inserter(added), [&](const QString &value) {
        return (clearPrevious || isNew.contains(cUtility::lowered(value))) && !(noBlanks && isBlank(value));
    });
    if (clearPrevious)
        list.setItems(added);
    else
        list.addItems(added);
}

QString cLstBx::truncated(const QString &item, const QString &text, Cut cut)
{
    const qsizetype at = cUtility::indexIgnoringCase(item, text);
    return at < 0 ? item : cut == Cut::LeftSide ? item.mid(at + text.size()) : item.left(at);
}

void cLstBx::TruncateList(ListBox &list, const QString &text, Cut cut)
{
    QStringList items;
    items.reserve(list.listCount());
    for (const QString &item : list.items())
        items.append(truncated(item, text, cut));
    PopulateListBox(list, items, true, true);
}

bool cLstBx::isToGo(const QString &item, const QString &text, Remove which)
{
    return cUtility::holdsIgnoringCase(item, text) == (which == Remove::Containing);
}

void cLstBx::ClearItemsCorNC(ListBox &list, const QString &text, Remove which)
{
    if (text.isEmpty())
        return;
    std::vector<bool> gone;
    gone.reserve(static_cast<std::size_t>(list.listCount()));
    for (const QString &item : list.items())
        gone.push_back(isToGo(item, text, which));
    list.removeItems(gone);
}
