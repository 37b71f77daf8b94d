#include "controls/NumberBox.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
bool isDigits(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}
} // namespace

NumberBox::NumberBox(const QString &name, QObject *parent, int digits) : Control(name, parent), mDigits(digits)
{
    setBackColor(Colours::Window);
    setForeColor(Colours::WindowText);
    ShowIncValue(0);
}

qint64 NumberBox::top() const
{
    qint64 range = 1;
    for (int i = 0; i < mDigits; ++i)
        range *= 10;
    return range - 1;
}

void NumberBox::DigitCount(int digits)
{
    if (digits < 2 || digits > MaxDigits)
        return;
    mDigits = digits;
    ShowIncValue(0);
}

void NumberBox::setStep(qint64 step)
{
    if (step * 2 < top())
        mStep = step;
}

void NumberBox::setText(const QString &text)
{
    if (takes(text))
        ShowIncValue(text.toLongLong());
}

bool NumberBox::takes(const QString &text) const
{
    return !text.isEmpty() && text.size() <= mDigits && isDigits(text);
}

void NumberBox::enter(const QString &value)
{
    if (!takes(value))
        refuse(u"takes up to %1 digits, not \"%2\""_s.arg(mDigits).arg(value));
    setText(value);
}

void NumberBox::edit(const QString &text)
{
    if (text.size() <= mDigits && isDigits(text))
        show(text);
}

void NumberBox::leave()
{
    ShowIncValue(value());
}

void NumberBox::makeStep(Direction direction)
{
    const qint64 next = direction == Direction::Up ? value() + mStep : value() - mStep;
    if (next > top())
        ShowIncValue(0);
    else
        ShowIncValue(next < 0 ? top() : next);
}

void NumberBox::ShowIncValue(qint64 number)
{
    show(QString::number(number).left(MaxDigits).rightJustified(mDigits, u'0'));
}

void NumberBox::show(const QString &text)
{
    if (!assign(mText, text))
        return;
    Q_EMIT altered();
    Q_EMIT ValueChanged(QString::number(value()));
}
