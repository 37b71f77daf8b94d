#include "engine/webengine/WebEngineStage.h"

#include "engine/webengine/WebEngineBrowser.h"

#include <QWebEngineView>

WebEngineStage::WebEngineStage(WebEngineBrowser &browser, QSize size) : mView(std::make_unique<QWebEngineView>())
{
    // A view that was never shown gives its size to no page that lives already.
    mView->setAttribute(Qt::WA_DontShowOnScreen);
    mView->setAttribute(Qt::WA_QuitOnClose, false);
    mView->resize(size);
    mView->setPage(browser.page());
    mView->show();
}

WebEngineStage::~WebEngineStage() = default;

void WebEngineStage::replacePage(const QWebEnginePage &page, QWebEnginePage &next)
{
    if (QWebEngineView *view = QWebEngineView::forPage(&page))
        view->setPage(&next);
}
