#include "ui/widgets/DropDown.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QStylePainter>
#include <QWheelEvent>

void DropDown::showPopup()
{
    Q_EMIT opening();
    if (!mShortTexts.isEmpty())
        view()->setMinimumWidth(view()->sizeHintForColumn(modelColumn()) + 2 * view()->frameWidth());
    QComboBox::showPopup();
}

void DropDown::keyPressEvent(QKeyEvent *event)
{
    // A letter with Alt is the key of a control that may be disabled now; it is no search in this list.
    if (event->modifiers().testFlag(Qt::AltModifier) && !event->text().isEmpty())
        return event->ignore();
    QComboBox::keyPressEvent(event);
}

void DropDown::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void DropDown::setShortTexts(const QStringList &texts)
{
    mShortTexts = texts;
    updateGeometry();
    update();
}

QSize DropDown::shortened(QSize size) const
{
    if (mShortTexts.isEmpty())
        return size;
    int width = 0;
    for (const QString &text : mShortTexts)
        width = qMax(width, fontMetrics().horizontalAdvance(text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.rect = QRect(0, 0, size.width(), size.height());
    const QRect room = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    constexpr int beside = 4;
    size.setWidth(size.width() - room.width() + width + 2 * beside);
    return size;
}

QSize DropDown::sizeHint() const
{
    return shortened(QComboBox::sizeHint());
}

QSize DropDown::minimumSizeHint() const
{
    return shortened(QComboBox::minimumSizeHint());
}

void DropDown::paintEvent(QPaintEvent *event)
{
    if (mShortTexts.isEmpty())
        return QComboBox::paintEvent(event);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = mShortTexts.value(currentIndex());
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
