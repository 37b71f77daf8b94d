#include "desktop/internal/BareBrowserWindow.h"

#include "ui/look/Icons.h"
#include "ui/windows/FileDialog.h"
#include "ui/windows/ScreenRoom.h"
#include "ui_BareBrowserWindow.h"

#include <QCloseEvent>
#include <QScreen>
#include <QShortcut>
#include <QWebEnginePage>

using namespace Qt::StringLiterals;

namespace {
constexpr QSize usualSize(1024, 768);
constexpr QSize leastSize(320, 200);
/// Where less is left beside the main window, the frame rather covers some of it.
constexpr int leastBeside = 488;

QString withProtocol(const QString &url)
{
    const bool has =
        url.startsWith("http"_L1, Qt::CaseInsensitive) || url.startsWith("file:///"_L1, Qt::CaseInsensitive);
    return has ? url : u"http://"_s + url;
}
} // namespace

BareBrowserWindow::BareBrowserWindow(std::shared_ptr<EmbeddedBrowser> browser, QString home)
    : mUi(std::make_unique<Ui::BareBrowserWindow>()), mBrowser(std::move(browser)), mHome(std::move(home))
{
    mUi->setupUi(this);
    setObjectName(u"frmWBare"_s);
    setWindowIcon(Icons::application());
    mUi->cmdGo_0->setIcon(Icons::inked(u"back"_s));
    mUi->cmdGo_1->setIcon(Icons::inked(u"go"_s));
    mUi->WBOne->setPage(mBrowser->page());
    setMinimumSize(leastSize);
    resize(usualSize);
    tmrAutoRefresh.setInterval(autoRefreshInterval);

    connect(mUi->cmdGo_0, &QPushButton::clicked, mBrowser.get(), &EmbeddedBrowser::goBack);
    connect(mUi->cmdGo_1, &QPushButton::clicked, this, &BareBrowserWindow::goToAddress);
    connect(mUi->txtAddressBar, &QLineEdit::returnPressed, this,
            [this] { issue(QUrl::fromUserInput(mUi->txtAddressBar->text()).toString()); });
    connect(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, mBrowser.get(),
            &EmbeddedBrowser::reload);
    connect(&tmrAutoRefresh, &QTimer::timeout, mBrowser.get(), &EmbeddedBrowser::reload);
    connect(mBrowser.get(), &BrowserEngine::DocumentComplete, this,
            [this](const QString &, bool topDocument) { showLocation(topDocument); });
    connect(mBrowser.get(), &EmbeddedBrowser::saveRequested, this, &BareBrowserWindow::savePage);
}

BareBrowserWindow::~BareBrowserWindow() = default;

void BareBrowserWindow::NavigateToUrl(const QString &url)
{
    issue(withProtocol(url));
}

void BareBrowserWindow::AutoRefreshTimer(bool on)
{
    if (on)
        tmrAutoRefresh.start();
    else
        tmrAutoRefresh.stop();
}

void BareBrowserWindow::placeBeside(const QWidget &main)
{
    const QRect screen = main.screen()->availableGeometry();
    const QRect beside = main.frameGeometry();
    const int room = screen.right() - beside.right();
    const QSize whole(qMin(usualSize.width(), qMax(room, leastBeside)), usualSize.height());
    resize(whole - ScreenRoom::frameAround(*this));
    ScreenRoom::place(*this, QPoint(beside.right() + 1, beside.top()), screen);
}

void BareBrowserWindow::closeEvent(QCloseEvent *event)
{
    event->accept();
    Q_EMIT closing();
    tmrAutoRefresh.stop();
    disconnect(mBrowser.get(), nullptr, this, nullptr);
    mUi->WBOne->setPage(nullptr);
    mBrowser->windowClosed();
}

void BareBrowserWindow::showLocation(bool topDocument)
{
    if (!topDocument)
        return;
    mUi->txtAddressBar->setText(mBrowser->LocationURL());
    // The page's own title, as the view has it: nothing is read from the page here.
    setWindowTitle(mUi->WBOne->title());
}

void BareBrowserWindow::goToAddress()
{
    const QString address = mUi->txtAddressBar->text().trimmed();
    if (address.isEmpty())
        issue(mHome);
    else
        NavigateToUrl(address);
}

void BareBrowserWindow::issue(const QString &address)
{
    try {
        mBrowser->Navigate(address);
    } catch (const RuntimeError &error) {
        // What is no address stays in the bar, marked, for the user to mend.
        mUi->txtAddressBar->setToolTip(error.description());
        mUi->txtAddressBar->setFocus();
        mUi->txtAddressBar->selectAll();
    }
}

void BareBrowserWindow::savePage()
{
    FileDialog dialog(this, u"Save page"_s, QString(), u"Page in one file (*.mhtml);;Page (*.html)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(windowTitle().replace(u'/', u'-') + u".html"_s);
    const QString path = dialog.choose();
    if (!path.isEmpty())
        mBrowser->page()->save(path, path.endsWith(".mhtml"_L1, Qt::CaseInsensitive)
                                         ? QWebEngineDownloadRequest::MimeHtmlSaveFormat
                                         : QWebEngineDownloadRequest::CompleteHtmlSaveFormat);
}
