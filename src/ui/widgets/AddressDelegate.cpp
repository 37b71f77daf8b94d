#include "ui/widgets/AddressDelegate.h"

#include "ui/look/Shades.h"

#include <QAbstractItemView>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {
constexpr int inset = 8;
constexpr int accentWidth = 3;

/// Draws `text` from `x` on and answers where it ends.
int drawRun(QPainter &painter, const QRect &line, int x, const QString &text, const QColor &ink)
{
    painter.setPen(ink);
    painter.drawText(QRect(x, line.y(), line.right() - x + 1, line.height()),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
    return x + painter.fontMetrics().horizontalAdvance(text);
}
} // namespace

AddressDelegate::Server AddressDelegate::serverOf(const QString &address)
{
    const qsizetype protocol = address.indexOf("://"_L1);
    const qsizetype start = protocol < 0 ? 0 : protocol + 3;
    // What is left out ends the server, too: behind it may stand anything.
    qsizetype end = address.size();
    for (const QChar mark : {QChar(u'/'), QChar(u'…')}) {
        const qsizetype at = address.indexOf(mark, start);
        end = at < 0 ? end : qMin(end, at);
    }
    return {start, end - start};
}

void AddressDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QString whole = std::exchange(item.text, QString());
    item.state.setFlag(QStyle::State_HasFocus, false);
    item.widget->style()->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    const Shades shades = Shades::of(option.palette);
    const auto *const view = qobject_cast<const QAbstractItemView *>(option.widget);
    if (view != nullptr && view->currentIndex() == index)
        painter->fillRect(QRect(option.rect.x(), option.rect.y() + 2, accentWidth, option.rect.height() - 4),
                          shades.accent);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool selected = enabled && option.state.testFlag(QStyle::State_Selected);
    const QColor ink = selected ? shades.onAccent : option.palette.color(QPalette::Active, QPalette::Text);
    const QColor ground = selected ? shades.accent : option.palette.color(QPalette::Active, QPalette::Base);
    // Paler, but never too pale to read.
    const QColor pale = contrast(mixed(ink, ground, 0.35), ground) >= 4.5 ? mixed(ink, ground, 0.35) : ink;
    const QRect line = option.rect.adjusted(inset, 0, -inset, 0);
    painter->save();
    painter->setFont(option.font);
    const QString shown = option.fontMetrics.elidedText(whole, Qt::ElideMiddle, line.width());
    const Server server = serverOf(shown);
    int x = drawRun(*painter, line, line.x(), shown.left(server.start), pale);
    x = drawRun(*painter, line, x, shown.mid(server.start, server.length), ink);
    drawRun(*painter, line, x, shown.mid(server.start + server.length), pale);
    painter->restore();
}
