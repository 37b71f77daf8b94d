#include "ui/windows/MainWindow.h"

#include "ui/look/Drawing.h"
#include "ui/look/Icons.h"
#include "ui/look/Theme.h"
#include "ui/widgets/Accessible.h"
#include "ui/widgets/DropDown.h"
#include "ui/widgets/EdgeGrips.h"
#include "ui/widgets/GridFoot.h"
#include "ui/widgets/GroupPanel.h"
#include "ui_AutoManualPage.h"
#include "ui_AutoTab.h"
#include "ui_BlockingPage.h"
#include "ui_DataTab.h"
#include "ui_DirectoryPage.h"
#include "ui_ImportPage.h"
#include "ui_MainWindow.h"
#include "ui_ManualTab.h"
#include "ui_SavePage.h"
#include "ui_SettingsTab.h"
#include "ui_SitesPage.h"
#include "ui_ViewPage.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {
constexpr int usualWidth = 452;
constexpr const char *iconProperty = "iconName";

template <class Page> void fill(QWidget &page)
{
    Page().setupUi(&page);
}

/// What stands on each page; a page comes behind the one that it stands on.
struct PageRow
{
    QLatin1StringView page;
    void (*fill)(QWidget &page);
};
constexpr PageRow pageRows[] = {
    {"autoPage"_L1, fill<Ui::AutoTab>},          {"manualPage"_L1, fill<Ui::ManualTab>},
    {"settingsPage"_L1, fill<Ui::SettingsTab>},  {"dataPage"_L1, fill<Ui::DataTab>},
    {"blockingPage"_L1, fill<Ui::BlockingPage>}, {"directoryPage"_L1, fill<Ui::DirectoryPage>},
    {"importPage"_L1, fill<Ui::ImportPage>},     {"amPage"_L1, fill<Ui::AutoManualPage>},
    {"savePage"_L1, fill<Ui::SavePage>},         {"viewPage"_L1, fill<Ui::ViewPage>},
    {"sitesPage"_L1, fill<Ui::SitesPage>},
};

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
    : mUi(std::make_unique<Ui::MainWindow>()), mElongated(form.series.picMNShadow.isVisible())
{
    Theme::of(*qApp);
    Accessible::install();
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint);
    mUi->setupUi(this);
    for (const PageRow &row : pageRows)
        row.fill(*findChild<QWidget *>(row.page));
    setWindowTitle(u"Trawlex"_s);
    setWindowIcon(Icons::application());
    dressWidgets();
    mBinder.bindAll(form, *this);
    connectPages();
    connect(mUi->minimizeButton, &QPushButton::clicked, this, &QWidget::showMinimized);
    TurnOffTabStop();
    addKeys();
    EdgeGrip::putOn(*this);
    connect(&form.series.picMNShadow, &Control::changed, this, [this, &form] { elongate(form); });
    takeUsualSize();
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
    auto *const lists = findChild<QStackedWidget *>("listPages"_L1);
    auto *const list = findChild<DropDown *>("cboMNList"_L1);
    connect(list, &QComboBox::currentIndexChanged, lists, &QStackedWidget::setCurrentIndex);
    lists->setCurrentIndex(list->currentIndex());
    connect(findChild<DropDown *>("cboDBPlace"_L1), &QComboBox::currentTextChanged, this,
            [filter = findChild<QLineEdit *>("txtDBQuery"_L1)](const QString &place) {
                filter->setPlaceholderText(place + u'…');
            });
    for (GroupPanel *const group : findChildren<GroupPanel *>())
        connect(group, &GroupPanel::foldedChanged, this, &MainWindow::foldingChanged);
}

void MainWindow::dressWidgets()
{
    for (QPushButton *const button : findChildren<QPushButton *>()) {
        const QString icon = button->property(iconProperty).toString();
        if (!icon.isEmpty())
            button->setIcon(Icons::inked(icon));
    }
    GridTable *const grid = findChild<GridTable *>("fxgTrawlex"_L1);
    grid->parentWidget()->layout()->addWidget(new GridFoot(*grid));
    for (QPushButton *const go :
         {findChild<QPushButton *>("cmdANStart"_L1), findChild<QPushButton *>("cmdMNStart"_L1)}) {
        QFont bold = go->font();
        bold.setPointSizeF(bold.pointSizeF() * 1.35);
        bold.setBold(true);
        go->setFont(bold);
    }
}

void MainWindow::takeUsualSize()
{
    // The tallest of all tabs would make a tower of the others: they scroll.
    const int tab = mUi->autoPage->sizeHint().height();
    const QSize usual(qMax(usualWidth, minimumSizeHint().width()),
                      mUi->titleBar->sizeHint().height() + tab + mUi->picStatus->sizeHint().height() + 2);
    mUsualSize = usual.boundedTo(screen()->availableGeometry().size());
    resize(mUsualSize);
}

/// The box for the address of a series is as wide as the window: the window grows with it.
void MainWindow::elongate(const frmSearch &form)
{
    constexpr int twipsPerPixel = 15;
    const bool grown = form.series.picMNShadow.isVisible();
    const int wanted = grown ? static_cast<int>(form.limits.incSMAMAutoTxtElng.value()) / twipsPerPixel : 0;
    if (std::exchange(mElongated, grown) != grown)
        resize(width() + wanted - std::exchange(mElongation, wanted), height());
}

QStringList MainWindow::foldedGroups() const
{
    QStringList names;
    for (const GroupPanel *const group : findChildren<GroupPanel *>()) {
        if (group->isFolded())
            names.append(group->objectName());
    }
    return names;
}

void MainWindow::setFoldedGroups(const QStringList &names)
{
    for (GroupPanel *const group : findChildren<GroupPanel *>())
        group->setFolded(names.contains(group->objectName()));
}

/// A shortcut would take the key from the side windows, which it closes.
void MainWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT cancelRequested();
    else
        QWidget::keyPressEvent(event);
}

void MainWindow::addKeys()
{
    const auto onKey = [this](const QKeySequence &key, auto action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    };
    onKey(Qt::Key_F1, [this] { Q_EMIT helpRequested(); });
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

void MainWindow::setTally(const QString &tally)
{
    mUi->picStatus->setTally(tally);
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

void MainWindow::showEvent(QShowEvent *)
{
    // Some widgets know what room they need only once they stand.
    const auto fit = [this] {
        if (size() == mUsualSize)
            takeUsualSize();
    };
    if (!std::exchange(mWasShown, true))
        QMetaObject::invokeMethod(this, fit, Qt::QueuedConnection);
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
