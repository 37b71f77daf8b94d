// What the tests of faults share: files of any content, and rights that count.
#pragma once

#include "StoreFixture.h"
#include "store/AdoErrors.h"
#include "store/Transaction.h"
#include "support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <unistd.h>

class FaultTest : public StoreTest
{
  protected:
    void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    // A closed database with that many rows in Block.
    [[nodiscard]] QString filled(int rows)
    {
        auto database = created();
        Transaction transaction(*database);
        for (int row = 0; row < rows; ++row)
            add(*database, QStringLiteral("Block"), {{QLatin1StringView("UrlsContent"), QString(200, u'x')}});
        EXPECT_TRUE(transaction.commit());
        return database->DatabasePath();
    }
    // The file fails its test, with an error in the log, and is not changed.
    void expectRefused(const QString &name)
    {
        const QByteArray before = read(pathOf(name));
        auto database = declared(name);
        mLog.entries.clear();
        EXPECT_FALSE(database->TestDatabase(true));
        EXPECT_TRUE(mLog.holds(AdoError::Engine, QLatin1StringView("TestDatabase"))) << mLog.text();
        EXPECT_FALSE(
            add(*database, QStringLiteral("Block"), {{QLatin1StringView("UrlsContent"), QStringLiteral("x")}}));
        EXPECT_FALSE(database->GetRecordset(QStringLiteral("SELECT * FROM Block")).isOpen());
        EXPECT_EQ(read(pathOf(name)), before);
    }
    // Stands for a user whom the rights of files concern; the superuser passes over them.
    [[nodiscard]] static auto asAnotherUser()
    {
        constexpr uid_t nobody = 65534;
        const uid_t before = geteuid();
        EXPECT_EQ(seteuid(before == 0 ? nobody : before), 0);
        return qScopeGuard([before] { EXPECT_EQ(seteuid(before), 0); });
    }
    void openToAll() const
    {
        QFile::setPermissions(mFolder.path(), QFile::Permissions(0x7777));
        for (const QString &name : QDir(mFolder.path()).entryList(QDir::Files))
            QFile::setPermissions(pathOf(name), QFile::Permissions(0x6666));
    }
};
