// The list of tables and fields in its four forms.
#include "DataFixture.h"
#include "data/TableList.h"

using namespace Qt::StringLiterals;

namespace {
class TableListTest : public DataTest
{
  protected:
    TableListTest()
    {
        names.Tables_AddItem(u"One"_s);
        names.Fields_AddItem(u"Date"_s, 0, {});
        names.Fields_AddItem(u"Url-1"_s, 0, {});
    }
    [[nodiscard]] QByteArray list(int type)
    {
        PrintTablesAndFields(names, dialogs, pathOf(u"list.txt"_s), type, true);
        return bytes(pathOf(u"list.txt"_s));
    }
    cAdoMdb names{log};
};
} // namespace

TEST_F(TableListTest, EachFormEndsWithOneEmptyTable)
{
    EXPECT_EQ(list(3), "sDefArray$(0,0)= \"One\"\r\nsDefArray$(0,1)= \"Index\"\r\nsDefArray$(0,2)= \"Date\"\r\n"
                       "sDefArray$(0,3)= \"Url-1\"\r\nsDefArray$(1,0)= \"\"\r\n");
    EXPECT_EQ(list(4), "One\r\n     Index\r\n     Date\r\n     Url-1\r\n\r\n");
    EXPECT_EQ(list(5), "   Table:     One\r\n          Field:     Index\r\n          Field:     Date\r\n"
                       "          Field:     Url-1\r\n   Table:     \r\n");
    EXPECT_EQ(list(6), "[One]\r\nUrl-1\r\n[]\r\n");
    EXPECT_EQ(list(1), "");
}

TEST_F(TableListTest, TheReloadableFormIsReadBack)
{
    static_cast<void>(list(6));
    cAdoMdb read(log);
    read.LoadTableFieldListFile(pathOf(u"list.txt"_s));
    EXPECT_EQ(read.Tables_ListItem(0, {}), u"One"_s);
    EXPECT_EQ(read.Fields_ListItem(1, {}, 0, {}), u"Url-1"_s);
}

TEST_F(TableListTest, AFileThatIsThereIsAskedAboutAndAnEmptyNameEndsIt)
{
    writeFile(u"list.txt"_s, "mine");
    dialogs.answer = UserDialogs::Answer::No;
    PrintTablesAndFields(names, dialogs, pathOf(u"list.txt"_s), 4, false);
    EXPECT_EQ(bytes(pathOf(u"list.txt"_s)), "mine");
    ASSERT_EQ(dialogs.asked.size(), 1);
    EXPECT_EQ(dialogs.asked[0].text, u"\"%1\" exists.\r\n Overwrite existing file?"_s.arg(pathOf(u"list.txt"_s)));
    PrintTablesAndFields(names, dialogs, {}, 4, false);
    EXPECT_EQ(dialogs.asked.size(), 1);
    EXPECT_EQ(files(), QStringList{u"list.txt"_s});
}
