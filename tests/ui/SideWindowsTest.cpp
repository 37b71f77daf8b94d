// The small windows: magnifier, about, directory chooser.
#include "WindowFixture.h"
#include "ui/windows/AboutWindow.h"
#include "ui/windows/DirectoryWindow.h"
#include "ui/windows/MagnifyWindow.h"
#include "ui/windows/ScreenRoom.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTreeView>

using namespace Qt::StringLiterals;

struct Magnifiers : WindowFixture
{
    Magnifiers() : magnifier(&window) {}
    [[nodiscard]] QStringList lines() const
    {
        QStringList texts;
        for (const QLineEdit *const box : magnifier.findChildren<QLineEdit *>())
            texts.append(box->text());
        return texts;
    }

    MagnifyWindow magnifier;
};

TEST_F(Magnifiers, ShowALineInABoxOfItsOwn)
{
    EXPECT_EQ(magnifier.windowTitle(), u"Double click to close"_s);
    EXPECT_TRUE(magnifier.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    magnifier.Magnify(u"http://www.north-harbour.example/"_s);
    const int one = magnifier.height();
    EXPECT_EQ(lines(), QStringList{u"http://www.north-harbour.example/"_s});
    magnifier.Magnify(u"a\r\nb\r\nc"_s);
    EXPECT_EQ(lines(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_GT(magnifier.height(), one);
    magnifier.Magnify(u"one\nwith a line feed"_s);
    EXPECT_EQ(lines().size(), 1);
    EXPECT_EQ(magnifier.height(), one);
    magnifier.show();
    magnifier.Magnify(u"a\r\nb\r\nc"_s);
    EXPECT_GT(magnifier.height(), 2 * one) << "on show too";
    EXPECT_GT(magnifier.findChild<QLineEdit *>()->font().pointSizeF(), window.font().pointSizeF() * 1.5);
}

TEST_F(Magnifiers, Show20Of25Lines)
{
    QStringList many;
    for (int i = 1; i <= 25; ++i)
        many.append(QString::number(i));
    magnifier.Magnify(many.join(u"\r\n"_s));
    EXPECT_EQ(lines(), many.mid(0, 20));
}

TEST_F(Magnifiers, OpenUnderTheMainWindowAsWideAsTheScreen)
{
    window.resize(window.width(), 400);
    window.move(20, 20);
    magnifier.Magnify(u"a"_s);
    magnifier.placeUnder(window);
    const QRect room = window.screen()->availableGeometry();
    EXPECT_EQ(magnifier.geometry().left(), room.left());
    EXPECT_EQ(magnifier.width() + ScreenRoom::frameAround(magnifier).width(), room.width());
    EXPECT_EQ(magnifier.geometry().top(), window.frameGeometry().bottom() + 1);
    window.move(20, room.bottom() - 100);
    magnifier.placeUnder(window);
    EXPECT_LE(magnifier.geometry().bottom(), room.bottom()) << "never below the screen";
}

TEST_F(Magnifiers, CloseByADoubleClickAndByEscape)
{
    const Raised cancelled(window, &MainWindow::cancelRequested);
    const Raised closings(magnifier, &MagnifyWindow::closing);
    magnifier.Magnify(u"a"_s);
    magnifier.show();
    QTest::mouseDClick(magnifier.findChild<QLineEdit *>(), Qt::LeftButton);
    EXPECT_FALSE(magnifier.isVisible());
    magnifier.show();
    QTest::keyClick(&magnifier, Qt::Key_Escape);
    EXPECT_FALSE(magnifier.isVisible());
    EXPECT_EQ(closings.times(), 2);
    EXPECT_EQ(cancelled.times(), 0) << "Escape is the magnifier's own";
}

struct About : WindowFixture
{
    About() : about(new AboutWindow(&window)) { about->show(); }
    template <class Kind> Kind &part(const char *name) { return *about->findChild<Kind *>(QLatin1StringView(name)); }

    QPointer<AboutWindow> about;
};

TEST_F(About, TellsProgramAndVersion)
{
    EXPECT_EQ(about->windowTitle(), u"About"_s);
    EXPECT_EQ(part<QLabel>("lblTitle").text(), u"Trawlex"_s);
    EXPECT_EQ(part<QLabel>("lblVersion").text(), u"Version "_s + QStringLiteral(TRAWLEX_VERSION));
    EXPECT_TRUE(part<QLabel>("licenceText").text().contains(u"MIT"_s));
}

TEST_F(About, CutsNoLineOfItsTextsWhereTheScreenIsLow)
{
    AboutWindow low(&window);
    low.setAttribute(Qt::WA_DeleteOnClose, false);
    low.resize(280, 200);
    low.show();
    settle();
    for (const auto *const text : low.findChildren<QLabel *>()) {
        if (text->wordWrap()) {
            EXPECT_GE(text->height(), text->heightForWidth(text->width())) << text->objectName().toStdString();
        }
    }
    QFont large = low.font();
    large.setPointSizeF(large.pointSizeF() * 2);
    low.setFont(large);
    low.findChild<QPushButton *>(u"cmdSysInFo"_s)->click();
    settle();
    const auto &system = *low.findChild<QPlainTextEdit *>(u"systemText"_s);
    EXPECT_EQ(system.visibleRegion().boundingRect().height(), system.height()) << "what was asked for is in sight";
}

TEST_F(About, ScrollsNothingWhereTheScreenHasTheRoom)
{
    const QScrollBar &bar = *part<QScrollArea>("aboutScroller").verticalScrollBar();
    settle();
    EXPECT_EQ(bar.maximum(), 0);
    part<QPushButton>("cmdSysInFo").click();
    settle();
    EXPECT_EQ(bar.maximum(), 0);
}

TEST_F(About, ShowsAndCopiesTheSystemInformation)
{
    EXPECT_FALSE(part<QPlainTextEdit>("systemText").isVisible());
    const int height = about->height();
    part<QPushButton>("cmdSysInFo").click();
    EXPECT_TRUE(part<QPlainTextEdit>("systemText").isVisible());
    EXPECT_GE(about->height(), height + part<QPlainTextEdit>("systemText").minimumSizeHint().height());
    part<QPushButton>("copyButton").click();
    const QString copied = QApplication::clipboard()->text();
    EXPECT_TRUE(copied.contains(QString::fromLatin1(qVersion())));
    EXPECT_TRUE(copied.contains(u"Screen: "_s));
    EXPECT_TRUE(copied.contains(u"Kernel: "_s));
}

TEST_F(About, LeadsToTheManualAndClosesByOkAndEscape)
{
    const Raised asked(*about, &AboutWindow::helpRequested);
    for (const char *const link : {"lblName", "picDisplay"})
        QTest::mouseClick(&part<QLabel>(link), Qt::LeftButton);
    EXPECT_EQ(asked.times(), 2);
    QTest::keyClick(about, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return about.isNull(); }, 2000)) << "it goes with its closing";
}

struct DirectoryChoosers : WindowFixture
{
    DirectoryChoosers() : chooser(new DirectoryWindow(&window))
    {
        QObject::connect(chooser, &DirectoryWindow::DirSelectionChanged, &window,
                         [this](const QString &directory) { choices.append(directory); });
        chooser->show();
    }
    void press(const char *button) { chooser->findChild<QPushButton *>(QLatin1StringView(button))->click(); }
    [[nodiscard]] QTreeView &tree() const { return *chooser->findChild<QTreeView *>(u"dirDirSelect"_s); }
    [[nodiscard]] int rows(const QModelIndex &index) const { return tree().model()->rowCount(index); }
    /// More than the tree shows at once.
    void makeManyFolders() const
    {
        for (int i = 0; i < 60; ++i)
            ASSERT_TRUE(QDir(folder.path()).mkpath(u"%1/in"_s.arg(i, 2, 10, QChar(u'0'))));
    }

    QTemporaryDir folder;
    QPointer<DirectoryWindow> chooser;
    QStringList choices;
};

TEST_F(DirectoryChoosers, BeginWithTheDirectoryIfItIsThere)
{
    chooser->InitDir(folder.path());
    EXPECT_EQ(chooser->directory(), folder.path() + u'/');
    EXPECT_EQ(chooser->findChild<QLineEdit *>(u"txtDir"_s)->text(), folder.path() + u'/');
    chooser->InitDir(folder.path() + u"/none such"_s);
    EXPECT_EQ(chooser->directory(), QDir::homePath() + u'/');
    chooser->InitDir(u"/"_s);
    EXPECT_EQ(chooser->directory(), u"/"_s) << "one separator, not two";
}

TEST_F(DirectoryChoosers, ShowDriveAndFolderThatTheyBeginWith)
{
    makeManyFolders();
    const auto &drives = *chooser->findChild<QComboBox *>(u"drvDirSelect"_s);
    chooser->InitDir(QDir::homePath());
    EXPECT_EQ(drives.currentText(), QDir::homePath());
    chooser->InitDir(folder.path() + u"/58/in"_s);
    EXPECT_EQ(drives.currentText(), QDir::rootPath());
    EXPECT_TRUE(QTest::qWaitFor(
        [this] {
            const QRect row = tree().visualRect(tree().currentIndex());
            return tree().currentIndex().data() == u"in"_s && row.isValid() &&
                   tree().viewport()->rect().contains(row.center());
        },
        5000))
        << "in sight when all folders above it have been read";
}

TEST_F(DirectoryChoosers, DoNotJumpBackToTheChosenFolderWhenOthersAreReadOrChange)
{
    makeManyFolders();
    chooser->InitDir(folder.path() + u"/58"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return rows(tree().currentIndex()) == 1; }, 5000));
    const QModelIndex above = tree().currentIndex().parent();
    ASSERT_TRUE(QTest::qWaitFor([&] { return rows(above) == 60; }, 5000));
    settle();
    const QModelIndex other = tree().model()->index(4, 0, above);
    tree().scrollTo(other, QAbstractItemView::PositionAtTop);
    const int before = tree().verticalScrollBar()->value();
    tree().expand(other);
    ASSERT_TRUE(QTest::qWaitFor([&] { return rows(other) == 1; }, 5000));
    EXPECT_EQ(tree().verticalScrollBar()->value(), before) << "another folder was read";
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"99"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return rows(above) == 61; }, 5000));
    settle();
    EXPECT_EQ(tree().verticalScrollBar()->value(), before) << "a folder that is watched has changed";
}

