#include "TransferFixture.h"
#include "transfer/TargetNames.h"
#include "util/RandomText.h"

#include <QFileInfo>

#ifdef Q_OS_LINUX
#include "support/FullDisk.h"
#endif

using namespace Qt::StringLiterals;

namespace {
class Files : public TransferTest
{
  protected:
    void SetUp() override { server.route("/p.jpg", okReply("picture")); }
    [[nodiscard]] QString picture() const { return server.address(u"/p.jpg"_s); }
};

TEST_F(Files, AFileThatExistsIsNotTouchedAndTheNextIsNumbered)
{
    writeFile(at(u"p.jpg"_s), "mine");
    writeFile(at(u"p-0.jpg"_s), "mine too");
    EXPECT_EQ(byFirst(picture(), u"p.jpg"_s).file, at(u"p-1.jpg"_s));
    EXPECT_EQ(bySecond(picture(), u"p.jpg"_s).file, at(u"p-2.jpg"_s));
    EXPECT_EQ(bytesOf(at(u"p.jpg"_s)), "mine");
    EXPECT_EQ(bytesOf(at(u"p-0.jpg"_s)), "mine too");
}

TEST_F(Files, AFileThatComesDuringTheTransferIsNotTouched)
{
    server.onRequest = [this] { writeFile(at(u"p.jpg"_s), "mine"); };
    EXPECT_EQ(byFirst(picture(), u"p.jpg"_s).file, at(u"p-0.jpg"_s));
    EXPECT_EQ(bytesOf(at(u"p.jpg"_s)), "mine");
}

TEST_F(Files, ALinkIsNotFollowed)
{
    QTemporaryDir elsewhere;
    const QString aim = elsewhere.filePath(u"aim.jpg"_s);
    ASSERT_TRUE(QFile::link(aim, at(u"p.jpg"_s)));
    EXPECT_EQ(byFirst(picture(), u"p.jpg"_s).file, at(u"p-0.jpg"_s));
    EXPECT_FALSE(QFile::exists(aim));
}

TEST_F(Files, AFolderOfTheNameIsATakenName)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"p.jpg"_s));
    EXPECT_EQ(byFirst(picture(), u"p.jpg"_s).file, at(u"p-0.jpg"_s));
}

