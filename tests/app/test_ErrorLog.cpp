// The error log: silent until it is switched on, then one line in the file and one box.
#include "app/ErrorLog.h"
#include "support/Fakes.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {
class ErrorLogTest : public testing::Test
{
  protected:
    ErrorLogTest()
    {
        setFolder(folder.path());
        QObject::connect(&log, &ErrorLog::endRequested, &log, [this] { ++ends; });
        QObject::connect(&log, &ErrorLog::failed, &log, [this] { ++failures; });
    }
    ~ErrorLogTest() override { qunsetenv("LOGFILES"); }
    static void setFolder(const QString &path) { qputenv("LOGFILES", QFile::encodeName(path)); }
    void raise(const QString &description = u"Type mismatch"_s)
    {
        log.ErrorLogger(13, description, u"frmSearch"_s, u"Sub StartProcessAN"_s);
    }
    QStringList lines() const
    {
        QFile file(folder.filePath(u"ErrorLog.txt"_s));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(file.readAll()).split(u"\r\n"_s, Qt::SkipEmptyParts);
    }

    QTemporaryDir folder;
    FakeDialogs dialogs;
    FakeDesktop desktop;
    ErrorLog log{dialogs, desktop, u"/opt/trawlex"_s};
    int ends = 0, failures = 0;
};
} // namespace

TEST_F(ErrorLogTest, PassesInSilenceByDefault)
{
    raise();
    EXPECT_TRUE(lines().isEmpty());
    EXPECT_TRUE(dialogs.errors.isEmpty());
    EXPECT_EQ(log.ifListening(), nullptr);
}

TEST_F(ErrorLogTest, WritesOneLineAndShowsItWithTheQuestion)
{
    log.ToggleErrMsg(true);
    raise();
    ASSERT_EQ(lines().size(), 1);
    const QRegularExpression form(
        u"^\\d{4}-\\d\\d-\\d\\d: \\d\\d:\\d\\d:\\d\\d: Application=/opt/trawlex: Module=frmSearch: "
        "ErrLoc=Sub StartProcessAN: ErrDesc=Type mismatch: Err#=13$"_s);
    EXPECT_TRUE(form.match(lines()[0]).hasMatch()) << lines()[0].toStdString();
    ASSERT_EQ(dialogs.errors.size(), 1);
    EXPECT_EQ(dialogs.errors[0].title, u"An error occurred!"_s);
    EXPECT_EQ(dialogs.errors[0].text, lines()[0]);
    EXPECT_EQ(dialogs.errors[0].prompt, u"\r\nError was logged in ErrorLog.txt\r\nOpen Error LOG?"_s);
    EXPECT_EQ(log.ifListening(), &log);
}

TEST_F(ErrorLogTest, RecordsFollowOneAnother)
{
    log.ToggleErrMsg(true);
    raise();
    raise();
    EXPECT_EQ(lines().size(), 2);
    log.ToggleErrMsg(false);
    raise();
    EXPECT_EQ(lines().size(), 2);
}

TEST_F(ErrorLogTest, ThousandsOfRecordsStandOneBelowTheOther)
{
    constexpr int count = 3000;
    constexpr int longest = 21'000;
    log.ToggleErrMsg(true);
    for (int number = 0; number < count; ++number)
        raise(u"caf\u00E9 %1 "_s.arg(number) +
              QString(number % 10 == 0 ? 1 + number * longest / count : 1, u'x')); // the last ones outgrow any buffer
    const QStringList written = lines();
    ASSERT_EQ(written.size(), count);
    for (int number = 0; number < count; ++number)
        ASSERT_TRUE(written[number].contains(u": ErrDesc=caf\u00E9 %1 x"_s.arg(number)) &&
                    written[number].endsWith(u": Err#=13"_s))
            << number;
    EXPECT_EQ(dialogs.errors.size(), count);
    EXPECT_EQ(failures, 0);
}

TEST_F(ErrorLogTest, ARecordIsOneLineWhateverTheDescriptionHolds)
{
    log.ToggleErrMsg(true);
    raise(u"first\r\nsecond\tthird"_s);
    ASSERT_EQ(lines().size(), 1);
    EXPECT_TRUE(lines()[0].contains(u"ErrDesc=first  second third: Err#"_s));
}

TEST_F(ErrorLogTest, AFolderWithAndOneWithoutItsSeparatorNameTheSameFile)
{
    const QString bare = ErrorLog::filePath();
    setFolder(folder.path() + QDir::separator());
    EXPECT_EQ(ErrorLog::filePath(), bare);
    EXPECT_EQ(bare, folder.path() + QDir::separator() + u"ErrorLog.txt"_s);
}

TEST_F(ErrorLogTest, WithoutTheVariableTheBareNameIsUsed)
{
    qunsetenv("LOGFILES");
    EXPECT_EQ(ErrorLog::filePath(), u"ErrorLog.txt"_s);
}

TEST_F(ErrorLogTest, YesOpensTheLogNoDoesNothing)
{
    log.ToggleErrMsg(true);
    raise();
    EXPECT_TRUE(desktop.opened.isEmpty());
    dialogs.errorAnswer = UserDialogs::Answer::Yes;
    raise();
    EXPECT_EQ(desktop.opened, QStringList{ErrorLog::filePath()});
    EXPECT_EQ(ends, 0);
}

TEST_F(ErrorLogTest, CancelAsksForTheEndOfTheProgramAndForNothingMore)
{
    log.ToggleErrMsg(true);
    dialogs.errorAnswer = UserDialogs::Answer::Cancel;
    raise();
    EXPECT_EQ(ends, 1);
    raise(); // as the run unwinds
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(dialogs.errors.size(), 1);
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(ErrorLogTest, AnErrorWhileABoxIsOpenIsLoggedWithoutASecondBox)
{
    log.ToggleErrMsg(true);
    dialogs.duringError = [this] {
        dialogs.duringError = {};
        raise();
    };
    raise();
    EXPECT_EQ(lines().size(), 2);
    EXPECT_EQ(dialogs.errors.size(), 1);
    raise();
    EXPECT_EQ(dialogs.errors.size(), 2);
}

TEST_F(ErrorLogTest, AFileThatCannotBeWrittenIsItsOwnFailureAndShowsNoBox)
{
    log.ToggleErrMsg(true);
    setFolder(folder.filePath(u"gone"_s));
    raise();
    EXPECT_EQ(failures, 1);
    EXPECT_TRUE(dialogs.errors.isEmpty());
}

TEST_F(ErrorLogTest, AFullDiskIsTheLogsOwnFailureAndItGoesOnWhenThereIsRoomAgain)
{
    if (!QFile::exists(u"/dev/full"_s))
        GTEST_SKIP() << "no full device";
    const QString path = folder.filePath(u"ErrorLog.txt"_s);
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, path));
    log.ToggleErrMsg(true);
    raise();
    EXPECT_EQ(failures, 1);
    EXPECT_TRUE(dialogs.errors.isEmpty());
    ASSERT_TRUE(QFile::remove(path));
    raise();
    EXPECT_EQ(failures, 1);
    EXPECT_EQ(lines().size(), 1);
    EXPECT_EQ(dialogs.errors.size(), 1);
}
