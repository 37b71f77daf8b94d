#include "util/FileNames.h"

#include "QtPrint.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {
QString part(int mode, const QString &spec, qsizetype most = 0, const QString &separator = u"/"_s)
{
    return cUtility::GetFileSpecParts(mode, spec, most, separator);
}

TEST(FileSpecParts, OfAPathWithExtension)
{
    const QString spec = u" /home/user/pic.one.jpg "_s;
    EXPECT_EQ(part(0, spec), u"pic.one"_s);
    EXPECT_EQ(part(1, spec), u"pic.one."_s);
    EXPECT_EQ(part(2, spec), u"pic.one.jpg"_s);
    EXPECT_EQ(part(3, spec), u"jpg"_s);
    EXPECT_EQ(part(4, spec), u".jpg"_s);
    EXPECT_EQ(part(5, spec), u"/home/user/"_s);
    EXPECT_EQ(part(6, spec), u"/home/user"_s);
    EXPECT_EQ(part(7, spec), u"/"_s);
    EXPECT_EQ(part(8, spec, 3), u"pic"_s);
}

TEST(FileSpecParts, AnExtensionHasThreeOrFourLetters)
{
    EXPECT_EQ(part(4, u"/a/b.jpeg"_s), u".jpeg"_s);
    EXPECT_EQ(part(4, u"/a/b.js"_s), u""_s);
    EXPECT_EQ(part(0, u"/a/b.js"_s), u"b.js"_s);
    EXPECT_EQ(part(1, u"/a/b.js"_s), u"b.js"_s);
    EXPECT_EQ(part(3, u"/a/b.xhtml"_s), u""_s);
}

TEST(FileSpecParts, AnExtensionBeginsAtTheLastDot)
{
    EXPECT_EQ(part(4, u"a.b.cd"_s), u".cd"_s);
    EXPECT_EQ(part(0, u"a.b.cd"_s), u"a.b"_s);
}

TEST(FileSpecParts, ADotOfTheFolderIsNoExtension)
{
    EXPECT_EQ(part(4, u"a.b/cd"_s), u""_s);
    EXPECT_EQ(part(0, u"a.b/cd"_s), u"cd"_s);
}

TEST(FileSpecParts, UnderFiveCharactersThereIsNoExtension)
{
    EXPECT_EQ(part(4, u".jpg"_s), u""_s);
    EXPECT_EQ(part(0, u".jpg"_s), u".jpg"_s);
    EXPECT_EQ(part(4, u"a.jpg"_s), u".jpg"_s);
}

TEST(FileSpecParts, WithoutSeparatorThereIsNoFolder)
{
    EXPECT_EQ(part(5, u"name.txt"_s), u""_s);
    EXPECT_EQ(part(6, u"name.txt"_s), u""_s);
    EXPECT_EQ(part(2, u"name.txt"_s), u"name.txt"_s);
    EXPECT_EQ(part(6, u"/name"_s), u""_s);
}

TEST(FileSpecParts, AShorterNameThanTheCutAnswersNothing)
{
    EXPECT_EQ(part(8, u"/a/name.txt"_s, 4), u"name"_s);
    EXPECT_EQ(part(8, u"/a/name.txt"_s, 5), u""_s);
    EXPECT_EQ(part(8, u"/a/name.txt"_s, 0), u""_s);
    EXPECT_EQ(part(8, u"/a/name.txt"_s, -1), u""_s);
}

TEST(FileSpecParts, OfAnAddressAndOfNothing)
{
    EXPECT_EQ(part(2, u"http://h.com/d/p.html"_s), u"p.html"_s);
    EXPECT_EQ(part(5, u"C:\\d\\p.html"_s, 0, u"\\"_s), u"C:\\d\\"_s);
    EXPECT_EQ(part(9, u"/a/b.txt"_s), u""_s);
    EXPECT_EQ(part(-1, u"/a/b.txt"_s), u""_s);
    for (int mode = 0; mode <= 8; ++mode)
        EXPECT_EQ(part(mode, u""_s), u""_s) << mode;
}

class FreeNames : public testing::Test
{
  protected:
    void make(const QString &name)
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }

    QTemporaryDir folder;
};

