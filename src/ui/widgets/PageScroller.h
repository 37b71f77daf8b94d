// The sheet of a tab that scrolls when the window is lower than the sheet. Asked for its size it answers with the
// sheet's, so that a window that has the room shows all of it; whatever gets the focus comes into sight.
#pragma once

#include <QScrollArea>

class PageScroller : public QScrollArea
{
    Q_OBJECT

  public:
    explicit PageScroller(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    /// As wide as the sheet needs with a scroll bar beside it, and as low as a few rows.
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void showFocused(const QWidget *old, QWidget *now);
};
