// The commands of the Manual tab's two menus in their plain form: what each does to lists, tables and filters, step by
// step as it is told. A random walk holds the program against it.
#pragma once

#include "window/PlainManualState.h"

namespace plain {
class Manual : public ManualState
{
  public:
    // Commands of the list's menu.

    void clear()
    {
        list().Clear();
        status = QStringLiteral("Window cleared");
    }
    void clearSelected()
    {
        const int index = list().listIndex;
        if (index < 0)
            return;
        if (list().SelCount() == 1) {
            list().RemoveItem(index);
            if (index < list().ListCount()) {
                list().setSelected(index, true);
                list().listIndex = index;
            }
        } else {
            plain::ClearSelected(list());
        }
        count();
    }
    void clearAll()
    {
        QStringList names;
        for (int i = 0; i < 5; ++i) {
            if (lists[i].ListCount() > 0)
                names.append(letter(i));
            lists[i].Clear();
        }
        status = names.join(u',') + QStringLiteral(" cleared");
    }
    void selectAll()
    {
        SelectAllLst(list());
        count(QStringLiteral("Selected"));
    }
    void magnify()
    {
        const QString text = list().SelCount() > 0 ? CopySelected(list(), lineEnd()) : GetUseBaseUrl(1);
        if (!text.isEmpty())
            magnified = text;
    }
    void paste()
    {
        const bool split = clipboard.contains(lineEnd());
        int added = 0;
        for (const QString &piece : split ? Split(clipboard, lineEnd()) : QStringList{clipboard}) {
            if (piece.isEmpty() || !(base || isLink(Left(piece, 255))))
                continue;
            list().AddItem(Left(piece, 255));
            added += split ? 1 : 0;
        }
        count(QStringLiteral(" %1 added").arg(added));
    }
    void cut()
    {
        copyToClipboard();
        plain::ClearSelected(list());
        count();
    }
    void copy()
    {
        copyToClipboard();
        status = QStringLiteral("Copied ") + item();
    }
    void find(const QString &text)
    {
        const int found = FindText(list(), text, 0);
        if (found + 1 < list().ListCount()) {
            findNext = found + 1;
            findText = text;
        }
        tellFound(found, text);
    }
    void goOnFinding()
    {
        if (findText.isEmpty() || findNext < 1 || list().ListCount() <= findNext)
            return;
        const int found = FindText(list(), findText, findNext);
        if (found >= 1 && found + 1 < list().ListCount())
            findNext = found + 1;
        else
            forgetSearch();
        tellFound(found, {});
    }
    void findPosition()
    {
        const QString last = tables[shown].isEmpty() ? QString() : lastUrl[shown];
        if (!last.isEmpty())
            tellFound(FindText(list(), last, 0), last);
    }
    void save()
    {
        for (const QString &item : list().items) {
            if (!item.isEmpty() && !item.contains(u'\'') && !holds(tables[shown], item))
                tables[shown].append(item);
        }
        status = QStringLiteral("Saved To ") + table();
    }
    void savePosition()
    {
        if (!tables[shown].isEmpty() && !item().isEmpty())
            lastUrl[shown] = item();
    }
    void load()
    {
        for (const QString &row : tables[shown])
            list().AddItem(row);
        FindText(list(), lastUrl[shown], 0);
        count();
    }
    void deleteSaved()
    {
        cache = tables[shown];
        tables[shown].clear();
        lastUrl[shown].clear();
        status = table() + QStringLiteral(" deleted");
    }
    void loadOther(const QStringList &urls)
    {
        PopulateListBox(list(), urls, true, false);
        count();
    }
    /// "Repeats" and "Reduce To Server".
    void screen(bool servers)
    {
        QStringList kept;
        for (const QString &item : list().items) {
            const QString wanted = servers ? GetServerFromUrl(item, true, true, true) : item;
            if (!wanted.isEmpty() && !kept.contains(wanted))
                kept.append(wanted);
        }
        if (!kept.isEmpty())
            PopulateListBox(list(), kept, false, true);
        count();
    }
    void uniqueServers()
    {
        const QStringList kept = GetUniqueServers(GetItems(list(), false));
        PopulateListBox(list(), kept, true, true);
        count();
    }
    void removeProtocol()
    {
        const QString http = QStringLiteral("http://");
        QStringList kept;
        for (QString item : list().items) {
            if (Len(item) < Len(http))
                continue;
            if (LCase(Left(item, 7)) == http)
                item = Mid(item, 8);
            if (Right(item, 1) == QStringLiteral("/"))
                item = Left(item, Len(item) - 1);
            kept.append(item);
        }
        if (!kept.isEmpty())
            PopulateListBox(list(), kept, true, true);
        count();
    }
    void truncate(const QString &text, bool leftSide)
    {
        TruncateList(list(), text, leftSide);
        count();
    }
    void removeItems(const QString &text, bool containing)
    {
        ClearItemsCorNC(list(), text, containing);
        count();
    }
    void mark(const QString &address, const QString &note)
    {
        if (!base && !isLink(address))
            status = QStringLiteral("Browser is not on a site");
        else if (note.isEmpty())
            status = QStringLiteral("Not added. No Note provided");
        else if (address.contains(u'\''))
            return; // the query breaks
        else if (holds(manualSelect, address))
            status = QStringLiteral("Url exists");
        else {
            manualSelect.append(address);
            status = QStringLiteral("MNSelectUrls, Url Added");
        }
    }

