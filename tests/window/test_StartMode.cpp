// What the command line asks for: the picture browser for a file that is there, the harvester for anything else.
#include "window/StartMode.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
class StartModes : public testing::Test
{
  protected:
    QString makeFile(const QString &name)
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }
    QTemporaryDir folder;
};
using Kind = StartMode::Kind;
} // namespace

TEST_F(StartModes, WithoutAFileTheHarvesterStarts)
{
    EXPECT_EQ(startMode({}).kind, Kind::Harvester);
    EXPECT_EQ(startMode({u""_s}).kind, Kind::Harvester);
}

TEST_F(StartModes, AMissingFileStartsTheHarvesterToo)
{
    EXPECT_EQ(startMode({folder.filePath(u"gone.jpg"_s)}).kind, Kind::Harvester);
    EXPECT_EQ(startMode({folder.path()}).kind, Kind::Harvester) << "a folder is no file";
}

TEST_F(StartModes, AFileOpensThePictureBrowserOnIt)
{
    const QString picture = makeFile(u"a.jpg"_s);
    const StartMode mode = startMode({picture});
    EXPECT_EQ(mode.kind, Kind::PictureBrowser);
    EXPECT_EQ(mode.picture, picture);
}

TEST_F(StartModes, QuotesAroundAPathWithBlanksAreNoPartOfIt)
{
    const QString picture = makeFile(u"my own picture.jpg"_s);
    for (const QStringList &words : {QStringList{picture}, QStringList{u'"' + picture + u'"'}, picture.split(u' '),
                                     QString(u'"' + picture + u'"').split(u' ')}) {
        EXPECT_EQ(startMode(words).kind, Kind::PictureBrowser) << words.join(u'|').toStdString();
        EXPECT_EQ(startMode(words).picture, picture);
    }
}
