// The picture browser's window over its logic, on real files, with real keys.
#include "desktop/DesktopPictures.h"

#include "PictureFiles.h"
#include "app/QtEventPump.h"
#include "app/SettingKeys.h"
#include "support/Fakes.h"
#include "ui/pictures/PictureGoing.h"
#include "ui/pictures/ThumbnailStore.h"
#include "ui/widgets/ItemList.h"
#include "ui/widgets/PathLabel.h"
#include "window/side/PictureMenu.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
constexpr int patience = 10000;
}

struct PicturesOnShow : testing::Test
{
    PicturesOnShow()
    {
        screen.set(form);
        QObject::connect(&screen, &DesktopPictures::opened, &form, [this](QWidget *shown) { window = shown; });
        settings.SaveSetting(Sections::Foto, Keys::MoveToDir, target.path());
    }
    void make(const QString &name, QSize size) { PictureFiles::make(folder.filePath(name), size); }
    void open()
    {
        browser.LoadDirectory(folder.path());
        settle();
        ASSERT_TRUE(window != nullptr && QTest::qWaitForWindowExposed(window));
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        settle();
    }
    static void settle()
    {
        for (int turn = 0; turn < 4; ++turn)
            QCoreApplication::processEvents();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window->windowHandle(), key, modifiers);
        settle();
    }
    template <class Kind> Kind &part(const char *name)
    {
        auto *const found = window->findChild<Kind *>(QLatin1StringView(name));
        if (found == nullptr)
            throw std::runtime_error(std::string("no widget ") + name);
        return *found;
    }
    ItemList &list() { return part<ItemList>("lstFoto"); }
    PictureView &view() { return part<PictureView>("picFoto"); }
    [[nodiscard]] static QStringList names(const QTemporaryDir &directory)
    {
        return QDir(directory.path()).entryList(QDir::Files);
    }

    QTemporaryDir folder, target;
    RecordingLog log;
    QtEventPump pump;
    FakeDialogs dialogs;
    FakeDesktop desktop;
    MemorySettings settings;
    FakeMenus menus;
    FakeSideWindows side;
    frmFoto form;
    QPointer<QWidget> window;
    DesktopPictures screen{settings};
    PictureBrowser browser{log, form, screen, pump, settings, menus};
    PictureMenu menu{form, browser, dialogs, desktop, settings, side};
};

TEST_F(PicturesOnShow, StandInAListWithTheLastOneOnShow)
{
    make(u"a.jpg"_s, {400, 300});
    make(u"B.JPG"_s, {500, 300});
    open();
    EXPECT_TRUE(window->windowTitle() == u"2 of 2"_s);
    EXPECT_EQ(list().model()->rowCount(), 2);
    EXPECT_EQ(list().currentIndex().data().toString(), u"b.jpg"_s);
    EXPECT_EQ(view().drawnSize(), QSize(500, 300));
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(list().toolTip(), "Move to Dir = "_L1 + target.path() + u'/');
    press(Qt::Key_Up);
    EXPECT_EQ(window->windowTitle(), u"1 of 2"_s);
    EXPECT_EQ(view().drawnSize(), QSize(400, 300));
}

TEST_F(PicturesOnShow, TheWindowFollowsThePictureAsFarAsTheScreenGoes)
{
    make(u"a.jpg"_s, {640, 480});
    make(u"b.jpg"_s, {5000, 3000});
    open();
    const QRect room = window->screen()->availableGeometry();
    EXPECT_TRUE(room.contains(window->frameGeometry()));
    EXPECT_LE(view().drawnSize().width(), view().viewport()->width());
    EXPECT_NEAR(double(view().drawnSize().width()) / view().drawnSize().height(), 5.0 / 3, 0.01);
    press(Qt::Key_Up);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return view().viewport()->size() == QSize(640, 480).boundedTo(view().viewport()->size()); }, patience));
    EXPECT_LE(view().viewport()->height(), 480);
}

TEST_F(PicturesOnShow, SpaceShowsPixelForPixel)
{
    make(u"a.jpg"_s, {5000, 3000});
    open();
    press(Qt::Key_Space);
    EXPECT_TRUE(view().isActualSize());
    EXPECT_EQ(view().drawnSize(), QSize(5000, 3000));
    EXPECT_GT(view().horizontalScrollBar()->maximum(), 0);
    press(Qt::Key_Space);
    EXPECT_LT(view().drawnSize().width(), 5000);
    EXPECT_EQ(view().horizontalScrollBar()->maximum(), 0);
}

