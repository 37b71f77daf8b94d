#include "util/TextFiles.h"

#include "QtPrint.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {
class TextFiles : public testing::Test
{
  protected:
    QString write(const QString &name, const QByteArray &content)
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return path(name);
    }
    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }

    QTemporaryDir folder;
};

TEST_F(TextFiles, AMissingFileIsAnEmptyText)
{
    EXPECT_EQ(cUtility::LoadTextFile(path(u"none"_s)), u""_s);
    EXPECT_EQ(cUtility::LoadTextFile(u""_s), u""_s);
    EXPECT_EQ(cUtility::LoadTextFile(folder.path()), u""_s);
}

TEST_F(TextFiles, ReadsItsEncodingFromTheFile)
{
    EXPECT_EQ(cUtility::LoadTextFile(write(u"ansi"_s, "caf\xE9 \x80\r\n")), u"caf\u00E9 \u20AC\r\n"_s);
    EXPECT_EQ(cUtility::LoadTextFile(write(u"utf8"_s, "caf\xC3\xA9")), u"caf\u00E9"_s);
    EXPECT_EQ(cUtility::LoadTextFile(write(u"marked"_s, "\xEF\xBB\xBF"
                                                        "a")),
              u"a"_s);
    EXPECT_EQ(cUtility::LoadTextFile(write(u"wide"_s, QByteArray("\xFF\xFE"
                                                                 "a\0",
                                                                 4))),
              u"a"_s);
    EXPECT_EQ(cUtility::LoadTextFile(write(u"zero"_s, QByteArray("a\0b", 3))), QString(u"a\0b"_s));
}

TEST_F(TextFiles, AnAccentAtTheVeryEndIsKept)
{
    EXPECT_EQ(cUtility::LoadTextFile(write(u"ansi"_s, "caf\xE9")), u"caf\u00E9"_s);
    EXPECT_EQ(cUtility::LoadTextFile(write(u"lead"_s, "caf\xC3")), u"caf\u00C3"_s);
    EXPECT_EQ(cUtility::LoadTextFile(write(u"cut"_s, "\xEF\xBB\xBF"
                                                     "caf\xE9")),
              u"caf\uFFFD"_s);
    EXPECT_EQ(cUtility::LoadTextFile(write(u"pair"_s, "\xF0\x9F\x98\x80")), u"\U0001F600"_s);
}

TEST_F(TextFiles, FieldsWithoutEmptyOnes)
{
    const QString file = write(u"list.txt"_s, "a\r\n\r\nb\r\n c \r\n");
    EXPECT_EQ(cUtility::LoadDelimitedFileAs1DArray(u"  "_s + file + u" "_s, u"\r\n"_s),
              (QStringList{u"a"_s, u"b"_s, u" c "_s}));
}

TEST_F(TextFiles, AFileWithoutTheDelimiterIsTheEmptyList)
{
    EXPECT_EQ(cUtility::LoadDelimitedFileAs1DArray(write(u"a"_s, "abc"), u"\r\n"_s), QStringList{u""_s});
    EXPECT_EQ(cUtility::LoadDelimitedFileAs1DArray(path(u"none"_s), u"\r\n"_s), QStringList{u""_s});
    EXPECT_EQ(cUtility::LoadDelimitedFileAs1DArray(write(u"b"_s, "|||"), u"|"_s), QStringList{u""_s});
}

TEST_F(TextFiles, RowsAndColumns)
{
    const QString file = write(u"rows"_s, " a|b \r\n\r\n   \r\nc|\r\n");
    EXPECT_EQ(cUtility::LoadDelimitedFileAs2DArray(file, u"|"_s),
              (QList<QStringList>{{u"a"_s, u"b"_s}, {u"c"_s, u""_s}}));
    EXPECT_EQ(cUtility::LoadDelimitedFileAs2DArray(file, u""_s), (QList<QStringList>{{u"a|b"_s}, {u"c|"_s}}));
    EXPECT_TRUE(cUtility::LoadDelimitedFileAs2DArray(path(u"none"_s), u"|"_s).isEmpty());
}

TEST_F(TextFiles, ACleanFileHasNoReport)
{
    EXPECT_EQ(cUtility::CheckFileLinesForDelimiter(write(u"ok"_s, "a|b\r\n\r\nc|d"), u"|"_s, 1), u""_s);
}

TEST_F(TextFiles, TheFirstBadLineIsReported)
{
    const QString file = write(u"bad"_s, "a|b\r\n\r\n  x|y|z and more than twenty\r\nq");
    EXPECT_EQ(cUtility::CheckFileLinesForDelimiter(file, u"|"_s, 1),
              u"Excessive Delimiters!\r\nFile: "_s + file +
                  u"\r\nLine: 3\r\n : x|y|z and more than ...\r\nDelimiter: |\x7c\r\nDelimiter Count: 2\r\n"
                  u"Expected Delimiter Count: 1\r\nDifference: 1\r\nDelimiter Locations: 2,4"_s);
    EXPECT_TRUE(cUtility::CheckFileLinesForDelimiter(file, u"|"_s, 3).startsWith(u"Insufficient Delimiters!\r\n"));
}

TEST_F(TextFiles, TestForTextWantsAReadableFile)
{
    EXPECT_TRUE(cUtility::TestForText(write(u"there"_s, "")));
    EXPECT_FALSE(cUtility::TestForText(path(u"none"_s)));
    EXPECT_FALSE(cUtility::TestForText(folder.path()));
    EXPECT_FALSE(cUtility::TestForText(u""_s));
}

TEST_F(TextFiles, CollectsByExtensionInAnyCaseHiddenOnesToo)
{
    for (const QString &name : {u"b.jpg"_s, u"A.JPG"_s, u".c.jpg"_s, u"d.jpeg"_s, u"ejpg"_s})
        write(name, "");
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"folder.jpg"_s));
    EXPECT_EQ(cUtility::CollectFiles(folder.path() + u'/', u"jpg"_s),
              (QStringList{path(u".c.jpg"_s), path(u"A.JPG"_s), path(u"b.jpg"_s)}));
    EXPECT_EQ(cUtility::CollectFiles(folder.path(), u"bmp"_s), QStringList{u""_s});
    EXPECT_EQ(cUtility::CollectFiles(path(u"none"_s), u"jpg"_s), QStringList{u""_s});
    EXPECT_EQ(cUtility::CollectFiles(folder.path(), u""_s), QStringList{u""_s});
    EXPECT_EQ(cUtility::CollectFiles(u""_s, u"jpg"_s), QStringList{u""_s});
}

TEST_F(TextFiles, TheActiveDriveIsTheFirstThatCanBeWritten)
{
    EXPECT_EQ(cUtility::GetActiveDrive({path(u"none/"_s), folder.path() + u'/'}), folder.path() + u'/');
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    EXPECT_EQ(cUtility::GetActiveDrive({path(u"none/"_s)}), u""_s);
    EXPECT_FALSE(cUtility::driveCandidates().isEmpty());
}
} // namespace
