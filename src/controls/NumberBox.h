// The program's own number box: a set number of digits, always shown with leading zeros, wrapping at both ends.
#pragma once

#include "controls/Control.h"

class NumberBox : public Control
{
    Q_OBJECT

  public:
    static constexpr int MaxDigits = 11;

    /// Step 1, value 0.
    NumberBox(const QString &name, QObject *parent, int digits = 3);

    [[nodiscard]] int digits() const { return mDigits; }
    /// 2 to 11 digits, and the value 0; any other number is ignored.
    void DigitCount(int digits);
    [[nodiscard]] qint64 step() const { return mStep; }
    /// Taken only below half the top of the range.
    void setStep(qint64 step);
    /// The digits shown, with their zeros.
    [[nodiscard]] const QString &text() const { return mText; }
    /// Taken if it is digits only, at least one and not more than `digits`; ignored otherwise.
    void setText(const QString &text);
    /// What the user types: shown as it stands, without zeros put in front.
    void edit(const QString &text);
    /// The user leaves the box: what was typed is shown with its zeros, nothing as 0.
    void leave();
    [[nodiscard]] qint64 value() const { return mText.toLongLong(); }

    [[nodiscard]] bool hasValue() const override { return true; }
    [[nodiscard]] QString stored() const override { return mText; }
    void restore(const QString &value) override { setText(value); }
    void enter(const QString &value) override;

    enum class Direction { Up, Down };
    /// One step; past an end the value wraps to the other.
    void makeStep(Direction direction);

  Q_SIGNALS:
    /// The number as text, without leading zeros.
    void ValueChanged(const QString &text);

  private:
    [[nodiscard]] bool takes(const QString &text) const;
    [[nodiscard]] qint64 top() const;
    void ShowIncValue(qint64 number);
    void show(const QString &text);

    QString mText;
    qint64 mStep = 1;
    int mDigits = 3;
};
