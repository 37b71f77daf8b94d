#include "controls/SimpleControls.h"

#include "util/Errors.h"

using namespace Qt::StringLiterals;

void CheckBox::setValue(int value)
{
    if (value < 0 || value > 2)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue, u"Invalid property value"_s);
    if (!assign(mValue, value))
        return;
    Q_EMIT altered();
    Q_EMIT Click();
}

void CheckBox::enter(const QString &value)
{
    if (value != "0"_L1 && value != "1"_L1)
        refuse(u"a box takes 0 or 1, not \"%1\""_s.arg(value));
    setValue(value.toInt());
}

TextBox::TextBox(const QString &name, QObject *parent) : Control(name, parent)
{
    setBackColor(Colours::Window);
    setForeColor(Colours::WindowText);
}

void TextBox::setText(const QString &text)
{
    if (!assign(mText, text))
        return;
    Q_EMIT altered();
    Q_EMIT Change();
}

void Button::click()
{
    if (isEnabled())
        Q_EMIT Click();
}

TabControl::TabControl(const QString &name, QStringList captions, QObject *parent)
    : Control(name, parent), mCaptions(std::move(captions))
{
}

void TabControl::setTab(int tab)
{
    if (tab < 0 || tab >= mCaptions.size())
        throw RuntimeError(ErrorNumber::InvalidPropertyValue, u"Invalid property value"_s);
    if (assign(mTab, tab))
        Q_EMIT Click();
}
