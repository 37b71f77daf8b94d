#include "ui/windows/MagnifyWindow.h"

#include "ui/look/Icons.h"
#include "ui/windows/ScreenRoom.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
constexpr double magnification = 1.9;
constexpr int margin = 8;
} // namespace

MagnifyWindow::MagnifyWindow(QWidget *main)
    : QWidget(main, Qt::Window | Qt::WindowStaysOnTopHint), mBoxes(new QVBoxLayout)
{
    setObjectName(u"frmMagnify"_s);
    setWindowTitle(u"Double click to close"_s);
    setWindowIcon(Icons::application());
    auto *const sheet = new QWidget;
    sheet->setLayout(mBoxes);
    mBoxes->setContentsMargins(0, 0, 0, 0);
    mBoxes->setSpacing(0);
    auto *const scroller = new QScrollArea(this);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setWidgetResizable(true);
    scroller->setFocusPolicy(Qt::NoFocus);
    scroller->setMinimumHeight(1); // a window of one line is lower than a scroll bar would like
    scroller->setWidget(sheet);
    auto *const whole = new QVBoxLayout(this);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->addWidget(scroller);
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
    box->show(); // only what is shown is counted in the height
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
    resize(width(), mBoxes->sizeHint().height() + 2 * margin);
    ScreenRoom::keepOnScreen(*this);
}

void MagnifyWindow::placeUnder(const QWidget &main)
{
    const QRect room = main.screen()->availableGeometry();
    resize(room.width(), height());
    ScreenRoom::place(*this, QPoint(room.left(), main.frameGeometry().bottom() + 1), room);
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
