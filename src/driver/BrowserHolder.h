// Holds the one live browser driver. Its events come out here, so that whoever listens need not follow each new driver.
#pragma once

#include "driver/cIEObject.h"

class BrowserHolder : public QObject
{
    Q_OBJECT

  public:
    [[nodiscard]] bool isSet() const { return mobjIE != nullptr; }
    /// Error 91 while there is none.
    [[nodiscard]] cIEObject *operator->() const;
    [[nodiscard]] cIEObject &operator*() const { return *operator->(); }
    /// Takes a new driver and lets the old one go.
    void set(std::unique_ptr<cIEObject> driver);
    /// Lets the driver go; safe inside one of its own events.
    void release();

  Q_SIGNALS:
    /// Another driver is held than before, or none.
    void changed();
    void DocumentComplete(const QString &url, bool topDocument);
    void NewWindow2(bool *cancel);
    void WindowClosing();
    /// The browser has ended by itself and may be started again; comes in the place of WindowClosing.
    void Died();
    void loadingEnded();

  private:
    struct DeleteLater
    {
        void operator()(cIEObject *driver) const
        {
            driver->disconnect();
            driver->deleteLater();
        }
    };
    std::unique_ptr<cIEObject, DeleteLater> mobjIE;
};