TEST_F(Files, NothingStandsUnderTheFinalNameBeforeItIsComplete)
{
    RawReply slow = okReply(QByteArray(1'000, 's'));
    slow.piece = 100;
    slow.pause = 10;
    server.route("/slow.jpg", slow);
    int looks = 0;
    QTimer looking;
    QObject::connect(&looking, &QTimer::timeout, &looking, [&] {
        ++looks;
        const QFileInfo file(at(u"s.jpg"_s));
        EXPECT_TRUE(!file.exists() || file.size() == 1'000);
    });
    looking.start(1);
    EXPECT_EQ(byFirst(server.address(u"/slow.jpg"_s), u"s.jpg"_s).size, 1'000);
    EXPECT_GT(looks, 10);
}

TEST_F(Files, AFolderThatCannotBeWrittenToIsAnErrorAndNothingIsFetched)
{
    for (const QString &target : {at(u"no/such/p.jpg"_s), at(u""_s), u"p.jpg"_s, u"/proc/p.jpg"_s}) {
        log.entries.clear();
        EXPECT_EQ(first.DownLoad(picture(), target, 0).file, u""_s);
        EXPECT_EQ(second.APIDownLoad(picture(), target, 0).file, u""_s);
        EXPECT_EQ(log.locations(), (QStringList{u"Function DownLoad"_s, u"Function APIDownLoad"_s}))
            << qUtf8Printable(target);
    }
    EXPECT_TRUE(server.requests.isEmpty());
}

TEST_F(Files, AFolderThatGoesDuringTheTransferIsAnError)
{
    server.onRequest = [this] { QDir(folder.path()).removeRecursively(); };
    const Download download = byFirst(picture(), u"p.jpg"_s);
    EXPECT_EQ(download.file, u""_s);
    EXPECT_NE(download.refusal, u""_s);
    EXPECT_EQ(log.locations(), QStringList{u"Function DownLoad"_s});
}

#ifdef Q_OS_LINUX
TEST_F(Files, AFullDiskLeavesNoFile)
{
    server.route("/big.jpg", okReply(allBytes(400'000)));
    server.route("/small.jpg", okReply(allBytes(9'000)));
    const FullDisk full(4'096);
    for (const QString &name : {u"/big.jpg"_s, u"/small.jpg"_s}) {
        log.entries.clear();
        EXPECT_EQ(byFirst(server.address(name), u"a.jpg"_s).file, u""_s);
        EXPECT_EQ(bySecond(server.address(name), u"a.jpg"_s).file, u""_s);
        ASSERT_EQ(log.entries.size(), 2) << qUtf8Printable(name);
        EXPECT_EQ(log.entries[0].number, ErrorNumber::PathAccessError);
        EXPECT_EQ(log.entries[1].number, ErrorNumber::PathAccessError);
    }
    EXPECT_TRUE(names().isEmpty());
}
#endif

TEST_F(Files, NoNameLeadsOutOfTheFolder)
{
    const QString inner = at(u"inner"_s);
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"inner"_s));
    for (const QString &name : {u".."_s, u"."_s, u"..jpg"_s, u"..\\..\\p.jpg"_s, u"-rf.jpg"_s, u"~.jpg"_s}) {
        const Download download = first.DownLoad(picture(), inner + u'/' + name, 0);
        EXPECT_TRUE(download.file.startsWith(inner + u'/')) << qUtf8Printable(name);
        EXPECT_EQ(bytesOf(download.file), "picture") << qUtf8Printable(name);
    }
    EXPECT_EQ(names(), QStringList{u"inner"_s});
    EXPECT_EQ(QDir(inner).entryList(QDir::Files | QDir::Hidden).size(), 6);
}

struct Name
{
    const char *tag;
    QString given;
    QString safe;
};

class Names : public TransferTest, public testing::WithParamInterface<Name>
{
};

TEST_P(Names, AreMadeSafeAndCanBeWritten)
{
    EXPECT_EQ(TargetNames::safeName(GetParam().given), GetParam().safe);
    server.route("/p.jpg", okReply("picture"));
    const Download download = byFirst(server.address(u"/p.jpg"_s), GetParam().given);
    EXPECT_EQ(download.file, at(GetParam().safe));
    EXPECT_EQ(names(), QStringList{GetParam().safe});
}

const Name safeNames[] = {
    {"plain", u"p1.jpg"_s, u"p1.jpg"_s},
    {"blanks", u"my  picture .jpg"_s, u"my  picture .jpg"_s},
    {"quotes", u"a\"b'c`d.jpg"_s, u"a\"b'c`d.jpg"_s},
    {"dots", u"a..b.jpg"_s, u"a..b.jpg"_s},
    {"two_dots", u".."_s, u"__"_s},
    {"one_dot", u"."_s, u"_"_s},
    {"question_mark_and_star", u"p.php?a=*.jpg"_s, u"p.php_a=_.jpg"_s},
    {"controls", u"a\tb\nc\u0001\u007F\u0085.jpg"_s, u"a_b_c___.jpg"_s},
    {"nul", u"a"_s + QChar(0) + u"b.jpg"_s, u"a_b.jpg"_s},
    {"other_scripts", u"\u00E4\u0416\u4E2D\U0001F600.jpg"_s, u"\u00E4\u0416\u4E2D\U0001F600.jpg"_s},
    {"half_of_a_pair", u"a"_s + QChar(0xD83D) + u".jpg"_s, u"a_.jpg"_s},
    {"other_half", u"a"_s + QChar(0xDE00) + u".jpg"_s, u"a_.jpg"_s},
    {"backslash", u"a\\b.jpg"_s, u"a\\b.jpg"_s},
    {"percent_stays", u"a%20b%2F.jpg"_s, u"a%20b%2F.jpg"_s},
    {"300_characters", QString(296, u'n') + u".jpg"_s, QString(251, u'n') + u".jpg"_s},
    {"300_wide_characters", QString(295, u'\u4E2D') + u".jpeg"_s, QString(83, u'\u4E2D') + u".jpeg"_s},
    {"longest", QString(251, u'n') + u".jpg"_s, QString(251, u'n') + u".jpg"_s},
    {"one_too_long", QString(252, u'n') + u".jpg"_s, QString(251, u'n') + u".jpg"_s},
    {"cut_before_a_pair", QString(249, u'n') + u"\U0001F600.jpg"_s, QString(249, u'n') + u".jpg"_s},
    {"long_without_extension", QString(300, u'n'), QString(255, u'n')},
};
INSTANTIATE_TEST_SUITE_P(OfDownloads, Names, testing::ValuesIn(safeNames),
                         [](const auto &row) { return row.param.tag; });

TEST(SafeNames, HoldForRandomNames)
{
    RandomText random(7);
    const QStringList pieces{u"a"_s,
                             u"?"_s,
                             u"*"_s,
                             u"/"_s,
                             u"."_s,
                             u".jpg"_s,
                             u".jpeg"_s,
                             u" "_s,
                             u"\u4E2D\u4E2D"_s,
                             QString(60, u'n'),
                             QString(70, u'\u00E4'),
                             u"\U0001F600"_s,
                             u".."_s,
                             u"7"_s};
    for (int round = 0; round < 20'000; ++round) {
        const QString given = random.text(pieces, 12);
        const QString safe = TargetNames::safeName(given);
        ASSERT_LE(safe.toUtf8().size(), 255) << shown(given);
        ASSERT_EQ(safe.isEmpty(), given.isEmpty()) << shown(given);
        ASSERT_EQ(TargetNames::safeName(safe), safe) << shown(given);
        // Behind a letter, since a byte order mark that begins a text goes when it is read.
        ASSERT_EQ(QString::fromUtf8((u'x' + safe).toUtf8()), u'x' + safe) << shown(given);
        ASSERT_FALSE(safe.contains(u'/') || safe.contains(u'?') || safe.contains(u'*') || safe == u".." || safe == u".")
            << shown(given);
        ASSERT_TRUE(safe.endsWith(u".jpg"_s) || !given.endsWith(u".jpg"_s) || given.size() == 4) << shown(given);
    }
}

TEST(NextPaths, NeverGrowTooLongAndNeverRepeat)
{
    for (const QString &start : {QString(251, u'n') + u".jpg"_s, QString(251, u'9') + u".jpg"_s, QString(255, u'n'),
                                 u"1"_s + QString(83, u'\u4E2D') + u".jpeg"_s, u"p.jpg"_s, u"p-9.jpg"_s}) {
        QSet<QString> seen;
        QString path = u"/x1/"_s + start;
        for (int count = 0; count < 300; ++count) {
            ASSERT_FALSE(seen.contains(path)) << shown(path);
            seen += path;
            ASSERT_TRUE(path.startsWith(u"/x1/"_s));
            ASSERT_LE(path.toUtf8().size(), 4 + 255) << shown(path);
            path = TargetNames::nextPath(path);
        }
    }
}
} // namespace
