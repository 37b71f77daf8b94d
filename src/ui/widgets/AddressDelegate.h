// Draws an address so that its server stands out: the server in the text colour, the rest paler, the middle left out
// where it is too long. The item with the focus, which a run walks, carries the accent at its left edge.
#pragma once

#include <QStyledItemDelegate>

class AddressDelegate : public QStyledItemDelegate
{
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Where the server of `address` begins, and its length; a text that is no address is a server as a whole.
    struct Server
    {
        qsizetype start = 0, length = 0;
    };
    [[nodiscard]] static Server serverOf(const QString &address);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
