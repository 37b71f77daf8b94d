// The window of the built-in browser: an address bar, back, go, F5, and the page. The browser itself is the engine's;
// the window shows its page and tells it when the user has closed the window.
#pragma once

#include "browser/EmbeddedBrowser.h"
#include "ui/windows/BrowserWindow.h"

#include <QTimer>
#include <memory>

namespace Ui {
class BareBrowserWindow;
}

class BareBrowserWindow : public BrowserWindow
{
    Q_OBJECT

  public:
    static constexpr std::chrono::seconds autoRefreshInterval{65};

    /// Go with an empty address bar opens `home`.
    explicit BareBrowserWindow(std::shared_ptr<EmbeddedBrowser> browser, QString home = QStringLiteral("about:blank"));
    ~BareBrowserWindow() override;

    /// Opens an address as the user means it: without a protocol it is http. Returns once it is issued.
    void NavigateToUrl(const QString &url);
    /// Loads the page again every 65 seconds while on.
    void AutoRefreshTimer(bool on);
    void placeBeside(const QWidget &main) override;

  protected:
    void closeEvent(QCloseEvent *event) override;

  private:
    void showLocation(bool topDocument);
    void goToAddress();
    void issue(const QString &address);
    void savePage();

    std::unique_ptr<Ui::BareBrowserWindow> mUi;
    std::shared_ptr<EmbeddedBrowser> mBrowser;
    QString mHome;
    QTimer tmrAutoRefresh;
};