TEST_F(PicturesOnShow, DelAndInsWalkTheListAndKeepTheFocusThere)
{
    for (const auto &name : {u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s, u"d.jpg"_s})
        make(name, {100, 100});
    open();
    press(Qt::Key_Delete);
    press(Qt::Key_Insert);
    press(Qt::Key_Delete);
    EXPECT_EQ(names(folder), QStringList{u"a.jpg"_s});
    EXPECT_EQ(names(target), QStringList{u"c.jpg"_s});
    EXPECT_EQ(window->windowTitle(), u"1 of 1"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return list().hasFocus() && list().isEnabled(); }, patience));
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(names(folder), (QStringList{u"a.jpg"_s, u"c.jpg"_s}));
    EXPECT_EQ(list().currentIndex().data().toString(), u"c.jpg"_s);
}

TEST_F(PicturesOnShow, TheButtonsDoWhatTheKeysDo)
{
    for (const auto &name : {u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s})
        make(name, {100, 100});
    open();
    QTest::mouseClick(&part<QPushButton>("cmdDeleteIt"), Qt::LeftButton);
    settle();
    QTest::mouseClick(&part<QPushButton>("cmdMoveIt"), Qt::LeftButton);
    settle();
    EXPECT_EQ(names(folder), QStringList{u"a.jpg"_s});
    EXPECT_EQ(names(target), QStringList{u"b.jpg"_s});
    EXPECT_EQ(part<QPushButton>("cmdMoveIt").text(), u"Move it (Ins)"_s);
    form.setMoveToDirectory({});
    press(Qt::Key_Delete);
    EXPECT_FALSE(part<QPushButton>("cmdMoveIt").isEnabled()) << "there is no directory to move to";
}

TEST_F(PicturesOnShow, AHostilePictureSaysSoInItsPlaceAndTheNextOneCanBeChosen)
{
    make(u"a.jpg"_s, {100, 100});
    PictureFiles::write(folder.filePath(u"b.jpg"_s), PictureFiles::bmpHead(60'000, 60'000));
    open();
    ASSERT_EQ(log.entries.size(), 1);
    EXPECT_EQ(log.entries.first().number, ErrorNumber::InvalidPicture);
    EXPECT_TRUE(part<QLabel>("lblMoveTo").text().startsWith(u"b.jpg: "_s));
    press(Qt::Key_Up);
    EXPECT_EQ(view().drawnSize(), QSize(100, 100));
    EXPECT_EQ(part<QLabel>("lblMoveTo").text(), target.path() + u'/');
    EXPECT_EQ(log.entries.size(), 1);
}

TEST_F(PicturesOnShow, AMovingPictureIsPlayed)
{
    PictureFiles::write(folder.filePath(u"a.gif"_s), PictureFiles::gif(3));
    open();
    ASSERT_NE(view().movie(), nullptr);
    QSignalSpy frames(view().movie(), &QMovie::frameChanged);
    EXPECT_TRUE(QTest::qWaitFor([&] { return frames.size() >= 2; }, patience)) << "the second and the third";
    press(Qt::Key_Delete);
    EXPECT_EQ(names(folder), QStringList());
}

TEST_F(PicturesOnShow, ThumbnailsAreAnOptionOfTheList)
{
    make(u"a.jpg"_s, {200, 100});
    make(u"b.jpg"_s, {200, 100});
    open();
    const int plain = list().sizeHintForRow(0);
    press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_GT(list().sizeHintForRow(0), plain);
    const auto redness = [&] {
        const QImage drawn = list().viewport()->grab(list().visualRect(list().model()->index(0, 0))).toImage();
        int red = 0;
        for (int x = 0; x < drawn.width(); ++x)
            red += drawn.pixelColor(x, drawn.height() / 2).red() > 240 &&
                           drawn.pixelColor(x, drawn.height() / 2).green() < 20
                       ? 1
                       : 0;
        return red;
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return redness() > 40; }, patience));
    press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(list().sizeHintForRow(0), plain);
}

TEST_F(PicturesOnShow, APictureThatGoesDoesSoInAMomentAndInNobodysWay)
{
    for (const QString &name : {u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s, u"d.jpg"_s})
        make(name, {300, 300});
    open();
    const auto going = [this] { return view().findChildren<PictureGoing *>().size(); };
    press(Qt::Key_Insert);
    EXPECT_EQ(going(), 1) << "moved";
    press(Qt::Key_Delete);
    EXPECT_EQ(going(), 1) << "deleted, and the one before it is cut short";
    EXPECT_EQ(form.lstFoto.listCount(), 2) << "nothing waits for it";
    EXPECT_TRUE(QTest::qWaitFor([&] { return going() == 0; }, patience));
}

