// A browser without a window of its own: whoever shows it brings one and tells it when that window has gone. Knows no
// engine and no widget.
#pragma once

#include "browser/BrowserEngine.h"

class QWebEnginePage;

class EmbeddedBrowser : public BrowserEngine
{
    Q_OBJECT

  public:
    /// The page for a view to show, until pageReplaced(). Belongs to the browser and may outlive it by a turn of the
    /// event loop.
    [[nodiscard]] virtual QWebEnginePage *page() const = 0;

  public Q_SLOTS:
    /// What the buttons and keys of the view's window ask for. Nothing happens without a page before this one.
    virtual void goBack() = 0;
    virtual void reload() = 0;
    /// The window that shows the page is gone: emits WindowClosing, and every later call raises an error.
    virtual void windowClosed() = 0;

  Q_SIGNALS:
    /// The user is to be asked where to, and page()->save() called. The download of that page is accepted.
    void saveRequested();
    /// The page has lost its process, and another one has taken its place, in its view too.
    void pageReplaced(QWebEnginePage *page);
};
