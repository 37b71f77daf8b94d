// Tabs inside a page: the upper row as pills, a row below it as underlined words, so that the two levels are told
// apart.
#pragma once

#include <QTabBar>

class SegmentStrip : public QTabBar
{
    Q_OBJECT
    Q_PROPERTY(bool underlined READ isUnderlined WRITE setUnderlined)

  public:
    explicit SegmentStrip(QWidget *parent = nullptr);

    [[nodiscard]] bool isUnderlined() const { return mUnderlined; }
    void setUnderlined(bool underlined) { mUnderlined = underlined; }

  protected:
    void paintEvent(QPaintEvent *event) override;
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }

  private:
    bool mUnderlined = false;
};
