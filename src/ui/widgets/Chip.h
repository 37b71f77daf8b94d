// A small label that answers the mouse: an icon, a word that says what it is, and behind it the control's caption,
// which says what is chosen. Its colours come with its palette.
#pragma once

#include <QWidget>

class Chip : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString icon READ icon WRITE setIcon)
    Q_PROPERTY(QString word READ word WRITE setWord)
    Q_PROPERTY(bool captioned READ isCaptioned WRITE setCaptioned)

  public:
    explicit Chip(QWidget *parent = nullptr);

    [[nodiscard]] const QString &icon() const { return mIcon; }
    void setIcon(const QString &name);
    [[nodiscard]] const QString &word() const { return mWord; }
    void setWord(const QString &word);
    /// A chip that is not captioned shows its word alone: the caption belongs to another tab's.
    [[nodiscard]] bool isCaptioned() const { return mCaptioned; }
    void setCaptioned(bool captioned);
    [[nodiscard]] const QString &caption() const { return mCaption; }
    void setCaption(const QString &caption);

    /// Word and caption, as shown.
    [[nodiscard]] QString text() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

  private:
    QString mIcon, mWord, mCaption;
    bool mCaptioned = true;
};
