#include "ui/windows/MagnifyWindow.h"

#include "ui/look/Icons.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
constexpr double magnification = 1.9;
constexpr int margin = 8;
} // namespace

MagnifyWindow::MagnifyWindow(QWidget *main)
    : QWidget(main, Qt::Window | Qt::WindowStaysOnTopHint), mBoxes(new QVBoxLayout(this))
{
    setObjectName(u"frmMagnify"_s);
    setWindowTitle(u"Double click to close"_s);
    setWindowIcon(Icons::application());
    mBoxes->setContentsMargins(margin, margin, margin, margin);
    mBoxes->setSpacing(0);
    txtMagnify.append(newBox());
}

QLineEdit *MagnifyWindow::newBox()
{
    auto *const box = new QLineEdit(this);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * magnification);
    box->setFont(large);
    box->setAccessibleName(u"Line %1"_s.arg(txtMagnify.size() + 1));
    box->installEventFilter(this);
    mBoxes->addWidget(box);
    return box;
}

void MagnifyWindow::Magnify(const QString &text)
{
    const QStringList lines = text.split(u"\r\n"_s).mid(0, mostLines);
    while (txtMagnify.size() > 1)
        delete txtMagnify.takeLast();
    while (txtMagnify.size() < lines.size())
        txtMagnify.append(newBox());
    for (int i = 0; i < lines.size(); ++i) {
        txtMagnify.at(i)->setText(lines.at(i));
        txtMagnify.at(i)->setCursorPosition(0);
    }
    mBoxes->activate();
    resize(width(), minimumSizeHint().height());
}

void MagnifyWindow::placeUnder(const QWidget &main)
{
    const QRect room = main.screen()->availableGeometry();
    const QRect above = main.frameGeometry();
    const int top = qMin(above.bottom() + 1, room.bottom() + 1 - height());
    setGeometry(room.left(), qMax(room.top(), top), room.width(), height());
}

bool MagnifyWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonDblClick)
        return QWidget::eventFilter(watched, event);
    close();
    return true;
}

void MagnifyWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void MagnifyWindow::closeEvent(QCloseEvent *event)
{
    Q_EMIT closing();
    QWidget::closeEvent(event);
}