TEST_F(PicturesOnShow, TheListHasRoomForItsNamesBesideALargePicture)
{
    make(u"a.jpg"_s, {3000, 2000});
    open();
    EXPECT_EQ(list().width(), 200);
}

TEST_F(PicturesOnShow, ThatThereIsNowhereToMoveToIsReadWhole)
{
    settings.SaveSetting(Sections::Foto, Keys::MoveToDir, {});
    make(u"a.jpg"_s, {100, 80});
    open();
    const auto &label = part<PathLabel>("lblMoveTo");
    EXPECT_GE(label.width(), label.fontMetrics().horizontalAdvance(label.emptyText()));
    EXPECT_TRUE(label.toolTip().contains(u"Set Move To Dir"_s)) << "the way to one";
}

TEST_F(PicturesOnShow, TheKeysOnTheButtonsAreReadInTheSmallestWindow)
{
    make(u"a.jpg"_s, {300, 200});
    open();
    window->resize(1, 1);
    settle();
    for (const QPushButton *const button : window->findChildren<QPushButton *>())
        EXPECT_GE(button->width(), button->sizeHint().width()) << qPrintable(button->text());
    EXPECT_LE(window->width(), 1366 / 3) << "the smallest screen that we fit on";
}

TEST_F(PicturesOnShow, WhereNoMotionIsWantedAPictureIsGoneAtOnce)
{
    class Still : public QProxyStyle
    {
      public:
        int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                      QStyleHintReturn *data) const override
        {
            return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
        }
    } style;
    make(u"a.jpg"_s, {300, 300});
    make(u"b.jpg"_s, {300, 300});
    open();
    QStyle *const usual = view().style();
    view().setStyle(&style);
    press(Qt::Key_Delete);
    EXPECT_TRUE(view().findChildren<PictureGoing *>().isEmpty());
    view().setStyle(usual);
}

TEST_F(PicturesOnShow, AThumbnailGoesWithItsFile)
{
    make(u"a.jpg"_s, {200, 100});
    ThumbnailStore store(nullptr);
    const QString path = folder.filePath(u"a.jpg"_s);
    const auto widthOf = [&] {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !store.pixmap(path, 64).isNull(); }, patience));
        return store.pixmap(path, 64).width();
    };
    EXPECT_EQ(widthOf(), 64);
    make(u"a.jpg"_s, {20, 10});
    EXPECT_EQ(widthOf(), 20) << "another picture under the same name";
}

TEST_F(PicturesOnShow, ExitClosesTheWindowWhichKeepsItsPlace)
{
    make(u"a.jpg"_s, {100, 100});
    open();
    window->move(70, 50);
    settle();
    form.mnuFotoPopUpAction.item("mnuFotoExit"_L1).click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window == nullptr; }, patience));
    EXPECT_FALSE(form.isOpen());
    open();
    EXPECT_EQ(window->pos(), QPoint(70, 50));
}

TEST_F(PicturesOnShow, EscapeClosesTheWindowWhichKeepsItsPlace)
{
    make(u"a.jpg"_s, {100, 100});
    open();
    window->move(70, 50);
    settle();
    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window == nullptr; }, patience));
    EXPECT_FALSE(form.isOpen());
    open();
    EXPECT_EQ(window->pos(), QPoint(70, 50));
}

TEST_F(PicturesOnShow, AHundredThousandFilesOpenWithinASecondAndAreWalkedAtThirtyASecond)
{
    constexpr int count = 100'000, steps = 60;
    make(u"z.jpg"_s, {1024, 768});
    QFile sample(folder.filePath(u"z.jpg"_s));
    for (int i = 0; i < count; ++i) {
        const QString name = folder.filePath(u"p%1.jpg"_s.arg(i, 6, 10, QChar(u'0')));
        if (i < count - steps)
            PictureFiles::write(name, {});
        else
            ASSERT_TRUE(sample.copy(name));
    }
    ASSERT_TRUE(sample.remove());
    QElapsedTimer clock;
    clock.start();
    open();
    EXPECT_LT(clock.elapsed(), 1000);
    EXPECT_EQ(list().model()->rowCount(), count);
    clock.restart();
    for (int step = 0; step < steps; ++step)
        press(step % 2 == 0 ? Qt::Key_Delete : Qt::Key_Up);
    const double perSecond = steps * 1000.0 / double(clock.elapsed());
    RecordProperty("picturesPerSecond", int(perSecond));
    EXPECT_GE(perSecond, 30);
    EXPECT_EQ(form.lstFoto.listCount(), count - steps / 2);
}
