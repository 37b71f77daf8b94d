// A label for a path or an address: what is too long loses its middle. Empty, it says in grey what is missing.
#pragma once

#include <QLabel>

class PathLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString emptyText READ emptyText WRITE setEmptyText)

  public:
    using QLabel::QLabel;

    [[nodiscard]] const QString &emptyText() const { return mEmptyText; }
    void setEmptyText(const QString &text);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    QString mEmptyText;
};
