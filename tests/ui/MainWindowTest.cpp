// The window itself: no title bar, closing, the keyboard's way through it.
#include "WindowFixture.h"
#include "ui/widgets/Mark.h"
#include "ui/widgets/StatusBarLine.h"

#include <QApplication>
#include <QPushButton>
#include <QTabBar>

using namespace Qt::StringLiterals;

struct MainWindows : WindowFixture
{
};

TEST_F(MainWindows, HaveNoTitleBarAndAreCompact)
{
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(window.windowTitle(), u"Trawlex"_s);
    EXPECT_LE(window.width(), 480);
    EXPECT_LE(window.height(), 740);
}

TEST_F(MainWindows, AreMovedByTheirTabStrip)
{
    auto &tabs = widget<QTabBar>("sstSearch");
    const QPoint before = window.pos();
    const QPoint grabbed(tabs.width() - 10, 10); // right of the last tab
    QTest::mousePress(&tabs, Qt::LeftButton, {}, grabbed);
    QTest::mouseMove(&tabs, grabbed + QPoint(40, 30));
    settle();
    QTest::mouseRelease(&tabs, Qt::LeftButton, {}, grabbed);
    settle();
    EXPECT_NE(window.pos(), before);
    EXPECT_EQ(form.frame.sstSearch.tab(), 0);
    const QPoint moved = window.pos();
    QTest::mouseMove(&tabs, grabbed + QPoint(5, 20));
    settle();
    EXPECT_EQ(window.pos(), moved) << "the button is up";
}

TEST_F(MainWindows, AskBeforeTheyClose)
{
    const Raised asked(window, &MainWindow::closeRequested);
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(asked.times(), 1);
    window.allowClose();
    EXPECT_TRUE(window.close());
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(asked.times(), 1);
}

TEST_F(MainWindows, TheEndMarkTellsBothButtonsAndCarriesItsColour)
{
    auto &mark = widget<EndMark>("picANEnd");
    QList<MouseButton> pressed;
    QObject::connect(&form.browser.picANEnd, &Control::mousePressed, &form, [&](MouseButton b) { pressed.append(b); });
    click(mark);
    click(mark, Qt::RightButton);
    EXPECT_EQ(pressed, (QList<MouseButton>{MouseButton::Left, MouseButton::Right}));
    const QImage neutral = mark.grab().toImage();
    form.browser.picANEnd.setBackColor(Colours::Green);
    settle();
    EXPECT_NE(mark.grab().toImage(), neutral);
    EXPECT_EQ(mark.colour(), Colours::Green);
}

TEST_F(MainWindows, TheTabKeyStaysAndF6GoesThroughAllControls)
{
    QSet<QString> reached;
    widget<QWidget>("cmdANStart").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), u"cmdANStart"_s);
    for (int i = 0; i < 80; ++i) {
        QTest::keyClick(&window, Qt::Key_F6);
        settle();
        const QWidget *const focused = QApplication::focusWidget();
        ASSERT_NE(focused, nullptr);
        reached.insert(focused->objectName().isEmpty() ? focused->parentWidget()->objectName() : focused->objectName());
    }
    for (const auto &name : {u"cmdANStart"_s, u"incANTiming"_s, u"cboANWBSelect"_s, u"chkSavePages"_s,
                             u"txtANStopTag"_s, u"lblSummarySaved"_s, u"lblTrawlexTimer"_s, u"lstANMNC"_s,
                             u"cmdANAddMNC"_s, u"picStatus"_s, u"picANEnd"_s, u"sstSearch"_s})
        EXPECT_TRUE(reached.contains(name)) << qPrintable(name);
    EXPECT_FALSE(reached.contains(u"cboMNAutoUrl"_s));
    widget<QWidget>("chkSavePages").setFocus();
    QTest::keyClick(&window, Qt::Key_F6);
    QTest::keyClick(&window, Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), u"chkSavePages"_s);
}

TEST_F(MainWindows, ControlAndADigitChooseTheTab)
{
    QTest::keyClick(&window, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(form.frame.sstSearch.tab(), 2);
    QTest::keyClick(&window, Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(form.frame.sstSearch.tab(), 0);
}

TEST_F(MainWindows, NoTwoMnemonicsOfATabAreAlike)
{
    QMultiMap<QString, QString> keys;
    for (const QWidget *const child : widget<QWidget>("autoPage").findChildren<QWidget *>()) {
        const QKeySequence key = QKeySequence::mnemonic(child->property("text").toString());
        if (!key.isEmpty())
            keys.insert(key.toString(), child->objectName());
    }
    EXPECT_GE(keys.size(), 14);
    for (const QString &key : keys.uniqueKeys())
        EXPECT_EQ(keys.count(key), 1) << qPrintable(key + u' ' + keys.values(key).join(u", "_s));
}

TEST_F(MainWindows, KeptOnTopTheyStayInSight)
{
    window.setKeptOnTop(true);
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(window.isVisible());
    window.setKeptOnTop(false);
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(window.isVisible());
}

TEST_F(MainWindows, ShowProgressInTheStatusBar)
{
    window.setProgress(3, 14);
    EXPECT_EQ(widget<StatusBarLine>("picStatus").done(), 3);
    EXPECT_EQ(widget<StatusBarLine>("picStatus").total(), 14);
}

TEST_F(MainWindows, AreMinimizedByTheirButton)
{
    click(widget<QPushButton>("minimizeButton"));
    EXPECT_TRUE(window.isMinimized());
}
