// The seconds counted, large, in the fixed font; the mouse answers on it. Its colours come with its palette.
#pragma once

#include <QLabel>

class TimerLabel : public QLabel
{
    Q_OBJECT

  public:
    explicit TimerLabel(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent *event) override;
};
