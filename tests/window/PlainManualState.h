// The Manual tab in its plain form: five lists, their tables, the series and the base, and what its two menus offer,
// step by step as it is told.
#pragma once

#include "controls/PlainLists.h"
#include "pages/PlainFinders.h"

#include <QHash>

namespace plain {
class ManualState
{
  public:
    struct Filter
    {
        QString text;
        int kind = 0;
        QString server;
    };
    struct AutoText
    {
        QString url;
        qint64 start = 0;
        int position = 0;
    };

    List lists[5];
    QStringList tables[5];
    QString lastUrl[5]; ///< of the first row
    QList<AutoText> autoTexts[5];
    QString keptUrl[5]; ///< what the settings keep of each list's address
    QStringList cache, manualSelect;
    QStringList autoSelect, passUrls, savedUrls; ///< other tables that can be loaded
    QList<Filter> filters;
    QStringList filterBox;
    int filterKind = 0;
    QString filterText;
    int shown = 0, walked = 0;
    bool runs = false; ///< a Manual run walks the list `walked`
    QString clipboard, magnified, status;
    QString findText;
    int findNext = 0;
    QString url;      ///< in the address box
    int position = 0; ///< of the series
    int storedPosition = 0;
    qint64 numberBox = 0;
    bool base = false, siteData = false, elongated = false, navigates = false;
    int collectState = 0, collectLinks = -1, collectPages = -1;
    QHash<QString, bool> enabled;

    [[nodiscard]] List &list() { return lists[shown]; }
    [[nodiscard]] const List &list() const { return lists[shown]; }
    [[nodiscard]] static QString letter(int index) { return QStringLiteral("ABCDE").mid(index, 1); }
    [[nodiscard]] QString table() const { return QStringLiteral("MNUrls") + letter(shown); }
    [[nodiscard]] QString item() const { return list().items.value(list().listIndex); }
    [[nodiscard]] static bool isLink(const QString &text) { return IsThisEmailOrLink(text, true) == 2; }

    void count(const QString &text = {})
    {
        status = QString::number(list().ListCount()) + QStringLiteral(" loaded") +
                 (text.isEmpty() ? text : QStringLiteral(". ") + text);
    }
    void ShowSelected()
    {
        const int selected = list().SelCount();
        if (selected == 1) {
            const auto place =
                std::find(list().selected.begin(), list().selected.end(), true) - list().selected.begin();
            status = QStringLiteral("1 Sel. Item %1 Cnt %2").arg(place + 1).arg(list().ListCount());
        } else if (selected > 1) {
            status = QStringLiteral("%1 Sel Cnt %2").arg(selected).arg(list().ListCount());
        }
    }
    [[nodiscard]] QString GetListItemMN() const { return list().items.value(std::max(list().listIndex, 0)); }
    [[nodiscard]] QString GetUseBaseUrl(int mode) const
    {
        if (base && !url.isEmpty()) {
            if (url.contains(QStringLiteral("~ins~")))
                return QString(url).replace(QStringLiteral("~ins~"), GetListItemMN());
            return url + GetListItemMN();
        }
        if (base)
            return GetListItemMN();
        return mode == 1 ? GetListItemMN() : mode == 2 ? url : QString();
    }

    // What may be chosen.

    void openListMenu()
    {
        const bool series = position > 0;
        const bool selected = list().SelCount() > 0;
        const int all = list().ListCount();
        if (runs && walked == shown) {
            for (auto item = enabled.begin(); item != enabled.end(); ++item)
                item.value() = item.value() && isOfStatusMenu(item.key());
            for (const char *item : {"mnuMNMagnify", "mnuMNCopySelected", "mnuMNNavigateTo"})
                set(item, true);
            return;
        }
        set("mnuMNLoadLinksIE mnuMNLoadLinksFile mnuMNLoadSelectUrls", !series);
        set("mnuMNUseSiteData", true);
        set("mnuMNLSU(0) mnuMNLSU(1) mnuMNLSU(2) mnuMNLSU(3) mnuMNLSU(4)", true);
        set("mnuMNDeleteFilter", !filterText.isEmpty());
        set("mnuMNLoadLinksDB mnuMNDeleteSaved", !tables[shown].isEmpty() && !series);
        const int filled =
            int(std::count_if(std::begin(lists), std::end(lists), [](const List &one) { return one.ListCount() > 0; }));
        set("mnuMNClearAllListWindows", !runs && (all > 0 ? filled >= 2 : filled >= 1));
        const char *ofSelection = "mnuMNSaveLast mnuMNStatusSaveListWindowUrl mnuMNCutSelected mnuMNUnSelect "
                                  "mnuMNNavigateTo mnuMNMagnify mnuMNClearSelected mnuMNCopySelected";
        const char *ofItems = "mnuMNSelectAll mnuMNNewWindow mnuMNReduceToServer mnuMNSaveToDatabase mnuMNSaveAsFile "
                              "mnuMNClear mnuMNEdit mnuMNFind(0) mnuMNFind(2) mnuMNRem(0) mnuMNRem(1) mnuMNRem(2) "
                              "mnuMNRem(3) mnuMNRem(4) mnuMNRem(5)";
        if (all == 0) {
            set("mnuMNUniqueServersOnly mnuMNAddFilter mnuMNLocateFilter mnuMNFind(1)", false);
            set(ofItems, false);
            set(ofSelection, false);
        } else {
            const bool goesOn = !findText.isEmpty() && findNext > 0;
            set("mnuMNFind(1)", goesOn);
            if (!goesOn)
                forgetSearch();
            set("mnuMNUniqueServersOnly", all > 1);
            set(ofItems, true);
            if (!base)
                set("mnuMNLocateFilter", true);
            set(ofSelection, selected);
            set("mnuMNAddFilter", filterKind > 0 && !filterText.isEmpty());
        }
        set("mnuMNPasteLinks", !clipboard.isEmpty() && !series);
    }

