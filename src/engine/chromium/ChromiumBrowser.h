// The free-standing browser as the browser driver sees it: a page window of a Chromium-family browser.
//
// Destroying it lets go of the window, which stays open, and is safe at any moment: inside a handler of one of its
// signals, and inside one that is called in the middle of its own reading (which then ends with an error).
#pragma once

#include "browser/BrowserEngine.h"

class ChromiumPage;

class ChromiumBrowser : public BrowserEngine
{
    Q_OBJECT

  public:
    explicit ChromiumBrowser(std::shared_ptr<ChromiumPage> page);
    ~ChromiumBrowser() override;

    void Navigate(const QString &address) override;
    void Stop() override;
    [[nodiscard]] bool isLoading() const override;
    [[nodiscard]] Arrival arrival() const override;

    void setTop(int pixels) override;
    void setLeft(int pixels) override;
    void setWidth(int pixels) override;
    void setHeight(int pixels) override;

    [[nodiscard]] QString LocationURL() override;
    [[nodiscard]] QString LocationName() override;
    [[nodiscard]] QString documentPart(Part part) override;
    [[nodiscard]] PageContent content() override;
    [[nodiscard]] QStringList links() override;
    [[nodiscard]] int frameCount() override;
    [[nodiscard]] QString framePart(int index, Part part) override;
    [[nodiscard]] QStringList frameLinks(int index) override;

    void setScriptLimit(std::chrono::milliseconds limit) override;
    void copySelection() override;
    /// Raises an error: a browser cannot be made to show its save box from outside.
    void saveAs() override;

    [[nodiscard]] QString userAgent() override;
    [[nodiscard]] QString cookiesFor(const QString &url) override;

  private:
    void deliver();
    void deliverSoon();

    const std::shared_ptr<ChromiumPage> mPage;
    bool mDeliveryDue = false;
};
