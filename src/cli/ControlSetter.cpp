#include "cli/ControlSetter.h"

#include "util/Text.h"

using namespace Qt::StringLiterals;

namespace {
[[noreturn]] void refuse(const QString &name, const QString &text)
{
    throw RuntimeError(ErrorNumber::InvalidPropertyValue, u"--set %1: %2"_s.arg(name, text));
}

void set(CheckBox &box, const QString &value)
{
    if (value != "0"_L1 && value != "1"_L1)
        refuse(box.name(), u"a box takes 0 or 1, not \"%1\""_s.arg(value));
    box.setValue(value.toInt());
}

void set(ComboBox &combo, const QString &value)
{
    const auto byText = combo.items().indexOf(value);
    bool isIndex = false;
    const int index = value.toInt(&isIndex);
    if (byText >= 0)
        combo.setListIndex(static_cast<int>(byText));
    else if (isIndex && index >= 0 && index < combo.listCount())
        combo.setListIndex(index);
    else if (combo.style() == ComboBox::Style::DropDownCombo)
        combo.setText(value);
    else
        refuse(combo.name(), u"there is no item \"%1\""_s.arg(value));
}

void set(NumberBox &number, const QString &value)
{
    const bool fits = !value.isEmpty() && value.size() <= number.digits() &&
                      std::all_of(value.begin(), value.end(), [](QChar c) { return cUtility::isDigit(c.unicode()); });
    if (!fits)
        refuse(number.name(), u"takes up to %1 digits, not \"%2\""_s.arg(number.digits()).arg(value));
    number.setText(value);
}
/// A menu item that has not the wanted check mark is clicked, and so is a command, which keeps no mark.
void set(MenuItem &item, const QString &value)
{
    if (value != "0"_L1 && value != "1"_L1)
        refuse(item.name(), u"a menu item takes 0 or 1, not \"%1\""_s.arg(value));
    if (item.isChecked() == (value == "1"_L1))
        return;
    if (!item.isEnabled())
        refuse(item.name(), u"this menu item is disabled at the moment"_s);
    item.click();
}
} // namespace

void setControl(frmSearch &form, const QString &name, const QString &value)
{
    Control *control = form.control(name);
    if (auto *box = qobject_cast<CheckBox *>(control))
        set(*box, value);
    else if (auto *combo = qobject_cast<ComboBox *>(control))
        set(*combo, value);
    else if (auto *number = qobject_cast<NumberBox *>(control))
        set(*number, value);
    else if (auto *text = qobject_cast<TextBox *>(control))
        text->setText(value);
    else if (auto *list = qobject_cast<ListBox *>(control))
        list->addItem(value);
    else if (auto *item = qobject_cast<MenuItem *>(control))
        set(*item, value);
    else
        refuse(name, control ? u"this control has no value"_s : u"there is no such control"_s);
}