    void openStatusMenu()
    {
        const bool series = position > 0;
        const bool hasUrl = !Trim(url).isEmpty();
        if (!runs) {
            set("mnuMNStatusListCL(0) mnuMNStatusListCL(1) mnuMNStatusListCL(2) mnuMNStatusListCL(3) "
                "mnuMNStatusListCL(4) mnuMNStatusAutoIncrementNumber mnuMNStatusAutoCollectLinks "
                "mnuMNStatusAutoCollectPageUrls",
                true);
            base = base && !series;
            set("mnuMNUseAutoBase", !series);
        } else {
            set("mnuMNStatusAutoIncrementNumber mnuMNStatusAutoCollectPageUrls mnuMNStatusAutoCollectLinks "
                "mnuMNSetFirstFromTextBox mnuMNStatusDeleteAutoTextUrl mnuMNUseAutoBase",
                false);
        }
        if (hasUrl) {
            set("mnuMNStatusSaveUrlMNSelect mnuMNStatusMagnify mnuMNStatusNavigateToAutoTextUrl", true);
            set("mnuMNStatusDeleteAutoTextUrl", !runs);
            const bool fits = SetupAutoIncrMenu() >= 1;
            set("mnuMNSetFirstFromTextBox mnuMNStatusSaveAutoTextUrl", fits);
            CheckMNAutoNav();
            return;
        }
        position = 0;
        for (int i = 1; i <= 9; ++i)
            enabled[positionItem(i)] = false;
        set("mnuMNStatusNavigateToAutoTextUrl mnuMNStatusSaveAutoTextUrl mnuMNStatusDeleteAutoTextUrl "
            "mnuMNStatusMagnify mnuMNStatusSaveUrlMNSelect mnuMNSetFirstFromTextBox",
            false);
    }

    void CheckMNAutoNav()
    {
        const bool series = position >= 1;
        if (series)
            set("mnuMNStatusNavigateToAutoTextUrl mnuMNSetFirstFromTextBox", true);
        if (series && list().ListCount() > 0)
            return;
        const bool available = series && collectLinks < 0 && collectPages < 0 && !base;
        set("mnuMNStatusAutoNavigate", available);
        navigates = navigates && available;
    }

    /// What is settled behind most commands: a position that is remembered comes back with an address for it.
    void SetStateOfControls()
    {
        CheckMNAutoNav();
        if (position == 0 && !runs && storedPosition > 0 && isLink(url) && !numbers(url).isEmpty())
            SetAutoIncrPos(storedPosition);
    }

    // The series.

