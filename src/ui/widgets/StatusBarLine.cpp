#include "ui/widgets/StatusBarLine.h"

#include "ui/look/Drawing.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {
constexpr int inset = 12;
constexpr int barHeight = 3;
} // namespace

StatusBarLine::StatusBarLine(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StatusBarLine::setText(const QString &text)
{
    if (mText == text)
        return;
    mText = text;
    update();
}

void StatusBarLine::setTally(const QString &tally)
{
    if (mTally == tally)
        return;
    mTally = tally;
    describe();
}

void StatusBarLine::keyPressEvent(QKeyEvent *event)
{
    if (!event->matches(QKeySequence::Copy))
        return QWidget::keyPressEvent(event);
    QGuiApplication::clipboard()->setText(mTally.isEmpty() ? mText : mText + u" ("_s + mTally + u')');
}

void StatusBarLine::setProgress(int done, int total)
{
    mTotal = qMax(0, total);
    mDone = qBound(0, done, mTotal);
    describe();
}

/// A screen reader is told what stands beside the text.
void StatusBarLine::describe()
{
    QStringList parts{mTally};
    if (mTotal > 0)
        parts.append(u"%1 of %2"_s.arg(mDone).arg(mTotal));
    parts.removeAll(QString());
    setAccessibleDescription(parts.join(u", "_s));
    update();
}

QString StatusBarLine::fitted(const QString &text, const QFontMetrics &metrics, int width)
{
    if (metrics.horizontalAdvance(text) <= width)
        return text;
    static const QRegularExpression address(u"\\S+://\\S+"_s);
    const auto match = address.match(text);
    if (!match.hasMatch())
        return metrics.elidedText(text, Qt::ElideRight, width);
    // The dots behind an address are the status line's own.
    QString found = match.captured();
    while (found.endsWith(u'.'))
        found.chop(1);
    const QString before = text.left(match.capturedStart());
    const QString after = text.mid(match.capturedStart() + found.size());
    const int room = width - metrics.horizontalAdvance(before) - metrics.horizontalAdvance(after);
    const QString shortened = before + metrics.elidedText(found, Qt::ElideMiddle, qMax(0, room)) + after;
    return metrics.elidedText(shortened, Qt::ElideRight, width);
}

QSize StatusBarLine::sizeHint() const
{
    return {200, qMax(32, fontMetrics().height() + 12)};
}

QSize StatusBarLine::minimumSizeHint() const
{
    return {80, sizeHint().height()};
}

void StatusBarLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Shades shades = Shades::of(palette());
    const bool coloured = testAttribute(Qt::WA_SetPalette);
    painter.fillRect(rect(), coloured ? palette().color(QPalette::Active, QPalette::Base) : shades.strip);
    painter.fillRect(QRect(0, 0, width(), 1), shades.line);
    painter.setPen(coloured ? palette().color(QPalette::Active, QPalette::WindowText) : shades.text);
    QRect line = rect().adjusted(inset, 1, -inset, 0);
    if (!mTally.isEmpty()) {
        // The status comes first: the tally takes what it leaves, half of the line at least.
        const int left = line.width() - fontMetrics().horizontalAdvance(mText) - inset;
        const QString shown = fontMetrics().elidedText(mTally, Qt::ElideRight, qMax(line.width() / 2, left));
        painter.drawText(line, Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, shown);
        line.setRight(line.right() - fontMetrics().horizontalAdvance(shown) - inset);
    }
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                     fitted(mText, fontMetrics(), line.width()));
    if (mTotal > 0) {
        painter.fillRect(QRect(0, 0, width(), barHeight), shades.line);
        painter.fillRect(QRectF(0, 0, double(width()) * mDone / mTotal, barHeight), shades.accent);
    }
    if (Drawing::showsFocus(*this))
        Drawing::focusRing(painter, rect().adjusted(1, 1, -1, -1), shades);
}
