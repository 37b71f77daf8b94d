#include "ui/windows/PictureWindow.h"

#include "ui/binding/MenuMirror.h"
#include "ui/look/Icons.h"
#include "ui/look/Style.h"
#include "ui/pictures/PictureGoing.h"
#include "ui/pictures/ThumbnailDelegate.h"
#include "ui/widgets/ItemList.h"
#include "ui/widgets/PathLabel.h"
#include "ui/windows/ScreenRoom.h"
#include "util/Errors.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {
constexpr int listWidth = 200, leastList = 104, leastTarget = 40;
constexpr int gap = 8;
/// Smaller pictures get as much; less of it is left where the screen has no more.
constexpr QSize usualPicture(320, 240), leastPicture(160, 120);
constexpr QSize aroundPicture(listWidth + 3 * gap, Style::rowHeight + 3 * gap);
/// Pictures that are read ahead: more of them on the side to which the walk goes.
constexpr int aheadOfWalk = 6, behindWalk = 2;
} // namespace

PictureWindow::PictureWindow(frmFoto &form, QWidget *main) : QWidget(main, Qt::Window), mForm(form)
{
    setObjectName(u"frmFoto"_s);
    setWindowIcon(Icons::application());
    build();
    mBinder.bindAll(form, *this);
    lstFoto->setSelectionMode(QAbstractItemView::SingleSelection);
    mAhead.setRoom(roomForPictures() * devicePixelRatioF());
    connectKeys();
    connectForm();
    showState();
    showThumbnails();
    lstFoto->setFocus();
}

PictureWindow::~PictureWindow() = default;

void PictureWindow::build()
{
    lstFoto = new ItemList(this);
    lstFoto->setObjectName("lstFoto"_L1);
    lstFoto->setAccessibleName(u"Pictures"_s);
    lstFoto->setEmptyText(u"No jpg, gif or bmp here"_s);
    lstFoto->setMinimumWidth(leastList);
    lstFoto->setMaximumWidth(listWidth);
    picFoto = new PictureView(this);
    picFoto->setObjectName("picFoto"_L1);
    picFoto->setAccessibleName(u"Picture"_s);
    picFoto->setMinimumSize(leastPicture);
    auto *const whole = new QGridLayout(this);
    whole->setContentsMargins(gap, gap, gap, gap);
    whole->setSpacing(gap);
    whole->addWidget(lstFoto, 0, 0);
    whole->addWidget(picFoto, 0, 1);
    QWidget *const row = commands();
    whole->addWidget(row, 1, 0, 1, 2);
    // They take what room there is, whatever they would like to have.
    picFoto->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    row->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->setMinimumWidth(row->minimumSizeHint().width()); // the keys on the buttons are read in any case
    whole->setRowStretch(0, 1);
    whole->setColumnStretch(0, 2); // up to the width of the list
    whole->setColumnStretch(1, 3);
}

QPushButton *PictureWindow::command(MenuItem &item, const QString &name)
{
    auto *const button = new QPushButton(item.caption().simplified(), this);
    button->setObjectName(name);
    button->setFocusPolicy(Qt::NoFocus); // the keys stay with the list
    connect(button, &QPushButton::clicked, &item, &MenuItem::click);
    connect(&item, &Control::changed, button, [button, &item] { button->setEnabled(item.isEnabled()); });
    button->setEnabled(item.isEnabled());
    return button;
}

QWidget *PictureWindow::commands()
{
    auto *const row = new QWidget(this);
    auto *const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    mPosition = new QLabel(row);
    mPosition->setObjectName("lblPosition"_L1);
    mPosition->setMinimumWidth(fontMetrics().horizontalAdvance(u"999 of 999"_s));
    mTarget = new PathLabel(row);
    mTarget->setObjectName("lblMoveTo"_L1);
    mTarget->setMinimumWidth(leastTarget);
    mTarget->setEmptyText(u"No directory to move to"_s);
    mMore = new QPushButton(u"…"_s, row);
    mMore->setObjectName("cmdMore"_L1);
    mMore->setAccessibleName(u"More"_s);
    mMore->setFocusPolicy(Qt::NoFocus);
    connect(mMore, &QPushButton::clicked, this, &PictureWindow::showMore);
    layout->addWidget(mPosition);
    layout->addWidget(command(mForm.mnuFotoPopUpAction.item("mnuFotoMoveIt"_L1), u"cmdMoveIt"_s));
    layout->addWidget(mTarget, 1);
    layout->addWidget(command(mForm.mnuFotoPopUpAction.item("mnuFotoDeleteIt"_L1), u"cmdDeleteIt"_s));
    layout->addWidget(mMore);
    return row;
}

void PictureWindow::connectKeys()
{
    const auto key = [this](const QKeySequence &keys, MenuItem &item) {
        connect(new QShortcut(keys, this), &QShortcut::activated, &item, &MenuItem::click);
    };
    key(QKeySequence::Undo, mForm.mnuFotoMore.item("mnuFotoUndo"_L1));
    key(Qt::Key_Space, mForm.mnuFotoMore.item("mnuFotoActualSize"_L1));
    key(Qt::CTRL | Qt::Key_T, mForm.mnuFotoMore.item("mnuFotoThumbnails"_L1));
    key(Qt::Key_F5, mForm.mnuFotoPopUpAction.item("mnuRefresh"_L1));
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(picFoto, &PictureView::doubleClicked, &mForm.mnuFotoMore.item("mnuFotoActualSize"_L1), &MenuItem::click);
}

