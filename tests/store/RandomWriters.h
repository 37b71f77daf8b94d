// A table under everything that can happen to it: rows added, changed, removed and put in between, by this program and
// by another one, inside and outside of transactions that are kept or taken back, in one run and over several.
#pragma once

#include "StoreFixture.h"
#include "store/Transaction.h"

#include <functional>
#include <random>
#include <sqlite3.h>

class RandomWriters
{
  public:
    /// Works on `column` of `table`; `anyText` gives the texts that are written there.
    RandomWriters(std::unique_ptr<cAdoMdb> &database, QString table, QString column, unsigned seed,
                  std::function<QString(std::mt19937 &)> anyText)
        : mDatabase(database), mTable(std::move(table)), mColumn(std::move(column)), mAnyText(std::move(anyText)),
          mRandom(seed)
    {
        EXPECT_EQ(sqlite3_open(database->DatabasePath().toUtf8().constData(), &mOther), SQLITE_OK);
    }
    ~RandomWriters() { sqlite3_close(mOther); }
    RandomWriters(const RandomWriters &) = delete;
    RandomWriters &operator=(const RandomWriters &) = delete;

    [[nodiscard]] std::mt19937 &random() { return mRandom; }
    [[nodiscard]] bool inTransaction() const { return static_cast<bool>(mTransaction); }

    /// One thing happens. True when a new run begins: whoever keeps something in memory forgets it.
    [[nodiscard]] bool step()
    {
        const unsigned what = mRandom() % 100;
        if (what < 45)
            addRow(mAnyText(mRandom));
        else if (what < 60)
            changeTransaction();
        else if (what < 66)
            changeRow(mAnyText(mRandom));
        else if (what < 72)
            removeRows();
        else if (what < 97)
            othersWork();
        else
            return newRun();
        return false;
    }
    void addRow(const QString &text) { mDatabase->AddRecord({mColumn + rowMarker + text}, -1, mTable, rowMarker); }
    void finish() { mTransaction.reset(); }

  private:
    void changeTransaction()
    {
        if (!mTransaction)
            mTransaction = std::make_unique<Transaction>(*mDatabase);
        else if (mRandom() % 3 == 0)
            mTransaction.reset();
        else {
            EXPECT_TRUE(mTransaction->commit());
            mTransaction.reset();
        }
    }
    void changeRow(const QString &text)
    {
        Recordset rows = mDatabase->GetRecordset(QStringLiteral("SELECT * FROM ") + mTable);
        for (unsigned skipped = mRandom() % 20; skipped > 0 && !rows.Eof(); --skipped)
            rows.MoveNext();
        if (rows.Eof())
            return;
        rows.Fields()[mColumn].setValue(text);
        rows.Update();
    }
    void removeRows()
    {
        const bool all = mRandom() % 10 == 0;
        mDatabase->DeleteRecords(mTable, QStringLiteral("Index"), all ? QString() : anyRow(), true);
    }
    void othersWork()
    {
        if (mTransaction)
            return;
        const QString text = QStringLiteral("'%1'").arg(mAnyText(mRandom));
        const unsigned what = mRandom() % 20;
        if (what < 12)
            run(QStringLiteral("INSERT INTO %1(%2) VALUES(%3)").arg(mTable, mColumn, text));
        else if (what < 14)
            run(QStringLiteral("INSERT OR IGNORE INTO %1([Index],%2) VALUES(%3,%4)")
                    .arg(mTable, mColumn, anyRow(), text));
        else if (what < 16)
            run(QStringLiteral("UPDATE %1 SET %2=%3 WHERE [Index]=%4").arg(mTable, mColumn, text, anyRow()));
        else if (what < 17)
            run(QStringLiteral("UPDATE OR IGNORE %1 SET [Index]=%2 WHERE [Index]=%3").arg(mTable, anyRow(), anyRow()));
        else if (what < 19)
            run(QStringLiteral("DELETE FROM %1 WHERE [Index]=%2").arg(mTable, anyRow()));
        else
            run(QStringLiteral("UPDATE %1 SET Date='2024-01-01' WHERE [Index]=%2").arg(mTable, anyRow()));
    }
    void run(const QString &statement)
    {
        EXPECT_EQ(sqlite3_exec(mOther, statement.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK)
            << statement.toStdString() << ": " << sqlite3_errmsg(mOther);
    }
    [[nodiscard]] bool newRun()
    {
        mTransaction.reset();
        mDatabase->CloseConnection();
        EXPECT_TRUE(mDatabase->TestDatabase(true));
        return true;
    }
    [[nodiscard]] QString anyRow() { return QString::number(1 + mRandom() % 400); }

    std::unique_ptr<cAdoMdb> &mDatabase;
    QString mTable;
    QString mColumn;
    std::function<QString(std::mt19937 &)> mAnyText;
    std::mt19937 mRandom;
    std::unique_ptr<Transaction> mTransaction;
    sqlite3 *mOther = nullptr;
};
