// Menus as plain objects: a tree of items, each a control with a name, a caption and a Click. What stands in a menu is
// a table of rows; whatever shows menus mirrors the tree. Knows util.
#pragma once

#include "controls/Control.h"

#include <memory>
#include <span>
#include <vector>

/// One item of a menu's table. A member of an item array is written "mnuMNFind(0)"; the caption "-" is a separator.
struct MenuRow
{
    QLatin1StringView name;
    QLatin1StringView parent; ///< the item that opens the sub-menu in which this one stands; empty at the top
    QLatin1StringView caption;
};

/// An item: a command, a sub-menu or a separator. A click leaves the check mark alone; the command flips it.
class MenuItem : public Control
{
    Q_OBJECT

  public:
    MenuItem(const QString &name, const QString &parentItem, const QString &caption, QObject *form)
        : Control(name, form, caption), mParentItem(parentItem)
    {
    }

    [[nodiscard]] const QString &parentItem() const { return mParentItem; }
    [[nodiscard]] bool isSeparator() const { return caption() == QLatin1StringView("-"); }
    [[nodiscard]] bool isChecked() const { return mChecked; }
    void setChecked(bool checked);
    /// The user's click; a disabled item has none.
    void click();
    /// The check mark as truth text; any other text than "True" and "1" takes it away.
    [[nodiscard]] bool hasValue() const override { return true; }
    [[nodiscard]] QString stored() const override;
    void restore(const QString &value) override;
    /// 0 or 1: an item that has not the wanted check mark is clicked, and so is a command, which keeps no mark.
    void enter(const QString &value) override;

  Q_SIGNALS:
    void Click();

  private:
    QString mParentItem;
    bool mChecked = false;
};

/// A pop-up menu. Its items are controls of the form like all others, and found there by their names.
class Menu : public Control
{
    Q_OBJECT

  public:
    /// The items stand in the order of `rows`; a parent comes before its children.
    Menu(const QString &name, std::span<const MenuRow> rows, QObject *form, const QString &caption = {});

    /// Error 340 for a name that the menu has not.
    [[nodiscard]] MenuItem &item(QAnyStringView name) const;
    /// A member of an item array.
    [[nodiscard]] MenuItem &item(QLatin1StringView array, int index) const;
    /// The items below `parentItem` in their order, those of the top with "".
    [[nodiscard]] std::vector<MenuItem *> children(QAnyStringView parentItem = {}) const;
    /// One item more, behind the last one below `parentItem`.
    MenuItem &add(const QString &name, const QString &parentItem, const QString &caption);
    /// To be called before the menu is shown: who knows what may be done decides now.
    void prepare() { Q_EMIT aboutToShow(); }

  Q_SIGNALS:
    void aboutToShow();

  private:
    std::vector<std::unique_ptr<MenuItem>> mItems;
};