void PictureWindow::connectForm()
{
    connect(&mForm, &frmFoto::changed, this, &PictureWindow::showState);
    connect(&mForm, &frmFoto::leaves, this, [this](frmFoto::Leaves how) {
        PictureGoing::letGo(*picFoto,
                            how == frmFoto::Leaves::Moved ? PictureGoing::Way::Slide : PictureGoing::Way::Fade);
    });
    const Menu &more = mForm.mnuFotoMore;
    connect(&more.item("mnuFotoActualSize"_L1), &Control::changed, this, &PictureWindow::showActualSize);
    connect(&more.item("mnuFotoThumbnails"_L1), &MenuItem::Click, this, &PictureWindow::showThumbnails);
    // A list that could not be used for a moment has lost the focus.
    connect(&mForm.lstFoto, &Control::changed, this, [this] {
        QMetaObject::invokeMethod(
            lstFoto, [this] { lstFoto->setFocus(); }, Qt::QueuedConnection);
    });
}

void PictureWindow::showState()
{
    setWindowTitle(mForm.caption());
    mPosition->setText(mForm.caption());
    mTarget->setText(mForm.notice().isEmpty() ? mForm.moveToDirectory() : mForm.notice());
    mTarget->setToolTip(mTarget->text().isEmpty() ? u"Right button on the list: Set Move To Dir"_s : mTarget->text());
}

void PictureWindow::LoadPicture(const QString &path)
{
    mPath = path;
    const Picture picture = mAhead.take(path);
    readAhead();
    if (!picture.refusal.isEmpty()) {
        const QString reason = QFileInfo(path).fileName() + u": "_s + picture.refusal;
        picFoto->refuse(reason);
        throw RuntimeError(ErrorNumber::InvalidPicture, reason);
    }
    picFoto->showPicture(picture, path);
    follow((QSizeF(picture.size) / devicePixelRatioF()).toSize());
}

/// The neighbours in the direction of the walk, then some behind it.
void PictureWindow::readAhead()
{
    const int index = mForm.lstFoto.listIndex();
    const int step = index > mLastIndex && mLastIndex >= 0 ? 1 : -1;
    mLastIndex = index;
    QStringList paths{mForm.picturePath(index)};
    for (int i = 1; i <= aheadOfWalk; ++i)
        paths.append(mForm.picturePath(index + i * step));
    for (int i = 1; i <= behindWalk; ++i)
        paths.append(mForm.picturePath(index - i * step));
    paths.removeAll(QString());
    mAhead.prepare(paths);
}

QSize PictureWindow::roomForPictures() const
{
    return screen()->availableSize() - ScreenRoom::frameAround(*this) - aroundPicture;
}

void PictureWindow::follow(QSize picture)
{
    if (isMaximized() || isFullScreen())
        return;
    resize(picture.expandedTo(usualPicture) + aroundPicture);
    ScreenRoom::keepOnScreen(*this);
}

void PictureWindow::showActualSize()
{
    const bool actual = mForm.mnuFotoMore.item("mnuFotoActualSize"_L1).isChecked();
    if (actual == picFoto->isActualSize())
        return;
    mAhead.setRoom(actual ? QSize() : roomForPictures() * devicePixelRatioF());
    picFoto->setActualSize(actual);
    if (const Picture picture = mAhead.take(mPath); picture.refusal.isEmpty())
        picFoto->showPicture(picture, mPath);
    readAhead();
}

void PictureWindow::showThumbnails()
{
    QAbstractItemDelegate *const before = lstFoto->itemDelegate();
    if (mForm.mnuFotoMore.item("mnuFotoThumbnails"_L1).isChecked()) {
        auto *const thumbnails = new ThumbnailDelegate([this](int row) { return mForm.picturePath(row); }, lstFoto);
        connect(thumbnails, &ThumbnailDelegate::arrived, lstFoto->viewport(), qOverload<>(&QWidget::update));
        lstFoto->setItemDelegate(thumbnails);
    } else {
        lstFoto->setItemDelegate(new QStyledItemDelegate(lstFoto));
    }
    before->deleteLater();
    lstFoto->scrollTo(lstFoto->currentIndex());
}

void PictureWindow::showMore()
{
    QMenu *const menu = MenuMirror::mirrored(mForm.mnuFotoMore, this).release();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(mMore->mapToGlobal(QPoint(0, -menu->sizeHint().height())));
}

/// The chosen name stays in sight when the list becomes shorter.
void PictureWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    QMetaObject::invokeMethod(
        lstFoto, [this] { lstFoto->scrollTo(lstFoto->currentIndex()); }, Qt::QueuedConnection);
}

void PictureWindow::closeEvent(QCloseEvent *event)
{
    Q_EMIT closing();
    QWidget::closeEvent(event);
}
