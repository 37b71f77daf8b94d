// New names for rows, against the loop that they stand for: one name after the other until the table has it not.
#include "StoreFixture.h"
#include "store/MaskNames.h"
#include "store/Transaction.h"
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
        if (rows.Bof() && rows.Eof())
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
