// The main window's place on the screen, for the logic, in pixels that the browser beside it counts too.
#pragma once

#include "app/Ports.h"
#include "ui/windows/MainWindow.h"
#include "ui/windows/ScreenScale.h"

#include <QScreen>

class MainWindowPlace : public WindowPlace
{
  public:
    void set(MainWindow *window) { mWindow = window; }
    [[nodiscard]] QRect place() const override
    {
        return mWindow ? ScreenScale::toOthers(mWindow->geometry()) : QRect();
    }
    void moveTo(const QRect &place) override
    {
        if (mWindow)
            mWindow->move(ScreenScale::toOurs(place).topLeft());
    }
    /// Takes the size of `place`, as far as the screen has the room.
    void sizeTo(QSize size)
    {
        const QSize wanted = ScreenScale::toOurs(QRect(QPoint(), size)).size();
        mWindow->resize(wanted.boundedTo(mWindow->screen()->availableSize()));
    }
    [[nodiscard]] QRect screen() const override
    {
        return mWindow ? ScreenScale::toOthers(mWindow->screen()->availableGeometry()) : QRect();
    }
    void putOnTop(bool onTop) override
    {
        if (mWindow)
            mWindow->setKeptOnTop(onTop);
    }
    void minimize() override
    {
        if (mWindow)
            mWindow->showMinimized();
    }

  private:
    MainWindow *mWindow = nullptr;
};
