#include "ui/look/Theme.h"

#include "ui/look/Style.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <array>

using namespace Qt::StringLiterals;

namespace {
struct Role
{
    QPalette::ColorRole role;
    QRgb light, dark;
};

constexpr std::array<Role, 16> roles{{
    {QPalette::Window, 0xFFF4F6F9, 0xFF1B1E26},
    {QPalette::WindowText, 0xFF1A2130, 0xFFE8EBF1},
    {QPalette::Base, 0xFFFFFFFF, 0xFF15181F},
    {QPalette::AlternateBase, 0xFFF4F6F9, 0xFF1B1E26},
    {QPalette::Text, 0xFF1A2130, 0xFFE8EBF1},
    {QPalette::PlaceholderText, 0xFF667085, 0xFF8F98A9},
    {QPalette::Button, 0xFFFFFFFF, 0xFF2A2F3A},
    {QPalette::ButtonText, 0xFF1A2130, 0xFFE8EBF1},
    {QPalette::Highlight, 0xFF1F66E0, 0xFF5B97FF},
    {QPalette::HighlightedText, 0xFFFFFFFF, 0xFF0C111B},
    {QPalette::ToolTipBase, 0xFF1A2130, 0xFFE8EBF1},
    {QPalette::ToolTipText, 0xFFFFFFFF, 0xFF14171E},
    {QPalette::Link, 0xFF1F66E0, 0xFF5B97FF},
    {QPalette::Light, 0xFFFFFFFF, 0xFF2A2F3A},
    {QPalette::Mid, 0xFFD5DAE2, 0xFF343A47},
    {QPalette::Dark, 0xFFB4BBC8, 0xFF0F1116},
}};

constexpr std::array<Role, 3> disabledRoles{{
    {QPalette::WindowText, 0xFF98A1B0, 0xFF666F80},
    {QPalette::Text, 0xFF98A1B0, 0xFF666F80},
    {QPalette::ButtonText, 0xFF98A1B0, 0xFF666F80},
}};

bool hasNoPaletteOfItsOwn(const QPalette &palette, const QPalette &ofStyle)
{
    return palette.color(QPalette::Window) == ofStyle.color(QPalette::Window) &&
           palette.color(QPalette::Highlight) == ofStyle.color(QPalette::Highlight);
}

} // namespace

Theme::Theme(QApplication &application) : QObject(&application), mStyle(new Style)
{
    QApplication::setStyle(mStyle);
    application.installEventFilter(this);
    setMode(modeOfEnvironment());
}

Theme::Mode Theme::modeOfEnvironment()
{
    const QString name = qEnvironmentVariable("TRAWLEX_THEME").toLower();
    if (name == "light"_L1)
        return Mode::Light;
    return name == "dark"_L1 ? Mode::Dark : Mode::Desktop;
}

Theme &Theme::of(QApplication &application)
{
    auto *theme = application.findChild<Theme *>({}, Qt::FindDirectChildrenOnly);
    return theme != nullptr ? *theme : *new Theme(application);
}

void Theme::setMode(Mode mode)
{
    mMode = mode;
    if (mode != Mode::Desktop)
        return QApplication::setPalette(palette(mode));
    // A palette without set roles is the desktop's, and changes with it.
    QApplication::setPalette(QPalette());
    if (hasNoPaletteOfItsOwn(QApplication::palette(), mStyle->standardPalette()))
        QApplication::setPalette(palette(Mode::Light));
}

QPalette Theme::palette(Mode mode)
{
    const bool dark = mode == Mode::Dark;
    QPalette palette;
    for (const Role &role : roles)
        palette.setColor(role.role, QColor(dark ? role.dark : role.light));
    for (const Role &role : disabledRoles)
        palette.setColor(QPalette::Disabled, role.role, QColor(dark ? role.dark : role.light));
    return palette;
}

bool Theme::eventFilter(QObject *watched, QEvent *event)
{
    const auto type = event->type();
    // A key that is a shortcut comes only as the question whether somebody else wants it.
    const bool key = type == QEvent::KeyPress || type == QEvent::ShortcutOverride;
    if (auto *const widget = qobject_cast<QWidget *>(watched)) {
        if (type == QEvent::MouseButtonPress || key)
            noteInput(*widget, key ? Input::Keyboard : Input::Mouse);
    }
    if (type == QEvent::KeyPress || type == QEvent::KeyRelease) {
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Alt)
            showUnderlines(type == QEvent::KeyPress);
    } else if (type == QEvent::ApplicationDeactivate) {
        showUnderlines(false);
    }
    return QObject::eventFilter(watched, event);
}

// The keyboard is in use from the first key on until the mouse is. Qt itself sets this mark and never takes it away.
void Theme::noteInput(QWidget &widget, Input input)
{
    QWidget &window = *widget.window();
    const bool keyboard = input == Input::Keyboard;
    if (window.testAttribute(Qt::WA_KeyboardFocusChange) == keyboard)
        return;
    window.setAttribute(Qt::WA_KeyboardFocusChange, keyboard);
    if (QWidget *const focused = QApplication::focusWidget())
        focused->update();
}

void Theme::showUnderlines(bool shown)
{
    mStyle->setUnderlines(shown);
    for (QWidget *const window : QApplication::topLevelWidgets()) {
        for (QWidget *const widget : window->findChildren<QWidget *>())
            widget->update();
    }
}
