#include "ui/windows/MainWindow.h"

#include "ui/look/Drawing.h"
#include "ui/look/Icons.h"
#include "ui/look/Theme.h"
#include "ui_AutoTab.h"
#include "ui_MainWindow.h"
#include "ui_SettingsTab.h"

#include <QApplication>
#include <QCloseEvent>
#include <QShortcut>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {
constexpr int usualWidth = 452;
constexpr const char *iconProperty = "iconName";

/// The tabs and the stack of their pages.
struct TabPages
{
    QLatin1StringView tabs, pages;
};
constexpr TabPages tabPages[] = {{"sstSearch"_L1, "pages"_L1},
                                 {"sstSettings"_L1, "settingsPages"_L1},
                                 {"sstFiles"_L1, "filesPages"_L1},
                                 {"sstMiscOptions"_L1, "miscPages"_L1}};
} // namespace

MainWindow::MainWindow(frmSearch &form)
    : mUi(std::make_unique<Ui::MainWindow>()), mAuto(std::make_unique<Ui::AutoTab>()),
      mSettings(std::make_unique<Ui::SettingsTab>())
{
    Theme::of(*qApp);
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint);
    mUi->setupUi(this);
    mAuto->setupUi(mUi->autoPage);
    mSettings->setupUi(mUi->settingsPage);
    setWindowTitle(u"Trawlex"_s);
    setWindowIcon(Icons::application());
    dressWidgets();
    mBinder.bindAll(form, *this);
    connectPages();
    connect(mUi->minimizeButton, &QPushButton::clicked, this, &QWidget::showMinimized);
    TurnOffTabStop();
    addKeys();
    resize(qMax(usualWidth, minimumSizeHint().width()), sizeHint().height());
}

MainWindow::~MainWindow() = default;

void MainWindow::connectPages()
{
    for (const TabPages &row : tabPages) {
        auto *const tabs = findChild<QTabBar *>(row.tabs);
        auto *const pages = findChild<QStackedWidget *>(row.pages);
        connect(tabs, &QTabBar::currentChanged, pages, &QStackedWidget::setCurrentIndex);
        pages->setCurrentIndex(tabs->currentIndex());
    }
}

void MainWindow::dressWidgets()
{
    for (QPushButton *const button : findChildren<QPushButton *>()) {
        const QString icon = button->property(iconProperty).toString();
        if (!icon.isEmpty())
            button->setIcon(Icons::inked(icon));
    }
    for (QLabel *const label : findChildren<QLabel *>()) {
        if (label->objectName().endsWith("Empty"_L1))
            label->setForegroundRole(QPalette::PlaceholderText);
    }
    QFont bold = mAuto->cmdANStart->font();
    bold.setPointSizeF(bold.pointSizeF() * 1.35);
    bold.setBold(true);
    mAuto->cmdANStart->setFont(bold);
}

void MainWindow::addKeys()
{
    const auto onKey = [this](const QKeySequence &key, auto action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    };
    onKey(Qt::Key_F6, [this] { moveFocus(Step::Next); });
    onKey(Qt::SHIFT | Qt::Key_F6, [this] { moveFocus(Step::Previous); });
    for (int tab = 0; tab < mUi->sstSearch->count(); ++tab)
        onKey(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + tab)),
              [this, tab] { mUi->sstSearch->setCurrentIndex(tab); });
}

/// The Tab key does not run through the window; F6 does, and each control has its mnemonic or its place on that way.
void MainWindow::TurnOffTabStop()
{
    for (QWidget *const widget : findChildren<QWidget *>()) {
        // A widget without it may stand in for another, to which it would hand the change on.
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->objectName() != "cboMNAutoUrl"_L1)
            widget->setFocusPolicy(static_cast<Qt::FocusPolicy>(widget->focusPolicy() & ~Qt::TabFocus));
    }
}

void MainWindow::moveFocus(Step step)
{
    QWidget *const from = focusWidget() != nullptr ? focusWidget() : this;
    const auto neighbour = [step](const QWidget *widget) {
        return step == Step::Next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    for (QWidget *widget = neighbour(from); widget != from; widget = neighbour(widget)) {
        const bool takesFocus = (widget->focusPolicy() & Qt::ClickFocus) != 0;
        if (takesFocus && widget->focusProxy() == nullptr && widget->isEnabled() && widget->isVisibleTo(this))
            return widget->setFocus(step == Step::Next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    }
}

void MainWindow::setProgress(int done, int total)
{
    mUi->picStatus->setProgress(done, total);
}

void MainWindow::setKeptOnTop(bool onTop)
{
    if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) == onTop)
        return;
    // Changing a flag hides a window that stands.
    const bool shown = isVisible();
    setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
    if (shown)
        show();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (mMayClose)
        return event->accept();
    event->ignore();
    Q_EMIT closeRequested();
}

void MainWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Shades shades = Shades::of(palette());
    painter.fillRect(rect(), shades.window);
    painter.fillRect(mUi->titleBar->geometry(), shades.strip);
    painter.setPen(shades.edge);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::PaletteChange)
        mBinder.showAll();
    QWidget::changeEvent(event);
}
