// A list of texts in which several may be selected. Empty, it says in grey what belongs there and how it gets there.
// The right mouse button opens menus and leaves the selection as it is, since a selection may be a criterion.
#pragma once

#include <QListView>

class ItemList : public QListView
{
    Q_OBJECT
    Q_PROPERTY(QString emptyText READ emptyText WRITE setEmptyText)

  public:
    explicit ItemList(QWidget *parent = nullptr);

    [[nodiscard]] const QString &emptyText() const { return mEmptyText; }
    void setEmptyText(const QString &text);
    /// Six rows.
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

  private:
    QString mEmptyText;
};
