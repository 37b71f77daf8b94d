// Controls as plain objects: name, state and events, no window. The logic reads and writes them; a widget of the same
// name shows them and turns what the user does into their events. Knows util.
#pragma once

#include "controls/Colours.h"

#include <QObject>
#include <QString>

enum class MouseButton { Left, Right };
/// The keys that add to a list and delete from it.
enum class EditKey { Insert, Delete };

/// What every control has. A setter that changes something emits changed(), on which whatever shows the control
/// makes itself match.
class Control : public QObject
{
    Q_OBJECT

  public:
    /// `name` is the control's name; a member of a control array is written "chkSMA(9)".
    Control(const QString &name, QObject *parent, const QString &caption = {});

    [[nodiscard]] QString name() const { return objectName(); }

    [[nodiscard]] bool isEnabled() const { return mEnabled; }
    void setEnabled(bool enabled) { assign(mEnabled, enabled); }
    [[nodiscard]] bool isVisible() const { return mVisible; }
    void setVisible(bool visible) { assign(mVisible, visible); }
    [[nodiscard]] const QString &caption() const { return mCaption; }
    void setCaption(const QString &caption) { assign(mCaption, caption); }
    [[nodiscard]] const QString &toolTipText() const { return mToolTipText; }
    void setToolTipText(const QString &text) { assign(mToolTipText, text); }
    [[nodiscard]] Colour backColor() const { return mBackColor; }
    void setBackColor(Colour colour) { assign(mBackColor, colour); }
    [[nodiscard]] Colour foreColor() const { return mForeColor; }
    void setForeColor(Colour colour) { assign(mForeColor, colour); }

    // A control's value as text. What has none, as a label, neither gives nor takes one.
    /// False while there is nothing to store, as in a list without a choice.
    [[nodiscard]] virtual bool hasValue() const { return false; }
    /// The text under which the value is stored.
    [[nodiscard]] virtual QString stored() const { return {}; }
    /// Takes a value as stored() gives it, with the events of an assignment. Error 13 or 380 for what is no such value.
    virtual void restore(const QString &value);
    /// Takes a value as a user writes it, for example an item's text. A RuntimeError with one clear line for what the
    /// control does not take.
    virtual void enter(const QString &value);
    /// Raises the control's own event without a change: what follows from the value is done once more.
    virtual void repeatEvent() {}

    // What a user does that no single kind of control owns.
    void mouseDown(MouseButton button) { Q_EMIT mousePressed(button); }
    void mouseMove() { Q_EMIT mouseMoved(); }
    void doubleClick() { Q_EMIT doubleClicked(); }
    void keyDown(EditKey key) { Q_EMIT keyPressed(key); }
    /// Text, or the paths of files, one a line.
    void dropText(const QString &text) { Q_EMIT textDropped(text); }
    /// What is dragged off the control; whoever knows writes it. "" where nothing can be dragged.
    [[nodiscard]] QString textToDrag()
    {
        QString text;
        Q_EMIT dragStarted(&text);
        return text;
    }

  Q_SIGNALS:
    void changed();
    /// The value is another one; raised ahead of the control's own event.
    void altered();
    void mousePressed(MouseButton button);
    void mouseMoved();
    void doubleClicked();
    void keyPressed(EditKey key);
    void textDropped(const QString &text);
    void dragStarted(QString *text);

  protected:
    /// The error of enter().
    [[noreturn]] static void refuse(const QString &reason);
    /// Error 13 for a text that is none.
    [[nodiscard]] static int wholeNumber(const QString &text);
    /// Stores a changed value and emits changed(). True when it differed.
    template <class Value> bool assign(Value &member, const Value &value)
    {
        if (member == value)
            return false;
        member = value;
        Q_EMIT changed();
        return true;
    }

  private:
    QString mCaption;
    QString mToolTipText;
    Colour mBackColor = Colours::ButtonFace;
    Colour mForeColor = Colours::ButtonText;
    bool mEnabled = true;
    bool mVisible = true;
};
