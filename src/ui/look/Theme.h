// Light or dark: follows the desktop's palette, or is told. Puts style and palette on the application; widgets draw
// themselves from there. There is one for the application, made with its first window at the latest.
#pragma once

#include <QObject>
#include <QPalette>

class QApplication;
class QWidget;
class Style;

class Theme : public QObject
{
    Q_OBJECT

  public:
    enum class Mode { Desktop, Light, Dark };

    /// What TRAWLEX_THEME says; Desktop where it says nothing that is known.
    [[nodiscard]] static Mode modeOfEnvironment();
    /// The application's theme; made now if there is none yet.
    static Theme &of(QApplication &application);

    void setMode(Mode mode);
    [[nodiscard]] Mode mode() const { return mMode; }

    /// Our own palettes, for a desktop that has none to offer.
    [[nodiscard]] static QPalette palette(Mode mode);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    explicit Theme(QApplication &application);
    enum class Input { Keyboard, Mouse };
    void noteInput(QWidget &widget, Input input);
    void showUnderlines(bool shown);

    Style *mStyle; ///< owned by the application
    Mode mMode = Mode::Desktop;
};
