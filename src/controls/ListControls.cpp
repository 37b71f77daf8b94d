#include "controls/ListControls.h"

#include "util/Errors.h"

#include <algorithm>
#include <utility>

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
                                            ? QStringLiteral("Invalid property value")
                                            : QStringLiteral("Invalid procedure call or argument"));
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
            throw RuntimeError(textIsReadOnly, QStringLiteral("'Text' property is read-only"));
        return setListIndex(static_cast<int>(index));
    }
    if (mText == text)
        return;
    storeIndex(-1);
    mText = text;
    Q_EMIT changed();
    Q_EMIT Change();
}

void ComboBox::clear()
{
    mText.clear();
    ListControl::clear();
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
