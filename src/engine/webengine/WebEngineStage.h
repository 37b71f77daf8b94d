// Gives the built-in browser's page a size and a place to be laid out in when no window shows it: without one the page
// is no pixel wide, takes itself for one on a telephone, and never loads what it keeps for scrolling. Knows nothing of
// what is on the page.
#pragma once

#include <QSize>
#include <memory>

class QWebEnginePage;
class QWebEngineView;
class WebEngineBrowser;

class WebEngineStage
{
  public:
    /// Needs a QApplication. Nothing is ever shown; browser and stage may go in either order.
    explicit WebEngineStage(WebEngineBrowser &browser, QSize size = {1280, 1024});
    ~WebEngineStage();
    Q_DISABLE_COPY_MOVE(WebEngineStage)

    /// The view that shows `page`, if there is one, shows `next` from now on: a window's as well as a stage's.
    static void replacePage(const QWebEnginePage &page, QWebEnginePage &next);

  private:
    std::unique_ptr<QWebEngineView> mView;
};
