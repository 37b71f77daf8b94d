// A figure in a narrow column: right-aligned, in the fixed font, quiet. It may be pressed.
#pragma once

#include <QLabel>

class FigureLabel : public QLabel
{
    Q_OBJECT

  public:
    explicit FigureLabel(QWidget *parent = nullptr);
    /// Four digits.
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }

  protected:
    void paintEvent(QPaintEvent *event) override;
};
