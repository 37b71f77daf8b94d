// The controls with a list: combo box and list box. Indices count from 0; -1 means that nothing is chosen.
#pragma once

#include "controls/Control.h"

#include <QStringList>
#include <vector>

/// What both kinds share. An index outside the list raises error 380 when it is chosen and error 5 when it is to be
/// removed; reading an item outside the list gives "".
class ListControl : public Control
{
    Q_OBJECT

  public:
    /// With `items` the first one is chosen.
    ListControl(const QString &name, QObject *parent, const QStringList &items = {});

    [[nodiscard]] int listCount() const { return static_cast<int>(mItems.size()); }
    [[nodiscard]] const QStringList &items() const { return mItems; }
    [[nodiscard]] QString list(int index) const { return mItems.value(index); }
    [[nodiscard]] int listIndex() const { return mListIndex; }
    /// What is shown where nothing stands: what belongs there, and what comes next.
    [[nodiscard]] const QString &emptyText() const { return mEmptyText; }
    void setEmptyText(const QString &text) { assign(mEmptyText, text); }
    /// Chooses an item, or none with -1. A changed index raises Click.
    void setListIndex(int index);

    virtual void addItem(const QString &item);
    virtual void removeItem(int index);
    /// Takes all items away; the index becomes -1 without a Click.
    virtual void clear();
    /// The same as many calls of addItem(), with one changed(): a list may take a million items at once.
    virtual void addItems(const QStringList &items);
    /// The same as clear() and addItems(), with one changed().
    virtual void setItems(const QStringList &items);

    /// Something is chosen.
    [[nodiscard]] bool hasValue() const override { return mListIndex >= 0; }
    [[nodiscard]] QString stored() const override { return QString::number(mListIndex); }
    void restore(const QString &value) override { setListIndex(wholeNumber(value)); }
    void repeatEvent() override { Q_EMIT Click(); }

  Q_SIGNALS:
    void Click();

  protected:
    void checkIndex(int index, qint64 errorNumber) const;
    virtual void indexChosen() {}
    /// Makes `index`, which is -1 or in the list, the chosen one. No Click; True when it differed.
    bool storeIndex(int index);
    /// The items and the chosen one as they are from now on. No Click.
    void storeItems(const QStringList &items, int index);

  private:
    QStringList mItems;
    QString mEmptyText;
    int mListIndex = -1;
};

/// A combo box. A drop-down list shows one of its items; an editable one holds any text.
class ComboBox : public ListControl
{
    Q_OBJECT

  public:
    enum class Style { DropDownList, DropDownCombo };
    /// An editable one without items.
    ComboBox(const QString &name, QObject *parent) : ComboBox(name, Style::DropDownCombo, parent) {}
    /// With `items` the first one is chosen.
    ComboBox(const QString &name, Style style, QObject *parent, const QStringList &items = {});

    [[nodiscard]] Style style() const { return mStyle; }
    [[nodiscard]] QString text() const;
    /// The user types, or the program writes: Change is raised when the text differs. A drop-down list accepts only
    /// one of its items and chooses it; anything else is error 383. In an editable one a new text chooses no item.
    void setText(const QString &text);
    void clear() override;
    void setItems(const QStringList &items) override;
    // The value of an editable one is its text.
    [[nodiscard]] bool hasValue() const override { return mStyle == Style::DropDownCombo || listIndex() >= 0; }
    [[nodiscard]] QString stored() const override;
    void restore(const QString &value) override;
    /// An item's text or its index; any text in an editable one.
    void enter(const QString &value) override;
    /// The user's choice in the open list. Click is raised for the row that is chosen already, too: whoever chooses it
    /// wants done again what the choice does.
    void choose(int index);
    /// The user opens the list.
    void dropDown() { Q_EMIT DropDown(); }
    /// The user leaves the box.
    void validate() { Q_EMIT Validate(); }

  Q_SIGNALS:
    void Change();
    void DropDown();
    void Validate();

  protected:
    void indexChosen() override;

  private:
    Style mStyle;
    QString mText;
};

/// A list box in which several items may be selected. Its index is the item with the focus.
class ListBox : public ListControl
{
    Q_OBJECT

  public:
    ListBox(const QString &name, QObject *parent) : ListControl(name, parent) {}

    [[nodiscard]] bool isSelected(int index) const;
    /// Error 380 outside the list. A changed selection raises Click.
    void setSelected(int index, bool selected);
    /// The user's choice: the item with the focus (or -1) and which items are selected, one flag each. Click is raised
    /// once, when all of it is in place, and only if something changed. A choice that does not fit the list is ignored.
    void choose(int focusIndex, const std::vector<bool> &selected);
    /// The user lets go of mouse or key: what is chosen stands.
    void endChoice() { Q_EMIT choiceEnded(); }
    /// Selects every item or none. Click is raised once, if something changed.
    void setAllSelected(bool selected);
    [[nodiscard]] int selCount() const;
    /// One flag an item.
    [[nodiscard]] const std::vector<bool> &selection() const { return mSelected; }
    void addItem(const QString &item) override;
    void removeItem(int index) override;
    void clear() override;
    void addItems(const QStringList &items) override;
    void setItems(const QStringList &items) override;
    /// The same as many calls of removeItem(), with one changed(): the items whose flag is set go. Flags that do not
    /// fit the list are error 5.
    void removeItems(const std::vector<bool> &gone);
    /// One item more.
    void enter(const QString &value) override { addItem(value); }

  Q_SIGNALS:
    void choiceEnded();

  private:
    std::vector<bool> mSelected;
};
