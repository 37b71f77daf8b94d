// The window itself: no title bar, closing, the keyboard's way through it.
#include "WindowFixture.h"
#include "ui/widgets/EdgeGrips.h"
#include "ui/widgets/GroupPanel.h"
#include "ui/widgets/Mark.h"
#include "ui/widgets/PageScroller.h"
#include "ui/widgets/StatusBarLine.h"

#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
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
    for (const char *const page : {"autoPage", "manualPage", "settingsPage", "dataPage"})
        EXPECT_LE(widget<QWidget>(page).minimumSizeHint().width(), 452) << page;
    for (const auto *const page : window.findChildren<PageScroller *>())
        EXPECT_LE(page->minimumSizeHint().width(), 452) << qPrintable(page->objectName());
}

TEST_F(MainWindows, FitOnALowScreenWithGoAndStatusBarInSight)
{
    EXPECT_LE(window.minimumSizeHint().height(), 560);
    window.resize(window.width(), 480);
    for (int tab = 0; tab < 4; ++tab) {
        form.frame.sstSearch.setTab(tab);
        settle();
        ASSERT_LE(window.height(), 480);
        for (const char *const name : {"cmdANStart", "cmdMNStart", "picStatus"}) {
            const auto &part = widget<QWidget>(name);
            if (part.isVisible()) {
                const QRect place(part.mapTo(&window, QPoint()), part.size());
                EXPECT_TRUE(window.rect().contains(place)) << name;
                EXPECT_EQ(part.visibleRegion(), QRegion(part.rect())) << name;
            }
        }
    }
}

TEST_F(MainWindows, FitOnAScreenOfFullHeightAtThreeHundredPerCent)
{
    constexpr QSize screen(640, 360); // 1920 x 1080 pixels
    window.resize(screen);
    for (int tab = 0; tab < 4; ++tab) {
        form.frame.sstSearch.setTab(tab);
        settle();
        EXPECT_LE(window.height(), screen.height()) << tab;
        EXPECT_LE(window.width(), screen.width()) << tab;
        EXPECT_EQ(widget<QWidget>("picStatus").visibleRegion(), QRegion(widget<QWidget>("picStatus").rect())) << tab;
    }
    EXPECT_LE(window.minimumSizeHint().height(), screen.height());
}

TEST_F(MainWindows, TakeAsMuchRoomAsTheTabAutoNeeds)
{
    MainWindow fresh(form);
    fresh.takeUsualSize();
    fresh.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&fresh));
    settle();
    const auto *const sheet = fresh.findChild<PageScroller *>(u"autoTabScroller"_s);
    EXPECT_EQ(sheet->verticalScrollBar()->maximum(), 0) << "nothing to scroll";
    fresh.allowClose();
}

TEST_F(MainWindows, ScrollWhatHasTheFocusIntoSight)
{
    window.resize(window.width(), 420);
    settle();
    auto &last = widget<QWidget>("cmdANAddMNC");
    EXPECT_TRUE(last.visibleRegion().isEmpty());
    last.setFocus();
    settle();
    EXPECT_EQ(last.visibleRegion(), QRegion(last.rect()));
}

TEST_F(MainWindows, FoldTheirGroupsAndTellWhichAreFolded)
{
    const Raised changes(window, &MainWindow::foldingChanged);
    auto &heading = widget<GroupHeading>("startHeading");
    click(heading);
    EXPECT_FALSE(widget<QWidget>("cboANSavedUrls").isVisible());
    EXPECT_TRUE(heading.isVisible());
    EXPECT_TRUE(widget<QWidget>("lblAutoPgUrls").isVisible()) << "what stands beside the heading stays";
    EXPECT_EQ(window.foldedGroups(), QStringList{u"startGroup"_s});
    EXPECT_EQ(changes.times(), 1);
    heading.setFocus();
    QTest::keyClick(&heading, Qt::Key_Space);
    EXPECT_TRUE(widget<QWidget>("cboANSavedUrls").isVisible());
    window.setFoldedGroups({u"saveGroup"_s, u"criteriaGroup"_s, u"none such"_s});
    settle();
    EXPECT_FALSE(widget<QWidget>("chkSavePages").isVisible());
    EXPECT_LT(widget<QWidget>("criteriaGroup").height(), 60) << "folded, it takes no more room than its heading";
    window.setFoldedGroups({});
    EXPECT_TRUE(window.foldedGroups().isEmpty());
    settle();
    EXPECT_TRUE(widget<QWidget>("lstANMC").isVisible());
}