TEST_F(DirectoryChoosers, LeaveTheTreeToTheUserWhoScrollsWhileFoldersAreRead)
{
    makeManyFolders();
    chooser->InitDir(folder.path() + u"/58/in"_s);
    const QPointF at(5, 5);
    QWheelEvent turn(at, tree().viewport()->mapToGlobal(at), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(tree().viewport(), &turn);
    tree().verticalScrollBar()->setValue(0);
    const QModelIndex above = tree().currentIndex().parent().parent();
    ASSERT_TRUE(QTest::qWaitFor([&] { return rows(above) == 60; }, 5000));
    settle();
    EXPECT_EQ(tree().verticalScrollBar()->value(), 0);
}

TEST_F(DirectoryChoosers, TakeTheFolderThatIsChosenInTheTree)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"below"_s));
    chooser->InitDir(folder.path());
    ASSERT_TRUE(QTest::qWaitFor([this] { return rows(tree().currentIndex()) == 1; }, 5000));
    tree().setCurrentIndex(tree().model()->index(0, 0, tree().currentIndex()));
    EXPECT_EQ(chooser->directory(), folder.path() + u"/below/"_s);
    press("cmdDirList_0");
    EXPECT_EQ(choices, QStringList{folder.path() + u"/below/"_s});
}

TEST_F(DirectoryChoosers, GiveNothingWhenTheyAreCancelled)
{
    chooser->InitDir(folder.path());
    press("cmdDirList_1");
    EXPECT_EQ(choices, QStringList{QString()});
    EXPECT_TRUE(QTest::qWaitFor([this] { return chooser.isNull(); }, 2000));
}

TEST_F(DirectoryChoosers, GoToADriveAndBackFromOneThatCannotBeRead)
{
    EXPECT_TRUE(DirectoryWindow::drives().contains(QDir::rootPath()));
    auto &drives = *chooser->findChild<QComboBox *>(u"drvDirSelect"_s);
    chooser->InitDir(folder.path());
    const int root = drives.findText(QDir::rootPath());
    drives.setCurrentIndex(root);
    Q_EMIT drives.activated(root);
    EXPECT_EQ(chooser->directory(), QDir::rootPath());
    drives.addItem(folder.path() + u"/gone"_s);
    drives.setCurrentIndex(drives.count() - 1);
    Q_EMIT drives.activated(drives.count() - 1);
    EXPECT_EQ(drives.currentIndex(), root);
    EXPECT_EQ(chooser->directory(), QDir::rootPath());
}
