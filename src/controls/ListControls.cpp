#include "controls/ListControls.h"

#include "util/Errors.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 textIsReadOnly = 383;
}

ListControl::ListControl(const QString &name, QObject *parent, const QStringList &items)
    : Control(name, parent), mItems(items), mListIndex(items.isEmpty() ? -1 : 0)
{
    setBackColor(Colours::Window);
    setForeColor(Colours::WindowText);
}

void ListControl::checkIndex(int index, qint64 errorNumber) const
{
    if (index < 0 || index >= listCount())
        throw RuntimeError(errorNumber, errorNumber == ErrorNumber::InvalidPropertyValue
                                            ? u"Invalid property value"_s
                                            : u"Invalid procedure call or argument"_s);
}

void ListControl::setListIndex(int index)
{
    if (index != -1)
        checkIndex(index, ErrorNumber::InvalidPropertyValue);
    if (index == mListIndex)
        return;
    mListIndex = index;
    indexChosen();
    Q_EMIT changed();
    Q_EMIT altered();
    Q_EMIT Click();
}

bool ListControl::storeIndex(int index)
{
    return std::exchange(mListIndex, index) != index;
}

void ListControl::addItem(const QString &item)
{
    mItems.append(item);
    Q_EMIT changed();
}

void ListControl::removeItem(int index)
{
    checkIndex(index, ErrorNumber::InvalidProcedureCall);
    mItems.removeAt(index);
    if (index == mListIndex)
        mListIndex = -1;
    else if (index < mListIndex)
        --mListIndex;
    Q_EMIT changed();
}

void ListControl::clear()
{
    mItems.clear();
    mListIndex = -1;
    Q_EMIT changed();
}

void ListControl::addItems(const QStringList &items)
{
    if (items.isEmpty())
        return;
    mItems.append(items);
    Q_EMIT changed();
}

void ListControl::setItems(const QStringList &items)
{
    storeItems(items, -1);
    Q_EMIT changed();
}

void ListControl::storeItems(const QStringList &items, int index)
{
    mItems = items;
    mListIndex = index;
}

ComboBox::ComboBox(const QString &name, Style style, QObject *parent, const QStringList &items)
    : ListControl(name, parent, items), mStyle(style), mText(list(listIndex()))
{
}

QString ComboBox::text() const
{
    return mStyle == Style::DropDownList ? list(listIndex()) : mText;
}

void ComboBox::setText(const QString &text)
{
    if (mStyle == Style::DropDownList) {
        const auto index = items().indexOf(text);
        if (index < 0)
            throw RuntimeError(textIsReadOnly, u"'Text' property is read-only"_s);
        return setListIndex(static_cast<int>(index));
    }
    if (mText == text)
        return;
    storeIndex(-1);
    mText = text;
    Q_EMIT changed();
    Q_EMIT altered();
    Q_EMIT Change();
}

QString ComboBox::stored() const
{
    return mStyle == Style::DropDownCombo ? mText : ListControl::stored();
}

void ComboBox::restore(const QString &value)
{
    if (mStyle == Style::DropDownCombo)
        setText(value);
    else
        ListControl::restore(value);
}

void ComboBox::enter(const QString &value)
{
    const auto byText = items().indexOf(value);
    bool isNumber = false;
    const int index = byText >= 0 ? static_cast<int>(byText) : value.toInt(&isNumber);
    if (byText >= 0 || (isNumber && index >= 0 && index < listCount()))
        setListIndex(index);
    else if (mStyle == Style::DropDownCombo)
        setText(value);
    else
        refuse(u"there is no item \"%1\""_s.arg(value));
}

void ComboBox::choose(int index)
{
    if (index != listIndex())
        return setListIndex(index);
    if (index >= 0)
        Q_EMIT Click();
}

void ComboBox::clear()
{
    mText.clear();
    ListControl::clear();
}

void ComboBox::setItems(const QStringList &items)
{
    mText.clear();
    ListControl::setItems(items);
}

void ComboBox::indexChosen()
{
    mText = list(listIndex());
}

bool ListBox::isSelected(int index) const
{
    return index >= 0 && index < listCount() && mSelected[static_cast<std::size_t>(index)];
}

void ListBox::setSelected(int index, bool selected)
{
    checkIndex(index, ErrorNumber::InvalidPropertyValue);
    if (mSelected[static_cast<std::size_t>(index)] == selected)
        return;
    mSelected[static_cast<std::size_t>(index)] = selected;
    Q_EMIT changed();
    Q_EMIT Click();
}

void ListBox::choose(int focusIndex, const std::vector<bool> &selected)
{
    if (focusIndex < -1 || focusIndex >= listCount() || selected.size() != mSelected.size())
        return;
    const bool moved = storeIndex(focusIndex);
    if (!moved && selected == mSelected)
        return;
    mSelected = selected;
    Q_EMIT changed();
    Q_EMIT Click();
}

void ListBox::setAllSelected(bool selected)
{
    choose(listIndex(), std::vector<bool>(mSelected.size(), selected));
}

int ListBox::selCount() const
{
    return static_cast<int>(std::count(mSelected.begin(), mSelected.end(), true));
}

void ListBox::addItem(const QString &item)
{
    mSelected.push_back(false);
    ListControl::addItem(item);
}

void ListBox::removeItem(int index)
{
    checkIndex(index, ErrorNumber::InvalidProcedureCall);
    mSelected.erase(mSelected.begin() + index);
    ListControl::removeItem(index);
}

void ListBox::clear()
{
    mSelected.clear();
    ListControl::clear();
}

void ListBox::addItems(const QStringList &items)
{
    mSelected.resize(mSelected.size() + static_cast<std::size_t>(items.size()));
    ListControl::addItems(items);
}

void ListBox::setItems(const QStringList &items)
{
    mSelected.assign(static_cast<std::size_t>(items.size()), false);
    ListControl::setItems(items);
}

void ListBox::removeItems(const std::vector<bool> &gone)
{
    if (gone.size() != mSelected.size())
        checkIndex(-1, ErrorNumber::InvalidProcedureCall);
    const auto going = std::count(gone.begin(), gone.end(), true);
    if (going == 0)
        return;
    QStringList kept;
    kept.reserve(items().size() - going);
    std::vector<bool> selected;
    int index = -1;
    for (int i = 0; i < listCount(); ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (gone[at])
            continue;
        if (i == listIndex())
            index = static_cast<int>(kept.size());
        kept.append(items()[i]);
        selected.push_back(mSelected[at]);
    }
    mSelected = std::move(selected);
    storeItems(kept, index);
    Q_EMIT changed();
}
