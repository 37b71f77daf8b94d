// Text and files dropped on widgets reach their controls; the keys that add and delete do, too.
#include "ui/binding/DragAndDrop.h"
#include "WindowFixture.h"
#include "support/ProgramFixture.h"
#include "ui/widgets/DropDown.h"
#include "ui/widgets/ItemList.h"

#include <QDir>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {
/// Whether a drag of `data` over `target` is welcome; it is dropped there then.
bool drop(QWidget &target, const QMimeData &data)
{
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted())
        return false;
    EXPECT_EQ(enter.dropAction(), Qt::CopyAction);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &drop);
    return true;
}
} // namespace

struct Drops : WindowFixture
{
    QStringList listenTo(Control &control)
    {
        QObject::connect(&control, &Control::textDropped, &form, [this](const QString &text) { dropped.append(text); });
        return {};
    }

    QStringList dropped;
};

TEST_F(Drops, OfTextReachTheLists)
{
    QMimeData data;
    data.setText(u"contact\r\nimprint"_s);
    for (const char *const name : {"lstANMC", "lstANMNC", "lstBlockedUrlC", "lstBlockedEmailC", "lstMN_0", "lstMN_4"}) {
        dropped.clear();
        QString control = QString::fromLatin1(name);
        control.replace(u"_0"_s, u"(0)"_s).replace(u"_4"_s, u"(4)"_s);
        listenTo(*form.control(control));
        EXPECT_TRUE(drop(*widget<ItemList>(name).viewport(), data)) << name;
        EXPECT_EQ(dropped, QStringList{u"contact\r\nimprint"_s}) << name;
    }
}

TEST_F(Drops, OfTextReachTheAddressOfTheSeries)
{
    QMimeData data;
    data.setText(u"http://www.north-harbour.example/001.jpg"_s);
    listenTo(form.series.cboMNAutoUrl);
    EXPECT_TRUE(drop(widget<DropDown>("cboMNAutoUrl"), data));
    EXPECT_EQ(dropped.size(), 1);
    EXPECT_TRUE(drop(*widget<DropDown>("cboMNAutoUrl").lineEdit(), data));
    EXPECT_EQ(dropped.size(), 2) << "the line inside is the box for who drops on it";
    EXPECT_EQ(form.series.cboMNAutoUrl.text(), QString());
}

TEST_F(Drops, OfFoldersAndFilesReachThePathBoxesAsPaths)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(u"/tmp/my files#1"_s)});
    for (const char *const name : {"txtSFDBDir", "txtSFDBFile", "txtSFMNDir", "txtSFEditor"}) {
        dropped.clear();
        listenTo(*form.control(QString::fromLatin1(name)));
        EXPECT_TRUE(drop(widget<QLineEdit>(name), data)) << name;
        EXPECT_EQ(dropped, QStringList{u"/tmp/my files#1"_s}) << name;
        EXPECT_EQ(widget<QLineEdit>(name).text(), QString()) << "the logic decides what the box takes";
    }
}

/// The window on the whole program.
struct ProgramDrops : ProgramTest
{
    ProgramDrops()
    {
        load();
        window = std::make_unique<MainWindow>(form());
        form().frame.sstSearch.setTab(Tab::Settings);
        form().frame.sstSettings.setTab(Tab::Files);
        WindowFixture::settle();
    }
    std::unique_ptr<MainWindow> window;
};

TEST_F(ProgramDrops, OfAFolderAssignItWhereNothingRuns)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"new files"_s));
    const QString target = folder.filePath(u"new files"_s);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(target)});
    auto *const box = window->findChild<QLineEdit *>(u"txtSFMNDir"_s);
    form().runs.mbMNRunning = true;
    program->states.SetStateOfControls();
    EXPECT_FALSE(drop(*box, data));
    form().runs.mbMNRunning = false;
    program->states.SetStateOfControls();
    EXPECT_TRUE(drop(*box, data));
    WindowFixture::settle();
    EXPECT_EQ(box->text(), target + u'/');
    EXPECT_EQ(settings.of("txtFNSaveLocation"), target + u'/');
}

TEST_F(Drops, WithoutTextOrOnADisabledControlAreRefused)
{
    QMimeData picture;
    picture.setData(u"image/png"_s, "x");
    listenTo(form.criteria.mustContain.items);
    EXPECT_FALSE(drop(*widget<ItemList>("lstANMC").viewport(), picture));
    QMimeData text;
    text.setText(u"contact"_s);
    form.criteria.mustContain.items.setEnabled(false);
    EXPECT_FALSE(drop(*widget<ItemList>("lstANMC").viewport(), text));
    EXPECT_TRUE(dropped.isEmpty());
}

TEST(DraggedText, IsThePathOfFilesAndTheTextOfTheRest)
{
    QMimeData data;
    EXPECT_EQ(DragAndDrop::textOf(data), QString());
    data.setUrls({QUrl(u"http://www.north-harbour.example/"_s)});
    EXPECT_EQ(DragAndDrop::textOf(data), u"http://www.north-harbour.example/"_s);
    data.setUrls({QUrl::fromLocalFile(u"/a"_s), QUrl::fromLocalFile(u"/b c"_s)});
    EXPECT_EQ(DragAndDrop::textOf(data), u"/a\n/b c"_s);
}

TEST_F(Drops, AreAskedForWithTheRightButtonAlone)
{
    auto &button = widget<QWidget>("cmdANSavedGo");
    int asked = 0;
    QObject::connect(&form.saved.cmdANSavedGo, &Control::dragStarted, &form, [&](QString *) { ++asked; });
    for (const Qt::MouseButton pressed : {Qt::LeftButton, Qt::RightButton}) {
        QTest::mousePress(&button, pressed, {}, QPoint(5, 5));
        QMouseEvent move(QEvent::MouseMove, QPointF(60, 5), button.mapToGlobal(QPointF(60, 5)), Qt::NoButton, pressed,
                         {});
        QCoreApplication::sendEvent(&button, &move);
        QTest::mouseRelease(&button, pressed, {}, QPoint(60, 5));
        EXPECT_EQ(asked, pressed == Qt::RightButton ? 1 : 0);
    }
}

TEST_F(Drops, TheKeysThatAddAndDeleteReachTheLists)
{
    QList<EditKey> keys;
    QObject::connect(&form.criteria.mustContain.items, &Control::keyPressed, &form,
                     [&](EditKey key) { keys.append(key); });
    auto &list = widget<ItemList>("lstANMC");
    QTest::keyClick(&list, Qt::Key_Insert);
    QTest::keyClick(&list, Qt::Key_Delete);
    QTest::keyClick(&list, Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(keys, (QList<EditKey>{EditKey::Insert, EditKey::Delete}));
}