TEST_F(FreeNames, AFreeNameIsAnsweredUnchanged)
{
    EXPECT_EQ(cUtility::GetVacantFileSpecs(path(u"x-0.txt"_s)), path(u"x-0.txt"_s));
    EXPECT_EQ(cUtility::GetVacantFileSpecs(u""_s), u""_s);
}

TEST_F(FreeNames, TheFirstGapIsTaken)
{
    make(u"x-0.txt"_s);
    make(u"x-1.txt"_s);
    make(u"x-3.txt"_s);
    EXPECT_EQ(cUtility::GetVacantFileSpecs(path(u"x-0.txt"_s)), path(u"x-2.txt"_s));
}

TEST_F(FreeNames, ANameWithoutNumberGetsOne)
{
    make(u"pic.txt"_s);
    make(u"pic0.txt"_s);
    EXPECT_EQ(cUtility::GetVacantFileSpecs(path(u"pic.txt"_s)), path(u"pic1.txt"_s));
}

TEST_F(FreeNames, AFolderAndALinkToNowhereTakeAName)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"x-0.txt"_s));
    ASSERT_TRUE(QFile::link(path(u"nowhere"_s), path(u"x-1.txt"_s)));
    EXPECT_EQ(cUtility::GetVacantFileSpecs(path(u"x-0.txt"_s)), path(u"x-2.txt"_s));
}

TEST_F(FreeNames, OutputNamesCountBehindTheUnderscore)
{
    EXPECT_EQ(cUtility::OutPutFileName(path(u"out.txt"_s)), path(u"out.txt"_s));
    make(u"out.txt"_s);
    EXPECT_EQ(cUtility::OutPutFileName(path(u"out.txt"_s)), path(u"out_1.txt"_s));
    make(u"out_1.txt"_s);
    EXPECT_EQ(cUtility::OutPutFileName(path(u"out.txt"_s)), path(u"out_2.txt"_s));
    make(u"out_008.txt"_s);
    EXPECT_EQ(cUtility::OutPutFileName(path(u"out_008.txt"_s)), path(u"out_9.txt"_s));
    make(u"a_b.txt"_s);
    EXPECT_EQ(cUtility::OutPutFileName(path(u"a_b.txt"_s)), path(u"a_b_1.txt"_s));
}

TEST_F(FreeNames, OutputNamesNeedNeitherExtensionNorFolder)
{
    make(u"out"_s);
    EXPECT_EQ(cUtility::OutPutFileName(path(u"out"_s)), path(u"out_1"_s));
    make(u"out_.txt"_s);
    EXPECT_EQ(cUtility::OutPutFileName(path(u"out_.txt"_s)), path(u"out__1.txt"_s));
    make(u"out_1x.txt"_s);
    EXPECT_EQ(cUtility::OutPutFileName(path(u"out_1x.txt"_s)), path(u"out_1x_1.txt"_s));
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    EXPECT_EQ(cUtility::OutPutFileName(u"out"_s), u"out_1"_s);
    ASSERT_TRUE(QDir::setCurrent(before));
}

TEST_F(FreeNames, OutputNamesAreTakenInAnyCase)
{
    make(u"OUT.txt"_s);
    EXPECT_EQ(cUtility::OutPutFileName(path(u"Out.TXT"_s)), path(u"Out_1.TXT"_s));
}

TEST_F(FreeNames, FilesAreTheSameByTheirBytesAlone)
{
    const auto write = [this](const QString &name, const QByteArray &bytes) {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    };
    const QByteArray large(200'000, 'x');
    write(u"a"_s, large);
    write(u"b"_s, large);
    write(u"c"_s, large.chopped(1) + 'y');
    write(u"d"_s, large.chopped(1));
    write(u"e"_s, {});
    write(u"f"_s, {});
    for (const auto &[one, other, same] :
         {std::tuple{"a", "b", true}, {"a", "c", false}, {"a", "d", false}, {"e", "f", true}, {"a", "none", false}})
        EXPECT_EQ(cUtility::isSameContent(path(QLatin1StringView(one)), path(QLatin1StringView(other))), same)
            << one << other;
}
} // namespace
