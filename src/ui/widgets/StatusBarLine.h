// The foot of the window: one line of text, an address in it shortened in its middle, the whole of it in the accessible
// name; along its upper edge a thin bar while something long runs.
#pragma once

#include <QWidget>

class StatusBarLine : public QWidget
{
    Q_OBJECT

  public:
    explicit StatusBarLine(QWidget *parent = nullptr);

    [[nodiscard]] const QString &text() const { return mText; }
    void setText(const QString &text);
    /// What a run has stored, in words, at the right end.
    [[nodiscard]] const QString &tally() const { return mTally; }
    void setTally(const QString &tally);
    /// `done` of `total` is over; a total of 0 takes the bar away.
    void setProgress(int done, int total);
    [[nodiscard]] int done() const { return mDone; }
    [[nodiscard]] int total() const { return mTotal; }

    /// `text` in at most `width` pixels: the first address in it gives way in its middle, then the text at its end.
    [[nodiscard]] static QString fitted(const QString &text, const QFontMetrics &metrics, int width);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;
    /// Copy takes the whole line.
    void keyPressEvent(QKeyEvent *event) override;

  private:
    void describe();

    QString mText, mTally;
    int mDone = 0, mTotal = 0;
};
