// A quiet group: rounded, a shade off the window, with a thin line around it. What stands in it lies in its layout: a
// heading, and below it a body, which is named after the group ("startGroup", "startBody") and folds away.
#pragma once

#include <QFrame>

class GroupPanel : public QFrame
{
    Q_OBJECT

  public:
    using QFrame::QFrame;

    [[nodiscard]] bool isFolded() const { return mFolded; }
    /// Shows the heading alone, or all.
    void setFolded(bool folded);

  Q_SIGNALS:
    void foldedChanged();

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    bool mFolded = false;
    QSizePolicy::Policy mUnfolded = QSizePolicy::Preferred;
};

/// The heading of a group: small capitals, bold, quiet. Pressed, it folds its group or unfolds it.
class GroupHeading : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

  public:
    explicit GroupHeading(QWidget *parent = nullptr);

    [[nodiscard]] const QString &text() const { return mText; }
    void setText(const QString &text);
    /// Folds the group around, or unfolds it.
    void toggle();
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

  private:
    [[nodiscard]] GroupPanel *panel() const;

    QString mText;
};
