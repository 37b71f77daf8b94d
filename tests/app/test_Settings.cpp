// The settings store: the application's name in it, its levels, and a store that is borrowed.
#include "app/IniSettings.h"
#include "support/Fakes.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {
class IniSettingsTest : public testing::Test
{
  protected:
    IniSettingsTest() { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path()); }
    QTemporaryDir folder;
};
} // namespace

TEST(AppName, HoldsProgramUserAndFolder)
{
    const QByteArray user = qgetenv("USERNAME");
    qputenv("USERNAME", "ann");
    EXPECT_EQ(GetRKAppName(u"trawlex"_s, u"/opt/trawlex/bin"_s), u"(trawlex - ann)\\.opt.trawlex.bin"_s);
    qunsetenv("USERNAME");
    const QByteArray unixUser = qgetenv("USER");
    qputenv("USER", "bob");
    EXPECT_EQ(GetRKAppName(u"trawlex"_s, u"/opt"_s), u"(trawlex - bob)\\.opt"_s);
    unixUser.isNull() ? qunsetenv("USER") : qputenv("USER", unixUser);
    if (!user.isNull())
        qputenv("USERNAME", user);
}

TEST_F(IniSettingsTest, KeepsTextUnderSectionAndKeyBeyondTheObject)
{
    const QString name = u"(trawlex - ann)\\.opt"_s;
    {
        IniSettings settings(name);
        settings.SaveSetting(u"SecFrmSearch"_s, u"SearchKeyTxtStartTag Text"_s, u"<b>, \"x\"; ä\\/"_s);
        settings.SaveSetting(u"mStartUp"_s, u"DatabaseName"_s, u"Trawlex-0.mdb"_s);
    }
    const IniSettings settings(name);
    EXPECT_EQ(settings.GetSetting(u"SecFrmSearch"_s, u"SearchKeyTxtStartTag Text"_s), u"<b>, \"x\"; ä\\/"_s);
    EXPECT_EQ(settings.GetSetting(u"mStartUp"_s, u"DatabaseName"_s), u"Trawlex-0.mdb"_s);
    EXPECT_EQ(settings.GetSetting(u"SecFrmSearch"_s, u"DatabaseName"_s, u"none"_s), u"none"_s);
    EXPECT_EQ(settings.GetSetting(u"SecFrmSearch"_s, u"DatabaseName"_s), QString());
}

TEST_F(IniSettingsTest, AListOfTextsInAValueStaysOneText)
{
    {
        IniSettings settings(u"(a - b)\\c"_s);
        settings.SaveSetting(u"SecFrmSearch"_s, u"txtSBSelAreaCodes"_s, u"212,415,@Invalid()"_s);
        settings.SaveSetting(u"SecFrmSearch"_s, u"empty"_s, {});
    }
    const IniSettings settings(u"(a - b)\\c"_s);
    EXPECT_EQ(settings.GetSetting(u"SecFrmSearch"_s, u"txtSBSelAreaCodes"_s), u"212,415,@Invalid()"_s);
    EXPECT_EQ(settings.GetSetting(u"SecFrmSearch"_s, u"empty"_s, u"default"_s), QString());
}

TEST_F(IniSettingsTest, TwoFoldersOfTheProgramKeepTwoSets)
{
    IniSettings one(u"(trawlex - ann)\\.opt.one"_s);
    IniSettings two(u"(trawlex - ann)\\.opt.two"_s);
    one.SaveSetting(u"s"_s, u"k"_s, u"1"_s);
    EXPECT_EQ(two.GetSetting(u"s"_s, u"k"_s, u"none"_s), u"none"_s);
}

TEST(BorrowedSettings, ReadsTheLenderAndKeepsItsOwnChanges)
{
    MemorySettings lender;
    lender.SaveSetting(u"s"_s, u"k"_s, u"theirs"_s);
    lender.written.clear();
    BorrowedSettings borrowed(lender);
    EXPECT_EQ(borrowed.GetSetting(u"s"_s, u"k"_s, u"default"_s), u"theirs"_s);
    EXPECT_EQ(borrowed.GetSetting(u"s"_s, u"other"_s, u"default"_s), u"default"_s);
    borrowed.SaveSetting(u"s"_s, u"k"_s, u"ours"_s);
    EXPECT_EQ(borrowed.GetSetting(u"s"_s, u"k"_s, u"default"_s), u"ours"_s);
    EXPECT_EQ(lender.GetSetting(u"s"_s, u"k"_s, {}), u"theirs"_s);
    EXPECT_TRUE(lender.written.isEmpty());
}
