// What reports an outcome by colour, and by a sign or words as well: the round lamp before a box, and the end mark at
// the end of the tab strip. The colour is that of the control; grey, green, red, yellow and blue have a meaning.
#pragma once

#include "controls/Colours.h"
#include "ui/look/Drawing.h"

#include <QWidget>

class Mark : public QWidget
{
    Q_OBJECT

  public:
    using QWidget::QWidget;

    void setColour(Colour colour);
    [[nodiscard]] Colour colour() const { return mColour; }
    [[nodiscard]] Drawing::Sign sign() const;
    /// The outcome in words.
    [[nodiscard]] QString meaning() const;
    /// Fill and ink on the palette at hand.
    [[nodiscard]] QColor fill() const;
    [[nodiscard]] QColor ink() const;

  private:
    Colour mColour = Colours::ButtonFace;
};

class Lamp : public Mark
{
    Q_OBJECT

  public:
    explicit Lamp(QWidget *parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override { return {18, 20}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent *event) override;
};

/// Ends the program; its colour and sign are the last page's outcome, a cross while there is none or under the mouse.
class EndMark : public Mark
{
    Q_OBJECT

  public:
    explicit EndMark(QWidget *parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override { return {28, 28}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
};
