// The controls without a list: check box, text box, label, button, picture, tabs.
#pragma once

#include "controls/Control.h"

#include <QStringList>

/// A check box: 0 off, 1 on, 2 greyed. Assigning a changed value raises Click, as the user's click does.
class CheckBox : public Control
{
    Q_OBJECT

  public:
    using Control::Control;
    [[nodiscard]] int value() const { return mValue; }
    [[nodiscard]] bool isOn() const { return mValue != 0; }
    /// Error 380 for anything but 0 to 2.
    void setValue(int value);
    /// The user's click: on becomes off, anything else on.
    void click() { setValue(mValue == 1 ? 0 : 1); }
    [[nodiscard]] bool hasValue() const override { return true; }
    [[nodiscard]] QString stored() const override { return QString::number(mValue); }
    void restore(const QString &value) override { setValue(wholeNumber(value)); }
    void repeatEvent() override { Q_EMIT Click(); }
    void enter(const QString &value) override;

  Q_SIGNALS:
    void Click();

  private:
    int mValue = 0;
};

/// A one-line text box. Assigning a changed text raises Change.
class TextBox : public Control
{
    Q_OBJECT

  public:
    TextBox(const QString &name, QObject *parent);
    [[nodiscard]] const QString &text() const { return mText; }
    void setText(const QString &text);
    /// The user leaves the box.
    void validate() { Q_EMIT Validate(); }
    [[nodiscard]] bool hasValue() const override { return true; }
    [[nodiscard]] QString stored() const override { return mText; }
    void restore(const QString &value) override { setText(value); }
    void enter(const QString &value) override { setText(value); }

  Q_SIGNALS:
    void Change();
    void Validate();

  private:
    QString mText;
};

/// A label: a caption with colours; some report an outcome, some answer the mouse.
class Label : public Control
{
    Q_OBJECT

  public:
    using Control::Control;
};

/// A drawing area that shows one line of text or a colour.
class PictureBox : public Control
{
    Q_OBJECT

  public:
    using Control::Control;
    [[nodiscard]] const QString &printed() const { return mPrinted; }
    /// Clears the area and prints `text`.
    void print(const QString &text) { assign(mPrinted, text); }

  private:
    QString mPrinted;
};

/// A push button.
class Button : public Control
{
    Q_OBJECT

  public:
    using Control::Control;
    /// The user's click; a disabled button has none.
    void click();

  Q_SIGNALS:
    void Click();
};

/// A tab control: captions and the tab in force, from 0.
class TabControl : public Control
{
    Q_OBJECT

  public:
    TabControl(const QString &name, QStringList captions, QObject *parent);
    [[nodiscard]] const QStringList &captions() const { return mCaptions; }
    [[nodiscard]] int tab() const { return mTab; }
    /// Error 380 outside the tabs. A changed tab raises Click.
    void setTab(int tab);

  Q_SIGNALS:
    void Click();

  private:
    QStringList mCaptions;
    int mTab = 0;
};
