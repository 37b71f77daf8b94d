// The main window's place on the screen, for the logic.
#pragma once

#include "app/Ports.h"
#include "ui/windows/MainWindow.h"

#include <QScreen>

class MainWindowPlace : public WindowPlace
{
  public:
    void set(MainWindow *window) { mWindow = window; }
    [[nodiscard]] QRect place() const override { return mWindow ? mWindow->geometry() : QRect(); }
    void moveTo(const QRect &place) override
    {
        if (mWindow)
            mWindow->move(place.topLeft());
    }
    [[nodiscard]] QRect screen() const override { return mWindow ? mWindow->screen()->availableGeometry() : QRect(); }
    void putOnTop(bool onTop) override
    {
        if (mWindow)
            mWindow->setKeptOnTop(onTop);
    }

  private:
    MainWindow *mWindow = nullptr;
};
