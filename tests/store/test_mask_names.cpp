// New names for rows, against the loop that they stand for: one name after the other until the table has it not.
#include "RandomWriters.h"
#include "store/MaskNames.h"
#include "store/sqlite/Connection.h"
#include "util/Incr.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {
const QString table = u"PassUrlsA"_s;
const QString start = u"PassUrl-99"_s;

QString plainLoop(cAdoMdb &database)
{
    QString name = start;
    for (;;) {
        name = cUtility::Incr(name, 4, false, 1, u"", u"1", u"", false);
        const Recordset rows =
            database.GetRecordset("SELECT MaskName FROM "_L1 + table + " WHERE MaskName='"_L1 + name + u'\'');
        if (rows.isEmpty())
            return name;
    }
}

class MaskNamesTest : public StoreTest
{
  protected:
    void addRow(const QString &name) { add(*mDatabase, table, {{"MaskName"_L1, name}}); }
    [[nodiscard]] QString find()
    {
        const QString found = mNames.find(*mDatabase, table, start);
        EXPECT_EQ(found, plainLoop(*mDatabase));
        return found;
    }

    std::unique_ptr<cAdoMdb> mDatabase = created();
    NewMaskNames mNames;
};
} // namespace

TEST_F(MaskNamesTest, TheFirstNameIsTheOneBehindTheStart)
{
    EXPECT_EQ(find(), u"PassUrl-100"_s);
    EXPECT_EQ(find(), u"PassUrl-100"_s) << "a name that was not used stays free";
    addRow(u"PassUrl-100"_s);
    EXPECT_EQ(find(), u"PassUrl-101"_s);
}

TEST_F(MaskNamesTest, ANameThatBecomesFreeIsGivenAgain)
{
    for (const auto *name : {u"PassUrl-100", u"PassUrl-101", u"PassUrl-102"})
        addRow(QString::fromUtf16(name));
    EXPECT_EQ(find(), u"PassUrl-103"_s);
    mDatabase->DeleteRecords(table, u"MaskName"_s, u"PassUrl-101"_s, false);
    EXPECT_EQ(find(), u"PassUrl-101"_s);
}

TEST_F(MaskNamesTest, NamesOfATransactionThatIsTakenBackAreFreeAgain)
{
    EXPECT_EQ(find(), u"PassUrl-100"_s);
    {
        const Transaction transaction(*mDatabase);
        addRow(u"PassUrl-100"_s);
        addRow(u"passurl-101"_s);
        EXPECT_EQ(find(), u"PassUrl-102"_s) << "case does not matter";
    }
    EXPECT_EQ(find(), u"PassUrl-100"_s);
}

TEST_F(MaskNamesTest, WhateverHappensToTheTableTheAnswerIsThatOfTheLoop)
{
    std::mt19937 random(20261120);
    for (int i = 0; i < 400; ++i) {
        switch (random() % 4) {
        case 0:
        case 1:
            addRow(find());
            break;
        case 2:
            addRow(u"PassUrl-%1"_s.arg(100 + random() % 60));
            break;
        default:
            mDatabase->DeleteRecords(table, u"MaskName"_s, u"PassUrl-%1"_s.arg(100 + random() % 60), false);
        }
        ASSERT_FALSE(find().isEmpty());
    }
}

TEST_F(MaskNamesTest, WhoeverWritesTheAnswerIsThatOfTheLoop)
{
    const auto anyName = [](std::mt19937 &random) {
        static const QStringList forms{u"PassUrl-%1"_s, u"PASSURL-%1"_s, u"PassUrl-0%1"_s, u"PassUrl-%1x"_s, u""_s};
        const unsigned form = random() % 12;
        QString name = forms[form < 8 ? 0 : form - 8];
        return name.replace("%1"_L1, QString::number(95 + random() % 60));
    };
    for (unsigned seed = 0; seed < 3; ++seed) {
        mDatabase = created(u"random-%1.mdb"_s.arg(seed));
        auto names = std::make_unique<NewMaskNames>();
        RandomWriters writers(mDatabase, table, u"MaskName"_s, seed, anyName);
        for (int step = 0; step < 500; ++step) {
            if (writers.step())
                names = std::make_unique<NewMaskNames>();
            const QString found = names->find(*mDatabase, table, start);
            ASSERT_EQ(found, plainLoop(*mDatabase)) << "seed " << seed << ", step " << step;
            if (writers.random()() % 2 == 0)
                writers.addRow(found);
        }
    }
}

TEST_F(MaskNamesTest, ALaterRunGoesOnWhereTheLastOneEnded)
{
    const auto addRows = [&](int first, int count) {
        Transaction rows(*mDatabase);
        for (int number = first; number < first + count; ++number)
            addRow(u"PassUrl-%1"_s.arg(number));
        EXPECT_EQ(mNames.find(*mDatabase, table, start), u"PassUrl-%1"_s.arg(first + count));
        EXPECT_TRUE(rows.commit());
    };
    addRows(100, 3000);
    addRows(3100, 50);
    mDatabase->CloseConnection();
    ASSERT_TRUE(mDatabase->TestDatabase(true)) << "the mark is no table of the user's";
    const auto marks = mDatabase->connection()->administerTexts("SELECT Value FROM SysGrowthMarks");
    EXPECT_EQ(marks, QStringList{u"PassUrl-3100"_s}) << "a mark is not written for each name";
    NewMaskNames later;
    EXPECT_EQ(later.find(*mDatabase, table, start), u"PassUrl-3150"_s);
    mDatabase->DeleteRecords(table, u"MaskName"_s, u"PassUrl-200"_s, false);
    EXPECT_EQ(later.find(*mDatabase, table, start), u"PassUrl-200"_s);
    EXPECT_EQ(NewMaskNames().find(*mDatabase, table, start), u"PassUrl-200"_s);
}

TEST_F(MaskNamesTest, TwoProgramsNeverGiveTheSameName)
{
    auto other = declared(u"Trawlex-0.mdb"_s);
    ASSERT_TRUE(other->TestDatabase(true));
    NewMaskNames otherNames;
    std::mt19937 random(3);
    for (int row = 0; row < 300; ++row) {
        const bool first = random() % 3 != 0;
        cAdoMdb &database = first ? *mDatabase : *other;
        Transaction transaction(database);
        const QString name = (first ? mNames : otherNames).find(database, table, start);
        ASSERT_EQ(name, u"PassUrl-%1"_s.arg(100 + row));
        add(database, table, {{"MaskName"_L1, name}});
        ASSERT_TRUE(transaction.commit());
    }
}

TEST_F(MaskNamesTest, ANumberMayStandAnywhereInTheStart)
{
    for (const auto *name : {u"a100-x", u"A101-X", u"a0102-x", u"a102", u"a-102-x"})
        addRow(QString::fromUtf16(name));
    MaskNames names(*mDatabase, table, u"a99-x"_s);
    EXPECT_EQ(names.next(), u"a102-x"_s);
    EXPECT_EQ(names.next(), u"a103-x"_s);
    EXPECT_EQ(MaskNames(*mDatabase, table, u"b"_s).next(), u"b0"_s);
}
