// The ways out of the program: time and events, questions to the user, desktop, clipboard, settings. The logic knows
// these alone; both programs bring what stands behind them, and tests bring fakes for the clock and for faults.
#pragma once

#include "controls/Menu.h"

#include <QRect>
#include <QString>
#include <QStringList>
#include <functional>

/// Time and the pump of the event loop.
class EventPump
{
  public:
    virtual ~EventPump() = default;
    /// Handles everything that is waiting, user input too, and returns.
    virtual void doEvents() = 0;
    /// Sleeps until an event arrives, wakeUp() is called or `milliseconds` have passed, and handles what has arrived.
    virtual void waitForEvents(qint64 milliseconds) = 0;
    /// Ends a waitForEvents() under way.
    virtual void wakeUp() = 0;
    /// Milliseconds of a clock that never goes back.
    [[nodiscard]] virtual qint64 tickCount() const = 0;
};

/// Message and input boxes. A program without a window answers by itself, as told for each call.
class UserDialogs
{
  public:
    enum class Icon { Critical, Question };
    enum class Answer { Yes, No, Cancel };

    virtual ~UserDialogs() = default;
    /// Tells and waits for OK. Without a window: tells on standard error.
    virtual void tell(const QString &title, const QString &text) = 0;
    /// Yes or No. Without a window: `withoutWindow`.
    [[nodiscard]] virtual Answer ask(const QString &title, const QString &text, Icon icon, Answer withoutWindow) = 0;
    /// Yes, No or Cancel about an error record. Without a window: No, after the record went to standard error.
    [[nodiscard]] virtual Answer askAboutError(const QString &title, const QString &record, const QString &prompt) = 0;
    /// One line of text; "" if cancelled. Without a window: "".
    [[nodiscard]] virtual QString input(const QString &prompt, const QString &title, const QString &proposal) = 0;
    /// A file chosen by the user; "" if cancelled. Without a window: "".
    [[nodiscard]] virtual QString chooseFile(const QString &directory, const QString &filter, const QString &title) = 0;
    /// A file, new or not, to which something is to be added; "" if cancelled. Without a window: the proposal.
    [[nodiscard]] virtual QString chooseFileToAppend(const QString &proposal, const QString &filter,
                                                     const QString &title) = 0;
};

/// What the desktop does for the program.
class Desktop
{
  public:
    virtual ~Desktop() = default;
    /// Opens a file, folder or address with the program that the user has chosen for its kind.
    virtual void open(const QString &target) = 0;
};

/// The clipboard's text.
class ClipboardText
{
  public:
    virtual ~ClipboardText() = default;
    [[nodiscard]] virtual QString text() const = 0;
    virtual void setText(const QString &text) = 0;
};

/// The per-user store of text values under section and key.
class SettingsStore
{
  public:
    virtual ~SettingsStore() = default;
    virtual void SaveSetting(const QString &section, const QString &key, const QString &value) = 0;
    [[nodiscard]] virtual QString GetSetting(const QString &section, const QString &key,
                                             const QString &byDefault = {}) const = 0;
};

/// The place of the main window on the screen, in pixels. A program without a window has none: an empty place.
class WindowPlace
{
  public:
    virtual ~WindowPlace() = default;
    [[nodiscard]] virtual QRect place() const = 0;
    virtual void moveTo(const QRect &place) = 0;
    /// The part of the screen that windows may use.
    [[nodiscard]] virtual QRect screen() const = 0;
    virtual void putOnTop(bool onTop) = 0;
    virtual void minimize() = 0;
};

/// Pop-up menus.
class PopUpMenus
{
  public:
    virtual ~PopUpMenus() = default;
    /// Has the menu made ready and shows it at the pointer. May return before the user has chosen.
    void popUp(Menu &menu)
    {
        menu.prepare();
        show(menu);
    }

  protected:
    /// Without a window: shows nothing.
    virtual void show(Menu &menu) = 0;
};

/// Decides which controls may be used; stands above everything that calls it.
class ControlStates
{
  public:
    virtual ~ControlStates() = default;
    virtual void SetStateOfControls() = 0;
};
