// A main window on controls of its own, shown without a display.
#pragma once

#include "ui/windows/MainWindow.h"

#include <QCoreApplication>
#include <QTest>
#include <gtest/gtest.h>

struct WindowFixture : testing::Test
{
    WindowFixture()
    {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        settle();
    }
    ~WindowFixture() override { window.allowClose(); }

    /// Lets everything that is queued happen.
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    /// The widget of that name and kind; a null reference fails the test before it is used.
    template <class Kind> Kind &widget(const char *name)
    {
        auto *const found = window.findChild<Kind *>(QLatin1StringView(name));
        if (found == nullptr)
            throw std::runtime_error(std::string("no widget ") + name);
        return *found;
    }

    static void click(QWidget &widget, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&widget, button);
        settle();
    }

    static void doubleClick(QWidget &widget, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&widget, button);
        QTest::mouseDClick(&widget, button);
        settle();
    }

    frmSearch form;
    MainWindow window{form};
};

/// Counts what an object raises, by a signal of any arguments.
template <class Sender, class Signal> class Raised
{
  public:
    Raised(Sender &sender, Signal signal)
        : mConnection(QObject::connect(&sender, signal, &sender, [this] { ++mTimes; }))
    {
    }
    ~Raised() { QObject::disconnect(mConnection); }
    Q_DISABLE_COPY_MOVE(Raised)
    [[nodiscard]] int times() const { return mTimes; }

  private:
    int mTimes = 0;
    QMetaObject::Connection mConnection;
};
