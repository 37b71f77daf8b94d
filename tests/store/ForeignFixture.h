// What the tests of other programs' files share: real files where they lie beside the project, and changed copies.
#pragma once

#include "StoreFixture.h"
#include "support/Places.h"

#include <QFile>

class ForeignTest : public StoreTest
{
  protected:
    // A real file, or nothing where the samples are not there.
    [[nodiscard]] static QString sample(const QString &name)
    {
        const QString path = inSourceTree(QStringLiteral("../shared/mdb/") + name);
        return QFile::exists(path) ? path : QString();
    }
    [[nodiscard]] static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    // A file of that content; the next one takes its place.
    [[nodiscard]] QString written(const QByteArray &content) const
    {
        QFile file(pathOf(QStringLiteral("foreign.mdb")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        EXPECT_EQ(file.write(content), content.size());
        return file.fileName();
    }
    // All rows of a query as text: fields parted by "|", rows by line feeds.
    [[nodiscard]] QString rowsOf(const QString &file, const QString &statement)
    {
        using namespace Qt::StringLiterals;
        Recordset rows = mDatabase.GetRecordSetFromExternalDB(file, statement);
        return rows.isNothing() ? u"Nothing"_s : rows.GetString(u"|"_s, u"\n"_s, u"NULL"_s);
    }
    // All rows of a query.
    [[nodiscard]] std::vector<QVariantList> valuesOf(const QString &file, const QString &statement)
    {
        Recordset rows = mDatabase.GetRecordSetFromExternalDB(file, statement);
        EXPECT_FALSE(rows.isNothing()) << mLog.text();
        return rows.isNothing() || rows.Eof() ? std::vector<QVariantList>() : rows.GetRows();
    }
    [[nodiscard]] QList<int> kindsOf(const QString &file, const QString &statement)
    {
        Recordset rows = mDatabase.GetRecordSetFromExternalDB(file, statement);
        QList<int> kinds;
        for (int column = 0; column < rows.Fields().Count(); ++column)
            kinds.append(rows.Fields()[column].Type());
        return kinds;
    }

    cAdoMdb mDatabase{mLog};
};

#define SAMPLE(variable, name)                                                                                         \
    const QString variable = sample(name);                                                                             \
    if (variable.isEmpty())                                                                                            \
    GTEST_SKIP() << "the sample file is not here"
