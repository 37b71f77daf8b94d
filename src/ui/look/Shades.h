// The colours that the window is drawn with, all taken from a palette: the desktop decides, these only say what stands
// for what. Also the measure of contrast. Knows no widget.
#pragma once

#include <QColor>
#include <QPalette>

struct Shades
{
    QColor window;   ///< behind the groups
    QColor strip;    ///< tab strip and status bar
    QColor panel;    ///< a group
    QColor field;    ///< where one types or chooses
    QColor text;     ///< at least 7 : 1 where the palette allows
    QColor quiet;    ///< headings, hints: at least 4.5 : 1 on window, panel and field
    QColor disabled; ///< what cannot be used now
    QColor line;     ///< around groups
    QColor edge;     ///< around fields, buttons and empty check boxes: at least 3 : 1
    QColor mark;     ///< the same under the mouse
    QColor accent, onAccent;
    bool dark = false;

    [[nodiscard]] static Shades of(const QPalette &palette);
};

/// 1 to 21, as told apart by the eye.
[[nodiscard]] double contrast(const QColor &one, const QColor &other);
/// `from` moved towards `to`; share 0 is `from`, 1 is `to`.
[[nodiscard]] QColor mixed(const QColor &from, const QColor &to, double share);
/// Black or white, whichever reads better on `fill`.
[[nodiscard]] QColor inkOn(const QColor &fill);
