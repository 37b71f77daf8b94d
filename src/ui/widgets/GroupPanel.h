// A quiet group: rounded, a shade off the window, with a thin line around it. What stands in it lies in its layout.
#pragma once

#include <QFrame>

class GroupPanel : public QFrame
{
    Q_OBJECT

  public:
    using QFrame::QFrame;

  protected:
    void paintEvent(QPaintEvent *event) override;
};

/// The heading of a group: small capitals, bold, quiet.
class GroupHeading : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

  public:
    explicit GroupHeading(QWidget *parent = nullptr);

    [[nodiscard]] const QString &text() const { return mText; }
    void setText(const QString &text);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    QString mText;
};
