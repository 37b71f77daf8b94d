#include "engine/WebEngineStage.h"

#include "engine/WebEngineBrowser.h"

#include <QWebEngineView>

WebEngineStage::WebEngineStage(WebEngineBrowser &browser, QSize size) : mView(std::make_unique<QWebEngineView>())
{
    // A view that was never shown gives its size to no page that lives already.
    mView->setAttribute(Qt::WA_DontShowOnScreen);
    mView->setAttribute(Qt::WA_QuitOnClose, false);
    mView->resize(size);
    mView->setPage(browser.page());
    mView->show();
    QObject::connect(&browser, &WebEngineBrowser::pageReplaced, mView.get(), &QWebEngineView::setPage);
}

WebEngineStage::~WebEngineStage() = default;
