#include "ui/widgets/GroupPanel.h"

#include "ui/look/Drawing.h"

#include <QKeyEvent>
#include <QLayout>

using namespace Qt::StringLiterals;

namespace {
constexpr int chevronSize = 7;
constexpr int chevronGap = 6;
} // namespace

void GroupPanel::setFolded(bool folded)
{
    auto *const body = findChild<QWidget *>(objectName().replace("Group"_L1, "Body"_L1));
    if (folded == mFolded || body == nullptr)
        return;
    mFolded = folded;
    body->setVisible(!folded);
    QSizePolicy policy = sizePolicy();
    if (folded)
        mUnfolded = policy.verticalPolicy();
    policy.setVerticalPolicy(folded ? QSizePolicy::Maximum : mUnfolded);
    setSizePolicy(policy);
    for (GroupHeading *const heading : findChildren<GroupHeading *>()) {
        heading->setAccessibleDescription(folded ? u"folded"_s : QString());
        heading->update();
    }
    Q_EMIT foldedChanged();
}

void GroupPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Shades shades = Shades::of(palette());
    Drawing::box(painter, rect(), shades.panel, shades.line);
}

GroupHeading::GroupHeading(QWidget *parent) : QWidget(parent)
{
    QFont heading = font();
    heading.setPointSizeF(heading.pointSizeF() * 0.86);
    heading.setBold(true);
    heading.setCapitalization(QFont::AllUppercase);
    heading.setLetterSpacing(QFont::AbsoluteSpacing, 0.5);
    setFont(heading);
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void GroupHeading::setText(const QString &text)
{
    mText = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

GroupPanel *GroupHeading::panel() const
{
    return qobject_cast<GroupPanel *>(parentWidget());
}

void GroupHeading::toggle()
{
    if (panel() != nullptr)
        panel()->setFolded(!panel()->isFolded());
}

QSize GroupHeading::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(mText.toUpper()) + chevronGap + chevronSize + 6,
            qMax(20, fontMetrics().height())};
}

void GroupHeading::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Shades shades = Shades::of(palette());
    const bool pointed = underMouse() || Drawing::showsFocus(*this);
    painter.setPen(pointed ? shades.text : shades.quiet);
    painter.setFont(font());
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft, mText);
    const bool folded = panel() != nullptr && panel()->isFolded();
    // An open group shows that it folds only to who comes near.
    if (folded || pointed) {
        const int behind = fontMetrics().horizontalAdvance(mText.toUpper()) + chevronGap + 4;
        Drawing::chevron(painter, QPointF(behind, height() / 2.0), chevronSize, pointed ? shades.text : shades.quiet,
                         folded ? Drawing::Points::Down : Drawing::Points::Up);
    }
    if (Drawing::showsFocus(*this))
        Drawing::focusRing(painter, rect(), shades);
}

void GroupHeading::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        toggle();
    else
        event->ignore();
}

void GroupHeading::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        toggle();
    else
        QWidget::keyPressEvent(event);
}

void GroupHeading::enterEvent(QEnterEvent *)
{
    update();
}

void GroupHeading::leaveEvent(QEvent *)
{
    update();
}
