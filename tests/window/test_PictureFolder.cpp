// The pictures of a directory: which they are, in which order, and how fast a large one is read.
#include "window/side/PictureFolder.h"

#include "PictureFolderFixture.h"
#include "util/FileNames.h"
#include "util/Text.h"
#include "util/TextFiles.h"

#include <QElapsedTimer>
#include <random>

using namespace Qt::StringLiterals;

class PicturesOfADirectory : public PictureFolderTest
{
  protected:
    /// As the rules tell it: three walks over the directory, each path cut to its name in lower case.
    [[nodiscard]] QStringList plainNames() const
    {
        QStringList all;
        for (const auto &extension : {u"jpg"_s, u"gif"_s, u"bmp"_s}) {
            for (const QString &path : cUtility::CollectFiles(source(), extension)) {
                const QString name = cUtility::lowered(path.sliced(path.lastIndexOf(u'/') + 1));
                if (!name.isEmpty())
                    all.append(name);
            }
        }
        return all;
    }
    [[nodiscard]] QStringList loweredPictures() const
    {
        QStringList all;
        for (const QString &name : PictureFolder::pictures(source()))
            all.append(cUtility::lowered(name));
        return all;
    }
};

TEST_F(PicturesOfADirectory, AreJpgThenGifThenBmp)
{
    makeAll(
        {u"z.jpg"_s, u"a.bmp"_s, u"B.GIF"_s, u"a.gif"_s, u"C.JPG"_s, u"b.jpeg"_s, u"d.png"_s, u"jpg"_s, u".h.jpg"_s});
    ASSERT_TRUE(QDir(source()).mkdir(u"folder.jpg"_s));
    EXPECT_EQ(PictureFolder::pictures(source()),
              (QStringList{u".h.jpg"_s, u"C.JPG"_s, u"z.jpg"_s, u"a.gif"_s, u"B.GIF"_s, u"a.bmp"_s}));
    EXPECT_EQ(PictureFolder::pictures(source() + u"none"_s), QStringList());
    EXPECT_EQ(PictureFolder::pictures(QString()), QStringList());
}

TEST_F(PicturesOfADirectory, AreWhatThreeWalksFind)
{
    std::mt19937 random(20261121);
    const QStringList endings{u".jpg"_s, u".JPG"_s, u".gif"_s, u".Gif"_s, u".bmp"_s, u".jpeg"_s, u".txt"_s, u""_s};
    const QString letters = u"abAB01 _-.äÄß"_s;
    for (int round = 0; round < 20; ++round) {
        for (int i = 0; i < 60; ++i) {
            QString name;
            for (unsigned length = 1 + random() % 4; length > 0; --length)
                name += letters.at(qsizetype(random() % unsigned(letters.size())));
            make(name + endings.at(qsizetype(random() % unsigned(endings.size()))) + u'x');
            make(source() + u'_' + name + endings.at(qsizetype(random() % unsigned(endings.size()))), "x");
        }
        EXPECT_EQ(loweredPictures(), plainNames());
    }
}

TEST_F(PicturesOfADirectory, AreReadWithinASecondWhereThereAreAHundredThousand)
{
    constexpr int count = 100'000;
    for (int i = 0; i < count; ++i)
        make(source() + u"Picture %1.jpg"_s.arg(i * 7919 % count, 6, 10, QChar(u'0')), {});
    QElapsedTimer clock;
    clock.start();
    const QStringList pictures = PictureFolder::pictures(source());
    EXPECT_LT(clock.elapsed(), 1000);
    ASSERT_EQ(pictures.size(), count);
    EXPECT_EQ(pictures.constLast(), u"Picture 099999.jpg"_s);
}

TEST_F(PicturesOfADirectory, AreThoseBesideAFile)
{
    const QString picture = make(u"a b.jpg"_s);
    EXPECT_EQ(PictureFolder::directoryOf(picture), source());
    EXPECT_EQ(PictureFolder::directoryOf(source()), source());
    EXPECT_EQ(PictureFolder::directoryOf(source().chopped(1)), source());
    EXPECT_EQ(PictureFolder::directoryOf(u"/"_s), u"/"_s);
    EXPECT_EQ(PictureFolder::directoryOf(source() + u"none"_s), QString());
    EXPECT_EQ(PictureFolder::directoryOf(QString()), QString());
}

TEST_F(PicturesOfADirectory, AreInOneDirectoryByWhateverPath)
{
    ASSERT_TRUE(QFile::link(source().chopped(1), target() + u"link"_s));
    EXPECT_TRUE(PictureFolder::isSameDirectory(source(), source().chopped(1)));
    EXPECT_TRUE(PictureFolder::isSameDirectory(source(), target() + u"link/"_s));
    EXPECT_TRUE(PictureFolder::isSameDirectory(source(), source() + u"../"_s + QDir(source()).dirName() + u'/'));
    EXPECT_FALSE(PictureFolder::isSameDirectory(source(), target()));
    EXPECT_FALSE(PictureFolder::isSameDirectory(source() + u"none"_s, target() + u"none"_s));
}
