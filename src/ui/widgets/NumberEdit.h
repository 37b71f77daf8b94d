// The widget of a number box: digits in the fixed font and an up and a down button that run faster and faster while
// held. It knows no value: it says what was typed and that a step is wanted.
#pragma once

#include "ui/widgets/HoldSpeed.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

class QLineEdit;

class NumberEdit : public QWidget
{
    Q_OBJECT

  public:
    explicit NumberEdit(QWidget *parent = nullptr);

    void setDigits(int digits);
    void setText(const QString &text);
    [[nodiscard]] QString text() const;
    [[nodiscard]] HoldSpeed::Stage stage() const { return mStage; }
    /// The length of one second of holding; tests hold faster.
    void setSecond(std::chrono::milliseconds second) { mSecond = second; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    /// Where a button stands.
    [[nodiscard]] QRect buttonRect(NumberBox::Direction direction) const;

  Q_SIGNALS:
    void edited(const QString &text);
    /// The focus goes elsewhere.
    void left();
    void stepped(NumberBox::Direction direction);

  protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void hold(NumberBox::Direction direction);
    void letGo();
    void secondOver();
    void makeDueSteps();
    void showStage();

    QLineEdit *mEdit;
    QTimer mSeconds, mFrames;
    QElapsedTimer mSinceFrame;
    std::chrono::milliseconds mSecond{1000};
    double mDue = 0; ///< steps owed, with their fraction
    int mSecondsHeld = 0;
    int mDigits = 3;
    NumberBox::Direction mDirection = NumberBox::Direction::Up;
    HoldSpeed::Stage mStage = HoldSpeed::Stage::None;
    bool mHeld = false;
};
