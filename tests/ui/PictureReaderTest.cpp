// What may be shown as a picture, and what is refused: by name, by content, by size.
#include "ui/pictures/PictureReader.h"

#include "PictureFiles.h"
#include "ui/pictures/PicturesAhead.h"

#include <QImageWriter>
#include <QLoggingCategory>
#include <random>

using namespace Qt::StringLiterals;

struct PictureReading : testing::Test
{
    // What the libraries say about the files of these tests is no warning about ours.
    PictureReading() { QLoggingCategory::setFilterRules(u"qt.gui.imageio.*=false"_s); }
    ~PictureReading() override { QLoggingCategory::setFilterRules({}); }
    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
    QTemporaryDir folder;
};

TEST_F(PictureReading, TakesJpgGifAndBmp)
{
    for (const auto &name : {u"a.jpg"_s, u"A.JPG"_s, u"a.jpeg"_s, u"a.bmp"_s}) {
        const Picture picture = PictureReader::read(PictureFiles::make(path(name), {30, 20}));
        EXPECT_EQ(picture.refusal, QString());
        EXPECT_EQ(picture.image.size(), QSize(30, 20));
        EXPECT_FALSE(picture.moves);
    }
    for (const int frames : {1, 3}) {
        const Picture gif = PictureReader::read(PictureFiles::write(path(u"a.gif"_s), PictureFiles::gif(frames)));
        EXPECT_EQ(gif.refusal, QString());
        EXPECT_EQ(gif.size, QSize(1, 1));
        EXPECT_EQ(gif.moves, frames > 1);
    }
}

TEST_F(PictureReading, GoesByTheContentWhereTheNameIsThatOfAnotherKind)
{
    const QString name = path(u"a.jpg"_s);
    PictureFiles::make(path(u"a.bmp"_s), {30, 20});
    ASSERT_TRUE(QFile::rename(path(u"a.bmp"_s), name));
    EXPECT_EQ(PictureReader::read(name).image.size(), QSize(30, 20));
}

