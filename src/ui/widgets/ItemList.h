// A list of texts in which several may be selected. Empty, it says in grey what belongs there and how it gets there.
// The right mouse button opens menus and leaves the selection as it is, since a selection may be a criterion.
#pragma once

#include <QListView>

class ItemList : public QListView
{
    Q_OBJECT
    Q_PROPERTY(QString emptyText READ emptyText WRITE setEmptyText)
    Q_PROPERTY(bool addresses READ showsAddresses WRITE setAddresses)

  public:
    explicit ItemList(QWidget *parent = nullptr);

    [[nodiscard]] const QString &emptyText() const { return mEmptyText; }
    void setEmptyText(const QString &text);
    /// The items are addresses: their servers stand out.
    [[nodiscard]] bool showsAddresses() const { return mAddresses; }
    void setAddresses(bool addresses);
    /// Three rows.
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// Six rows.
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

  private:
    [[nodiscard]] int rowsHigh(int rows) const;

    QString mEmptyText;
    bool mAddresses = false;
};