    int SetupAutoIncrMenu()
    {
        const int count = isLink(url) ? int(numbers(url).size()) : 0;
        for (int i = 1; i <= 9; ++i)
            enabled[positionItem(i)] = i <= count;
        position = position <= count ? position : 0;
        storedPosition = position;
        return position;
    }
    void SetAutoIncrPos(int wanted)
    {
        const bool on = position != wanted;
        if (on && base)
            useBase();
        position = on ? wanted : 0;
        if (on && numbers(url).size() >= wanted)
            setNumberBox(number(url, wanted));
        status = SetupAutoIncrMenu() >= 1 ? QStringLiteral("(AutoIncr ON)") : QStringLiteral("(AutoIncr OFF)");
    }
    void useBase()
    {
        if (!base && position > 0) {
            status = QStringLiteral("(AutoIncr ON)");
            return;
        }
        base = !base;
        status = base ? QStringLiteral("(UseBase ON)") : QStringLiteral("(UseBase OFF)");
        if (!base && collectState % 4 > 1)
            collectState = collectState / 4 * 4 + 1;
    }
    void typeUrl(const QString &text) { url = keptUrl[shown] = text; }
    void saveAutoText()
    {
        const auto known = std::any_of(autoTexts[shown].begin(), autoTexts[shown].end(),
                                       [this](const AutoText &row) { return LCase(row.url) == LCase(url); });
        if (!known)
            autoTexts[shown].append({url, numberBox, position});
        status = known ? QStringLiteral("Url exists") : QStringLiteral("AutoText%1, Url Added").arg(letter(shown));
    }
    void deleteAutoText()
    {
        const auto gone =
            autoTexts[shown].removeIf([this](const AutoText &row) { return LCase(row.url) == LCase(url); });
        status = gone > 0 ? QStringLiteral("Auto Text Url Deleted") : QStringLiteral("Auto Text Cleared");
        typeUrl({});
    }
    void takeStart()
    {
        if (isLink(url) && position > 0 && numbers(url).size() >= position)
            setNumberBox(number(url, position));
    }
    void show(int index)
    {
        if (index == shown)
            return;
        shown = index;
        if (!keptUrl[shown].isEmpty())
            url = keptUrl[shown];
        typeUrl(url); // the box is filled anew and gets its text back
        ManageAutoText();
        SetStateOfControls();
        const QString server =
            tables[shown].isEmpty() ? QString() : GetServerFromUrl(tables[shown].constLast(), false, true, true);
        status = tables[shown].isEmpty() ? table() + QStringLiteral(" no saved")
                                         : QStringLiteral("%1 saved: %2").arg(tables[shown].size()).arg(server);
    }

  protected:
    [[nodiscard]] static QString lineEnd() { return QStringLiteral("\r\n"); }
    [[nodiscard]] static QString positionItem(int i) { return QStringLiteral("mnuMNStatusAutoIncrPos(%1)").arg(i); }
    [[nodiscard]] static bool isOfStatusMenu(const QString &item)
    {
        return item == QStringLiteral("mnuMNUseAutoBase") || item == QStringLiteral("mnuMNSetFirstFromTextBox") ||
               (item.startsWith(QStringLiteral("mnuMNStatus")) &&
                item != QStringLiteral("mnuMNStatusSaveListWindowUrl"));
    }
    void set(const char *items, bool on)
    {
        for (const QString &item : QString::fromLatin1(items).split(u' '))
            enabled[item] = on;
    }
    [[nodiscard]] static bool holds(const QStringList &rows, const QString &url)
    {
        return std::any_of(rows.begin(), rows.end(), [&](const QString &row) { return LCase(row) == LCase(url); });
    }
    void forgetSearch()
    {
        findText.clear();
        findNext = 0;
    }
    void tellFound(int found, const QString &text)
    {
        if (found == 0)
            status = text + QStringLiteral(" not found");
        else
            ShowSelected();
    }
    void copyToClipboard()
    {
        if (const QString text = CopySelected(list(), lineEnd()); !text.isEmpty())
            clipboard = text;
    }
    /// Start and end of each run of digits.
    [[nodiscard]] static QList<std::pair<qsizetype, qsizetype>> numbers(const QString &text)
    {
        QList<std::pair<qsizetype, qsizetype>> found;
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text[i] < u'0' || text[i] > u'9')
                continue;
            if (found.isEmpty() || found.last().second != i)
                found.append({i, i});
            found.last().second = i + 1;
        }
        return found;
    }
    [[nodiscard]] static qint64 number(const QString &text, int position)
    {
        const auto [from, to] = numbers(text)[position - 1];
        return text.mid(from, to - from).toLongLong();
    }
    /// The number of the address follows the box while a series is on.
    void setNumberBox(qint64 value)
    {
        if (value == numberBox)
            return;
        numberBox = value;
        if (position < 1 || url.isEmpty())
            return;
        if (numbers(url).isEmpty())
            return;
        if (numbers(url).size() < position) {
            url.clear();
            return;
        }
        const auto [from, to] = numbers(url)[position - 1];
        url.replace(from, to - from, QString::number(value).rightJustified(to - from, u'0'));
    }
    void ManageAutoText()
    {
        if (url.isEmpty())
            return;
        const auto row = std::find_if(autoTexts[shown].begin(), autoTexts[shown].end(),
                                      [this](const AutoText &text) { return LCase(text.url) == LCase(url); });
        if (row == autoTexts[shown].end()) {
            if (position > 0)
                SetAutoIncrPos(position);
            return;
        }
        const qint64 start = row->start;
        if (position != row->position)
            SetAutoIncrPos(row->position);
        setNumberBox(start);
    }
};
} // namespace plain
