#include "ui/windows/GridWindow.h"

#include "ui/widgets/GridFoot.h"
#include "ui/widgets/ItemList.h"

#include <QKeyEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
constexpr int twipsPerPixel = 15;
}

GridWindow::GridWindow(frmfxg &form, QWidget *main) : QWidget(main, Qt::Window), mForm(form)
{
    setObjectName("frmfxg"_L1);
    setWindowTitle(u"Data"_s);
    setMinimumSize(frmfxg::leastSize / twipsPerPixel);
    resize(frmfxg::usualSize / twipsPerPixel);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    auto *const grid = new GridTable(this);
    grid->setObjectName("fxgTrawlex"_L1);
    grid->setAccessibleName(tr("Rows of the table"));
    auto *const list = new ItemList(this);
    list->setObjectName("lstMN"_L1);
    list->setAccessibleName(tr("Addresses"));
    layout->addWidget(grid);
    layout->addWidget(new GridFoot(*grid));
    layout->addWidget(list);
    mBinder.bindAll(form, *this);
}

void GridWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    mForm.setWidth(width() * twipsPerPixel);
}

void GridWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void GridWindow::closeEvent(QCloseEvent *event)
{
    Q_EMIT closing();
    QWidget::closeEvent(event);
}