TEST_F(MainWindows, AreResizedByTheirEdges)
{
    const QRect before = window.geometry();
    EdgeGrip *corner = nullptr;
    for (EdgeGrip *const grip : window.findChildren<EdgeGrip *>()) {
        if (grip->edges() == (Qt::RightEdge | Qt::BottomEdge))
            corner = grip;
    }
    ASSERT_NE(corner, nullptr);
    EXPECT_EQ(corner->geometry().bottomRight(), window.rect().bottomRight());
    QTest::mousePress(corner, Qt::LeftButton, {}, QPoint(1, 1));
    QTest::mouseMove(corner, QPoint(41, -59));
    QTest::mouseRelease(corner, Qt::LeftButton);
    settle();
    EXPECT_EQ(window.geometry().topLeft(), before.topLeft());
    EXPECT_EQ(window.width(), before.width() + 40);
    EXPECT_EQ(window.height(), before.height() - 60);
    QTest::mousePress(corner, Qt::LeftButton, {}, QPoint(1, 1));
    QTest::mouseMove(corner, QPoint(-2000, -2000));
    QTest::mouseRelease(corner, Qt::LeftButton);
    settle();
    EXPECT_EQ(window.size(), window.minimumSizeHint()) << "no smaller than its widgets";
}

TEST_F(MainWindows, AskForHelpWithF1)
{
    const Raised asked(window, &MainWindow::helpRequested);
    QTest::keyClick(&window, Qt::Key_F1);
    EXPECT_EQ(asked.times(), 1);
}

TEST_F(MainWindows, AskForTheEndOfALongCommandWithEscape)
{
    const Raised asked(window, &MainWindow::cancelRequested);
    QTest::keyClick(&window, Qt::Key_Escape);
    int expected = 1;
    EXPECT_EQ(asked.times(), expected);
    for (const char *const name : {"cmdANStart", "lstANMC", "txtANStartTag", "incANTiming", "cboANWBSelect"}) {
        auto &focused = widget<QWidget>(name);
        focused.setFocus();
        QTest::keyClick(&focused, Qt::Key_Escape);
        EXPECT_EQ(asked.times(), ++expected) << name;
    }
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
    struct Row
    {
        const char *page;
        int least;
    };
    const Row rows[] = {{"autoPage", 14},  {"manualPage", 8}, {"blockingPage", 1}, {"directoryPage", 0},
                        {"importPage", 6}, {"amPage", 0},     {"savePage", 0},     {"viewPage", 0},
                        {"sitesPage", 1},  {"dataPage", 0}};
    for (const Row &row : rows) {
        QMultiMap<QString, QString> keys;
        for (const QWidget *const child : widget<QWidget>(row.page).findChildren<QWidget *>()) {
            const QKeySequence key = QKeySequence::mnemonic(child->property("text").toString());
            if (!key.isEmpty())
                keys.insert(key.toString(), child->objectName());
        }
        EXPECT_GE(keys.size(), row.least) << row.page;
        for (const QString &key : keys.uniqueKeys())
            EXPECT_EQ(keys.count(key), 1) << row.page << qPrintable(u' ' + key + u' ' + keys.values(key).join(u", "_s));
    }
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
    form.frame.picStatus.setToolTipText(u"Another tip"_s);
    EXPECT_EQ(widget<StatusBarLine>("picStatus").accessibleDescription(), u"3 of 14"_s) << "no tip takes its place";
}

TEST_F(MainWindows, AreMinimizedByTheirButton)
{
    click(widget<QPushButton>("minimizeButton"));
    EXPECT_TRUE(window.isMinimized());
}

TEST_F(MainWindows, GrowForALongAddressAndShrinkAgain)
{
    form.limits.incSMAMAutoTxtElng.setText(u"1500"_s);
    const int before = window.width();
    form.series.picMNShadow.setVisible(true);
    EXPECT_EQ(window.width(), before + 100);
    form.limits.incSMAMAutoTxtElng.setText(u"3000"_s);
    form.series.picMNShadow.setToolTipText(u"longer"_s);
    EXPECT_EQ(window.width(), before + 100) << "until it is asked for anew";
    form.series.picMNShadow.setVisible(false);
    EXPECT_EQ(window.width(), before);
}
