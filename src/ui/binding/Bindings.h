// One overload for each pair of control and widget: connects what the user does to the control, and answers with what
// makes the widget match the control. What all pairs share (enabled, visible, tool tip, colours, mouse) is the
// Binder's.
#pragma once

#include "controls/Card.h"
#include "controls/Grid.h"
#include "controls/ListControls.h"
#include "controls/NumberBox.h"
#include "controls/SimpleControls.h"

#include <functional>

class CardView;
class Chip;
class DropDown;
class GridTable;
class ItemList;
class Mark;
class NumberEdit;
class QAbstractButton;
class QFrame;
class QLabel;
class QLineEdit;
class QTabBar;
class StatusBarLine;

namespace Bindings {
/// What the Return key does on a widget that has no such key of its own.
enum class ReturnKey { Nothing, PressesLeft, DoubleClicks };

struct Bound
{
    std::function<void()> show; ///< makes the widget match
    ReturnKey returnKey = ReturnKey::Nothing;
};

[[nodiscard]] Bound bind(CheckBox &control, QAbstractButton &widget);
[[nodiscard]] Bound bind(Button &control, QAbstractButton &widget);
[[nodiscard]] Bound bind(Grid &control, GridTable &widget);
[[nodiscard]] Bound bind(Card &control, CardView &widget);
[[nodiscard]] Bound bind(ComboBox &control, DropDown &widget);
[[nodiscard]] Bound bind(ListBox &control, ItemList &widget);
[[nodiscard]] Bound bind(TextBox &control, QLineEdit &widget);
[[nodiscard]] Bound bind(NumberBox &control, NumberEdit &widget);
[[nodiscard]] Bound bind(Label &control, Mark &widget);
[[nodiscard]] Bound bind(Label &control, Chip &widget);
[[nodiscard]] Bound bind(Label &control, QLabel &widget);
[[nodiscard]] Bound bind(PictureBox &control, StatusBarLine &widget);
[[nodiscard]] Bound bind(PictureBox &control, Mark &widget);
/// A picture that stands around others, or below one.
[[nodiscard]] Bound bind(PictureBox &control, QFrame &widget);
[[nodiscard]] Bound bind(TabControl &control, QTabBar &widget);
} // namespace Bindings