    // Filters.

    void typeFilter(const QString &text)
    {
        if (text == filterText)
            return;
        filterText = text;
        filterKind = 0; // no entry is chosen
    }
    void addFilter()
    {
        const auto known = std::any_of(filters.begin(), filters.end(), [this](const Filter &filter) {
            return LCase(filter.text) == LCase(filterText);
        });
        if (known) {
            status = QStringLiteral("Filter exists");
            return;
        }
        filters.append(
            {filterText, filterKind, item().isEmpty() ? QString() : GetServerFromUrl(item(), false, true, true)});
        filterBox.append(filterText);
        status = QStringLiteral("Filter added");
    }
    void deleteFilter()
    {
        if (!filterBox.contains(filterText)) {
            status = QStringLiteral("Filter not found");
            return;
        }
        filters.removeIf([this](const Filter &filter) { return LCase(filter.text) == LCase(filterText); });
        filterBox.removeOne(filterText);
        status = QStringLiteral("Filter removed");
    }
    void locateFilter()
    {
        if (!isLink(item()))
            return;
        const QString server = LCase(GetServerFromUrl(item(), false, true, true));
        const auto found = std::find_if(filters.begin(), filters.end(),
                                        [&](const Filter &filter) { return LCase(filter.server) == server; });
        filterKind = found == filters.end() ? 0 : found->kind;
        if (found != filters.end())
            filterText = found->text;
    }

    // Collecting.

    void collect(int &chosen, int index, bool pages)
    {
        const bool off = chosen == index;
        chosen = off ? -1 : index;
        const int content = collectState % 4;
        if (pages)
            collectState = off ? content : 4 + content;
        else if (off)
            collectState -= content;
        else if (content == 0)
            collectState += 1;
        if (!collectText().isEmpty())
            status = collectText();
    }

  private:
    [[nodiscard]] QString collectText() const
    {
        const QString pages = collectPages < 0 ? QString() : letter(collectPages);
        const QString links = collectLinks < 0 ? QString() : letter(collectLinks);
        const QString alone = QStringLiteral("[(Manual)-%1]").arg(links.isEmpty() ? pages : links);
        const QString both = QStringLiteral("[(M)-%1, (M)-%2]").arg(pages, links);
        switch (collectState) {
        case 1:
            return QStringLiteral("Urls On Sites ") + alone;
        case 4:
            return QStringLiteral("Urls Of Sites ") + alone;
        case 5:
            return QStringLiteral("Urls Of, On Sites ") + both;
        default:
            return {};
        }
    }
};
} // namespace plain
