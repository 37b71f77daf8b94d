// Lists in text files.
#include "lists/ListFile.h"
#include "support/ManualFixture.h"

using namespace Qt::StringLiterals;

namespace {
struct Form
{
    const char *tag;
    QByteArray bytes;
    QStringList lines;
};

void PrintTo(const Form &form, std::ostream *out)
{
    *out << form.tag;
}

const QStringList umlauts{u"http://b\u00FCcher.de"_s, u"http://a.com"_s};
const Form forms[] = {
    {"CR LF", "a\r\nb\r\n", {u"a"_s, u"b"_s}},
    {"LF", "a\nb\n", {u"a"_s, u"b"_s}},
    {"both", "a\r\nb\nc\r\n", {u"a"_s, u"b"_s, u"c"_s}},
    {"the last line without an end", "a\r\nb", {u"a"_s, u"b"_s}},
    {"one line without an end", "a", {u"a"_s}},
    {"empty lines", "\r\n\r\na\n\n", {u"a"_s}},
    {"nothing", "", {}},
    {"UTF-8",
     "http://b\xC3\xBC"
     "cher.de\r\nhttp://a.com\r\n",
     umlauts},
    {"UTF-8 with a mark",
     "\xEF\xBB\xBFhttp://b\xC3\xBC"
     "cher.de\nhttp://a.com",
     umlauts},
    {"Windows-1252",
     "http://b\xFC"
     "cher.de\r\nhttp://a.com",
     umlauts},
};

class ListFiles : public ManualTest, public testing::WithParamInterface<Form>
{
};
using ListFileTest = ManualTest;
} // namespace

TEST_P(ListFiles, AreReadLineByLine)
{
    const ListFile::Content content = ListFile::read(file(u"list.txt"_s, GetParam().bytes));
    EXPECT_EQ(content.lines, GetParam().lines);
    EXPECT_EQ(content.fault, QString());
}

INSTANTIATE_TEST_SUITE_P(ListFile, ListFiles, testing::ValuesIn(forms));

TEST_F(ListFileTest, LinesAreCutToWhatAColumnHolds)
{
    EXPECT_EQ(ListFile::read(file(u"list.txt"_s, QByteArray(300, 'x'))).lines, QStringList{QString(255, u'x')});
}

TEST_F(ListFileTest, WhatIsNoFileOrTooLongForAListIsTold)
{
    EXPECT_EQ(ListFile::read(folder.filePath(u"none.txt"_s)).fault, u"No such file"_s);
    EXPECT_EQ(ListFile::read(folder.path()).fault, u"No such file"_s);
    for (const QString &name : {u"Trawlex-0.mdb"_s, u"Old.MDB"_s, u"Trawlex-0.mdb-wal"_s, u"Trawlex-0.mdb-shm"_s}) {
        QFile kept(folder.filePath(name));
        ASSERT_TRUE(kept.open(QIODevice::WriteOnly) && kept.write("http://a.com\n") > 0);
        kept.close();
        EXPECT_EQ(ListFile::read(kept.fileName()).fault, u"A database is no list"_s) << "its locks would go";
        EXPECT_TRUE(ListFile::read(kept.fileName()).lines.isEmpty());
    }
    const QString path = file(u"huge.txt"_s, "a\r\n");
    ASSERT_TRUE(QFile::resize(path, 1024LL * 1024 * 1024)) << "a hole takes no room";
    const ListFile::Content content = ListFile::read(path);
    EXPECT_EQ(content.fault, u"Size > 256 MB"_s);
    EXPECT_TRUE(content.lines.isEmpty());
}

TEST_F(ListFileTest, TheProposalIsTheFirstFreeNameOfItsKind)
{
    const QString directory = folder.path() + u'/';
    EXPECT_EQ(ListFile::proposal(directory, {}), directory + u"UrlExport-0.txt"_s);
    EXPECT_EQ(ListFile::proposal(directory, u"http://www.site"_s), directory + u"httpwwwsite-0.txt"_s);
    file(u"UrlExport-0.txt"_s, "x");
    file(u"UrlExport-1.txt"_s, "x");
    EXPECT_EQ(ListFile::proposal(directory, {}), directory + u"UrlExport-2.txt"_s);
}

TEST_F(ListFileTest, AFileThatIsThereIsAddedTo)
{
    const QString path = file(u"mine.txt"_s, "a\r\n");
    EXPECT_EQ(ListFile::append(path, {u"b"_s, u"\u00FC"_s}), QString());
    EXPECT_EQ(ListFile::read(path).lines, (QStringList{u"a"_s, u"b"_s, u"\u00FC"_s}));
    EXPECT_EQ(ListFile::append(folder.path(), {u"b"_s}), "Not saved. "_L1 + folder.path());
}

TEST_F(ListFileTest, NothingIsAddedToTheFilesOfADatabaseByWhateverName)
{
    for (const QString &name : {u"Trawlex-0.mdb"_s, u"Trawlex-0.mdb-wal"_s, u"Trawlex-0.mdb-shm"_s}) {
        const QString path = file(name, "rows");
        const QString link = folder.filePath(u"link.txt"_s);
        ASSERT_TRUE(QFile::link(path, link));
        for (const QString &way : {path, link}) {
            EXPECT_EQ(ListFile::append(way, {u"http://a.com"_s}), u"A database is no list"_s);
            EXPECT_EQ(ListFile::read(way).fault, u"A database is no list"_s);
        }
        EXPECT_EQ(QFileInfo(path).size(), 4);
        QFile::remove(link);
    }
    const QString unborn = folder.filePath(u"New.MDB"_s);
    EXPECT_EQ(ListFile::append(unborn, {u"http://a.com"_s}), u"A database is no list"_s);
    EXPECT_FALSE(QFile::exists(unborn));
}
