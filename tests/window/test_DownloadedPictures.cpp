// What becomes of a file that the Manual run has fetched: the browser shows it, the picture browser, or nobody.
#include "support/ProgramFixture.h"

#include <QDir>

using namespace Qt::StringLiterals;

class DownloadedPicturesTest : public ProgramTest
{
  protected:
    DownloadedPicturesTest()
    {
        EXPECT_TRUE(QDir(folder.path()).mkdir(u"files"_s));
        load();
        form().places.txtSFMNDir.setText(files());
        form().manual.chkSMOpenDownloadedGraphics.setValue(1);
        form().manual.chkMNUseFotoBrwse.setValue(1);
    }
    [[nodiscard]] QString files() const { return folder.filePath(u"files/"_s); }
    /// A file comes as from a run.
    void fetch(const QString &name)
    {
        QFile file(files() + name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        Q_EMIT program->manualItems.fileArrived(name);
    }
    [[nodiscard]] QStringList list() const { return program->foto.lstFoto.items(); }
};

TEST_F(DownloadedPicturesTest, TheFirstOneOpensThePictureBrowserAndTheOthersAreAdded)
{
    fetch(u"One.jpg"_s);
    EXPECT_TRUE(program->foto.isOpen());
    EXPECT_EQ(list(), QStringList{u"one.jpg"_s});
    fetch(u"Two.jpg"_s);
    EXPECT_EQ(list(), (QStringList{u"one.jpg"_s, u"Two.jpg"_s})) << "the name as it came";
    EXPECT_EQ(pictures.shown, QStringList{files() + u"One.jpg"_s}) << "the walk of the user is not disturbed";
    program->foto.choosePicture(1);
    EXPECT_EQ(pictures.shown.constLast(), files() + u"Two.jpg"_s);
    program->foto.unload();
    fetch(u"three.jpg"_s);
    EXPECT_EQ(list(), (QStringList{u"one.jpg"_s, u"three.jpg"_s, u"two.jpg"_s})) << "opened anew";
}

TEST_F(DownloadedPicturesTest, WhatIsNotThereIsNotAdded)
{
    fetch(u"one.jpg"_s);
    Q_EMIT program->manualItems.fileArrived(u"none.jpg"_s);
    EXPECT_EQ(list(), QStringList{u"one.jpg"_s});
}

TEST_F(DownloadedPicturesTest, APictureOfAnotherFolderIsShownFromThere)
{
    fetch(u"one.jpg"_s);
    const QString elsewhere = folder.filePath(u"two.jpg"_s);
    QFile file(elsewhere);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    program->downloadedPictures.OpenFiles(elsewhere);
    EXPECT_EQ(list(), (QStringList{u"one.jpg"_s, u"two.jpg"_s}));
    program->foto.choosePicture(1);
    EXPECT_EQ(pictures.shown.constLast(), elsewhere);
}

TEST_F(DownloadedPicturesTest, WithoutThePictureBrowserTheBrowserShowsTheFile)
{
    form().manual.chkMNUseFotoBrwse.setValue(0);
    fetch(u"no #1.jpg"_s);
    EXPECT_FALSE(program->foto.isOpen());
    EXPECT_EQ(browser().navigated, QStringList{"file://"_L1 + files() + "no%20%231.jpg"_L1});
}

TEST_F(DownloadedPicturesTest, WhereNothingIsToBeOpenedNothingIs)
{
    form().manual.chkSMOpenDownloadedGraphics.setValue(0);
    for (const int picturesWanted : {0, 1}) {
        form().manual.chkMNUseFotoBrwse.setValue(picturesWanted);
        fetch(u"one.jpg"_s);
        EXPECT_FALSE(program->foto.isOpen());
        EXPECT_EQ(browser().navigated, QStringList());
    }
}
