#include "ui/widgets/NumberEdit.h"

#include "ui/look/Drawing.h"
#include "ui/look/Style.h"

#include <QEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QRegularExpressionValidator>

using namespace Qt::StringLiterals;
using Direction = NumberBox::Direction;

namespace {
constexpr int buttonWidth = 22;
constexpr int sideInset = 6;
constexpr std::chrono::milliseconds frame{20};
/// What one frame may take in steps, so that the window answers however long a step takes.
constexpr qint64 frameBudget = 12;
} // namespace

NumberEdit::NumberEdit(QWidget *parent) : QWidget(parent), mEdit(new QLineEdit(this))
{
    QFont digits = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    digits.setPointSizeF(font().pointSizeF());
    mEdit->setFont(digits);
    mEdit->setFrame(false);
    mEdit->setMaxLength(mDigits);
    mEdit->setValidator(new QRegularExpressionValidator(QRegularExpression(u"[0-9]*"_s), mEdit));
    mEdit->installEventFilter(this);
    setFocusProxy(mEdit);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(mEdit, &QLineEdit::textEdited, this, &NumberEdit::edited);
    connect(&mSeconds, &QTimer::timeout, this, &NumberEdit::secondOver);
    connect(&mFrames, &QTimer::timeout, this, &NumberEdit::makeDueSteps);
    showStage();
}

void NumberEdit::setDigits(int digits)
{
    if (mDigits == digits)
        return;
    mDigits = digits;
    mEdit->setMaxLength(digits);
    updateGeometry();
}

void NumberEdit::setText(const QString &text)
{
    if (mEdit->text() != text)
        mEdit->setText(text);
}

QString NumberEdit::text() const
{
    return mEdit->text();
}

QSize NumberEdit::sizeHint() const
{
    const QFontMetrics metrics(mEdit->font());
    const int digits = metrics.horizontalAdvance(QString(mDigits, u'0')) + 6;
    return {sideInset + digits + buttonWidth, qMax(Style::rowHeight, metrics.height() + 8)};
}

QRect NumberEdit::buttonRect(Direction direction) const
{
    const int half = height() / 2;
    const QRect buttons(width() - buttonWidth, 0, buttonWidth, height());
    return direction == Direction::Up ? buttons.adjusted(0, 0, 0, -half) : buttons.adjusted(0, half, 0, 0);
}

void NumberEdit::resizeEvent(QResizeEvent *)
{
    mEdit->setGeometry(sideInset, 2, width() - buttonWidth - sideInset, height() - 4);
}

void NumberEdit::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Shades shades = Shades::of(palette());
    const bool focused = mEdit->hasFocus();
    QColor fill = isEnabled() ? mEdit->palette().color(QPalette::Active, QPalette::Base)
                              : mixed(shades.field, shades.window, 0.6);
    QColor border = isEnabled() ? shades.edge : shades.line;
    Drawing::box(painter, rect(), fill, focused ? shades.accent : border, focused ? 2.0 : 1.0);
    for (const Direction direction : {Direction::Up, Direction::Down}) {
        const QRect button = buttonRect(direction);
        QColor ink = isEnabled() ? shades.quiet : shades.disabled;
        if (mStage != HoldSpeed::Stage::None || (mHeld && direction == mDirection))
            ink = inkOn(fill);
        const double towardsMiddle = direction == Direction::Up ? 1.5 : -1.5;
        Drawing::chevron(painter, QRectF(button).center() + QPointF(-1, towardsMiddle), 7, ink,
                         direction == Direction::Up ? Drawing::Points::Up : Drawing::Points::Down);
    }
}

void NumberEdit::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    for (const Direction direction : {Direction::Up, Direction::Down}) {
        if (buttonRect(direction).contains(event->position().toPoint()))
            return hold(direction);
    }
}

void NumberEdit::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        letGo();
}

void NumberEdit::hideEvent(QHideEvent *)
{
    letGo();
}

void NumberEdit::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        letGo();
    else if (event->type() == QEvent::PaletteChange)
        showStage();
    QWidget::changeEvent(event);
}

bool NumberEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    if (event->type() == QEvent::FocusOut && isEnabled())
        Q_EMIT left();
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down)
        return false;
    Q_EMIT stepped(key == Qt::Key_Up ? Direction::Up : Direction::Down);
    return true;
}

void NumberEdit::hold(Direction direction)
{
    mDirection = direction;
    mHeld = true;
    mSecondsHeld = 0;
    mDue = 0;
    mSeconds.start(mSecond);
    update();
    Q_EMIT stepped(direction);
}

void NumberEdit::letGo()
{
    mHeld = false;
    mSeconds.stop();
    mFrames.stop();
    mStage = HoldSpeed::Stage::None;
    showStage();
}

void NumberEdit::secondOver()
{
    ++mSecondsHeld;
    mStage = HoldSpeed::stageAt(mSecondsHeld);
    showStage();
    if (!mFrames.isActive()) {
        mSinceFrame.start();
        mFrames.start(frame);
    }
}

void NumberEdit::makeDueSteps()
{
    const double seconds = static_cast<double>(mSinceFrame.restart()) / static_cast<double>(mSecond.count());
    mDue += seconds * HoldSpeed::stepsPerSecond(mStage);
    const QPointer<NumberEdit> alive(this);
    while (alive && mHeld && mDue >= 1 && mSinceFrame.elapsed() < frameBudget) {
        mDue -= 1;
        Q_EMIT stepped(mDirection);
    }
    if (alive && mDue >= 1)
        mDue = 0; // steps that took too long are not made up for
}

void NumberEdit::showStage()
{
    QPalette shown = palette();
    if (mStage != HoldSpeed::Stage::None) {
        const Colour colour = HoldSpeed::colour(mStage, mDirection);
        shown.setColor(QPalette::Base, QColor(static_cast<int>(colour & 0xFFU), static_cast<int>(colour >> 8U & 0xFFU),
                                              static_cast<int>(colour >> 16U)));
        shown.setColor(QPalette::Text, Qt::black);
    } else if (!isEnabled()) {
        const Shades shades = Shades::of(palette());
        shown.setColor(QPalette::Base, mixed(shades.field, shades.window, 0.6));
    }
    if (mEdit->palette() != shown)
        mEdit->setPalette(shown);
    update();
}