TEST_F(PictureReading, RefusesEverythingElseWithAReason)
{
    PictureFiles::make(path(u"real.png"_s), {30, 20});
    QFile png(path(u"real.png"_s));
    ASSERT_TRUE(png.open(QIODevice::ReadOnly));
    const std::pair<QString, QByteArray> refused[] = {
        {u"png.jpg"_s, png.readAll()},
        {u"text.gif"_s, "hello"},
        {u"empty.bmp"_s, ""},
        {u"svg.jpg"_s, "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"},
        {u"head.jpg"_s, "\xFF\xD8\xFF"},
        {u"head.gif"_s, "GIF89a"},
        {u"garbage.bmp"_s, "BM" + QByteArray(500, 'x')},
        {u"wide.bmp"_s, PictureFiles::bmpHead(2'000'000'000, 1)},
        {u"large.bmp"_s, PictureFiles::bmpHead(60'000, 60'000)},
        {u"none.bmp"_s, PictureFiles::bmpHead(0, 0)},
        {u"negative.bmp"_s, PictureFiles::bmpHead(-5, -5)},
        {u"gif.txt"_s, PictureFiles::gif(1)},
    };
    for (const auto &[name, bytes] : refused) {
        const Picture picture = PictureReader::read(PictureFiles::write(path(name), bytes));
        EXPECT_TRUE(picture.image.isNull()) << qUtf8Printable(name);
        EXPECT_FALSE(picture.refusal.isEmpty()) << qUtf8Printable(name);
    }
    EXPECT_FALSE(PictureReader::read(path(u"nowhere.jpg"_s)).refusal.isEmpty());
    EXPECT_FALSE(PictureReader::read(folder.path()).refusal.isEmpty());
    QFile huge(path(u"huge.bmp"_s));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.write(PictureFiles::bmpHead(10, 10)) > 0);
    ASSERT_TRUE(huge.resize(PictureReader::largestFile + 1)); // takes no room on the disk
    EXPECT_EQ(PictureReader::read(huge.fileName()).refusal, u"is too large a file"_s);
}

TEST_F(PictureReading, FitsWhatIsTooLargeAndLeavesWhatIsNot)
{
    const QString large = PictureFiles::make(path(u"a.jpg"_s), {1600, 800});
    const Picture fitted = PictureReader::read(large, {400, 400});
    EXPECT_EQ(fitted.image.size(), QSize(400, 200));
    EXPECT_EQ(fitted.size, QSize(1600, 800)) << "in full";
    EXPECT_EQ(PictureReader::read(large, {5000, 5000}).image.size(), QSize(1600, 800));
    EXPECT_EQ(PictureReader::read(PictureFiles::make(path(u"thin.bmp"_s), {3000, 1}), {30, 30}).image.size(),
              QSize(30, 1));
}

TEST_F(PictureReading, FitsAGifThatIsLargerThanItsFirstPictureSays)
{
    QByteArray bytes = PictureFiles::gif(1);
    bytes[8] = 100; // as high as that in the head of the file
    const Picture picture = PictureReader::read(PictureFiles::write(path(u"a.gif"_s), bytes), {10, 10});
    EXPECT_EQ(picture.refusal, QString());
    EXPECT_LE(picture.image.height(), 10);
}

TEST_F(PictureReading, TurnsWhatTheCameraHeldUpright)
{
    QImageWriter writer(path(u"a.jpg"_s), "jpeg");
    writer.setTransformation(QImageIOHandler::TransformationRotate90);
    ASSERT_TRUE(writer.write(QImage(800, 400, QImage::Format_RGB32)));
    EXPECT_EQ(PictureReader::read(path(u"a.jpg"_s)).size, QSize(400, 800));
    EXPECT_EQ(PictureReader::read(path(u"a.jpg"_s), {100, 100}).image.size(), QSize(50, 100));
}

TEST_F(PictureReading, SurvivesPicturesThatAreCutOrScrambled)
{
    PictureFiles::make(path(u"a.jpg"_s), {64, 48});
    PictureFiles::make(path(u"a.bmp"_s), {64, 48});
    PictureFiles::write(path(u"a.gif"_s), PictureFiles::gif(4));
    std::mt19937 random(20261121);
    for (const auto &name : {u"a.jpg"_s, u"a.bmp"_s, u"a.gif"_s}) {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray whole = file.readAll();
        for (int round = 0; round < 200; ++round) {
            QByteArray bytes = whole.left(qsizetype(random() % unsigned(whole.size() + 1)));
            for (int changes = int(random() % 6); changes > 0 && !bytes.isEmpty(); --changes)
                bytes[qsizetype(random() % unsigned(bytes.size()))] = char(random());
            const Picture picture = PictureReader::read(PictureFiles::write(path(u"x"_s + name), bytes), {100, 100});
            EXPECT_EQ(picture.image.isNull(), !picture.refusal.isEmpty());
        }
    }
}

TEST_F(PictureReading, AheadKeepsWhatWasAskedForAndNothingElse)
{
    QStringList paths;
    for (int i = 0; i < 6; ++i)
        paths.append(PictureFiles::make(path(u"%1.jpg"_s.arg(i)), {100 + i, 50}));
    PicturesAhead ahead;
    ahead.prepare(paths.mid(0, 3));
    EXPECT_TRUE(ahead.isPrepared(paths.at(2)));
    EXPECT_FALSE(ahead.isPrepared(paths.at(3)));
    ahead.prepare(paths.mid(2, 3));
    EXPECT_FALSE(ahead.isPrepared(paths.at(0)));
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(ahead.take(paths.at(i)).image.width(), 100 + i) << "prepared or not";
    ahead.setRoom({50, 50});
    EXPECT_FALSE(ahead.isPrepared(paths.at(2))) << "it was read for other room";
    EXPECT_EQ(ahead.take(paths.at(2)).image.width(), 50);
}

TEST_F(PictureReading, AheadNeverGivesAnOldPictureForAFileThatWasWrittenAnew)
{
    const QString name = PictureFiles::make(path(u"a.bmp"_s), {10, 10});
    PicturesAhead ahead;
    ahead.prepare({name});
    EXPECT_EQ(ahead.take(name).size, QSize(10, 10));
    PictureFiles::make(name, {20, 20});
    EXPECT_EQ(ahead.take(name).size, QSize(20, 20));
    ASSERT_TRUE(QFile::remove(name));
    EXPECT_FALSE(ahead.take(name).refusal.isEmpty());
}
