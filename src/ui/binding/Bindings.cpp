#include "ui/binding/Bindings.h"

#include "ui/look/Icons.h"
#include "ui/look/Tones.h"
#include "ui/widgets/Chip.h"
#include "ui/widgets/DropDown.h"
#include "ui/widgets/Mark.h"
#include "ui/widgets/NumberEdit.h"
#include "ui/widgets/StatusBarLine.h"
#include "ui/widgets/TextListModel.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>

using namespace Qt::StringLiterals;
using Bindings::Bound;

namespace {
/// Shows the caption on a button that was designed with `designed`: a caption that is the same but for its mnemonic
/// keeps it, and the key of the design works under any caption.
void showCaption(QAbstractButton &button, const QString &designed, const QString &caption)
{
    QString plain = designed;
    plain.remove(u'&');
    const QString text = caption.isEmpty() || caption == plain ? designed : caption;
    if (button.text() == text)
        return;
    button.setText(text);
    if (QKeySequence::mnemonic(text).isEmpty())
        button.setShortcut(QKeySequence::mnemonic(designed));
}

void showValue(const CheckBox &control, QAbstractButton &button)
{
    auto *const box = qobject_cast<QCheckBox *>(&button);
    if (box == nullptr)
        return button.setChecked(control.isOn());
    constexpr Qt::CheckState states[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
    box->setTristate(control.value() == 2);
    box->setCheckState(states[control.value()]);
}

/// The texts of a list control, as the view's model.
TextListModel &modelOf(QObject &view)
{
    auto *model = view.findChild<TextListModel *>({}, Qt::FindDirectChildrenOnly);
    return model != nullptr ? *model : *new TextListModel(&view);
}

/// A text box tells by colour whether its text was found; a sign at its end says the same.
void showFinding(const TextBox &control, QLineEdit &edit, QAction &sign)
{
    const Colour colour = control.backColor();
    const auto tone = Tones::of(colour, control.foreColor(), Shades::of(QApplication::palette()));
    const bool found = colour == Colours::Green;
    const bool reports = tone && (found || colour == Colours::Red);
    if (reports)
        sign.setIcon(Icons::inked(found ? u"found"_s : u"missing"_s, tone->fill));
    if (sign.isVisible() != reports)
        sign.setVisible(reports);
    edit.setAccessibleDescription(reports ? (found ? u"found in the last page"_s : u"not found in the last page"_s)
                                          : control.toolTipText());
}
} // namespace

Bound Bindings::bind(CheckBox &control, QAbstractButton &widget)
{
    widget.setCheckable(true);
    QObject::connect(&widget, &QAbstractButton::clicked, &control, [&control, &widget] {
        if (control.isEnabled())
            control.click();
        showValue(control, widget);
    });
    return {[&control, &widget, designed = widget.text()] {
        showCaption(widget, designed, control.caption());
        showValue(control, widget);
    }};
}

Bound Bindings::bind(Button &control, QAbstractButton &widget)
{
    QObject::connect(&widget, &QAbstractButton::clicked, &control, &Button::click);
    return {[&control, &widget, designed = widget.text()] { showCaption(widget, designed, control.caption()); }};
}

Bound Bindings::bind(ComboBox &control, DropDown &widget)
{
    const bool editable = control.style() == ComboBox::Style::DropDownCombo;
    widget.setEditable(editable);
    if (editable) {
        // What is typed is taken as it is typed: nothing is completed, and Return adds nothing to the list.
        widget.setInsertPolicy(QComboBox::NoInsert);
        widget.setCompleter(nullptr);
        widget.lineEdit()->setPlaceholderText(widget.placeholderText());
    }
    const QString designed = widget.placeholderText();
    TextListModel &model = modelOf(widget);
    widget.setModel(&model);
    const auto show = [&control, &widget, &model, designed] {
        model.setTexts(control.items());
        widget.setPlaceholderText(control.emptyText().isEmpty() ? designed : control.emptyText());
        widget.setCurrentIndex(control.listIndex());
        if (widget.isEditable() && widget.currentText() != control.text())
            widget.setEditText(control.text());
    };
    QObject::connect(&widget, &QComboBox::activated, &control, [&control, show](int row) {
        if (control.isEnabled() && row < control.listCount())
            control.choose(row);
        show();
    });
    QObject::connect(&widget, &DropDown::opening, &control, [&control, show] {
        if (control.isEnabled())
            control.dropDown();
        show();
    });
    if (editable) {
        QObject::connect(widget.lineEdit(), &QLineEdit::textEdited, &control, &ComboBox::setText);
        QObject::connect(widget.lineEdit(), &QLineEdit::editingFinished, &control, &ComboBox::validate);
    }
    return {show};
}

Bound Bindings::bind(TextBox &control, QLineEdit &widget)
{
    QObject::connect(&widget, &QLineEdit::textEdited, &control, &TextBox::setText);
    auto *const sign = widget.addAction(QIcon(), QLineEdit::TrailingPosition);
    sign->setVisible(false);
    return {[&control, &widget, sign] {
        if (widget.text() != control.text()) {
            widget.setText(control.text());
            widget.setCursorPosition(widget.hasFocus() ? widget.cursorPosition() : 0);
        }
        showFinding(control, widget, *sign);
    }};
}

Bound Bindings::bind(NumberBox &control, NumberEdit &widget)
{
    QObject::connect(&widget, &NumberEdit::edited, &control, &NumberBox::edit);
    QObject::connect(&widget, &NumberEdit::left, &control, &NumberBox::leave);
    QObject::connect(&widget, &NumberEdit::stepped, &control, &NumberBox::makeStep);
    return {[&control, &widget] {
        widget.setDigits(control.digits());
        widget.setText(control.text());
    }};
}

Bound Bindings::bind(Label &control, Mark &widget)
{
    return {[&control, &widget] { widget.setColour(control.backColor()); }, ReturnKey::PressesLeft};
}

Bound Bindings::bind(Label &control, Chip &widget)
{
    return {[&control, &widget] { widget.setCaption(control.caption()); }, ReturnKey::PressesLeft};
}

Bound Bindings::bind(Label &control, QLabel &widget)
{
    return {[&control, &widget, designed = widget.text()] {
                widget.setText(control.caption().isEmpty() ? designed : control.caption());
            },
            ReturnKey::PressesLeft};
}

Bound Bindings::bind(PictureBox &control, StatusBarLine &widget)
{
    return {[&control, &widget] { widget.setText(control.printed()); }, ReturnKey::DoubleClicks};
}

Bound Bindings::bind(PictureBox &control, Mark &widget)
{
    return {[&control, &widget] { widget.setColour(control.backColor()); }, ReturnKey::PressesLeft};
}

Bound Bindings::bind(PictureBox &, QFrame &)
{
    return {[] {}};
}

Bound Bindings::bind(TabControl &control, QTabBar &widget)
{
    const QSignalBlocker quiet(widget);
    for (int i = 0; i < control.captions().size(); ++i) {
        if (i == widget.count())
            widget.addTab(control.captions().at(i));
        else if (widget.tabText(i).remove(u'&') != control.captions().at(i))
            widget.setTabText(i, control.captions().at(i));
    }
    QObject::connect(&widget, &QTabBar::currentChanged, &control, [&control](int tab) {
        if (control.isEnabled() && tab >= 0)
            control.setTab(tab);
    });
    return {[&control, &widget] { widget.setCurrentIndex(control.tab()); }};
}
