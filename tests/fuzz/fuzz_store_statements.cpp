// Builds every statement of the system around one hostile value, runs them all on a database with rows in every table,
// and compares all rows of all tables with what must be left. A difference ends the run.
#include "SystemStatements.h"
#include "store/Transaction.h"

#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {
class QuietLog : public ErrorReceiver
{
  public:
    void ErrorLogger(qint64, const QString &, const QString &, const QString &) override {}
};

// The database is made once; each input's changes are taken back.
struct World
{
    World()
    {
        database.setDatabasePath(folder.filePath(u"fuzz.mdb"_s));
        declareSchema(database);
        if (!database.CreateDatabase(true))
            std::abort();
        SystemStatements::fillAll(database);
        rows = SystemStatements::pictureOf(database);
        for (const QStringList &table : LoadTblFldNames())
            fields[table[0]] = table;
    }

    QTemporaryDir folder;
    QuietLog log;
    cAdoMdb database{log};
    SystemStatements::Picture rows;
    QMap<QString, QStringList> fields;
};

void requireEqual(const SystemStatements::Picture &found, const SystemStatements::Picture &expected,
                  const QString &text)
{
    if (found == expected)
        return;
    std::fprintf(stderr, "other rows changed: %s\n", qUtf8Printable(text));
    std::abort();
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    static World world;
    const QString value = QString::fromUtf8(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const Transaction takenBack(world.database);
    SystemStatements::Picture expected = world.rows;
    qsizetype queries = 0;
    for (const auto &statement : SystemStatements::with(value)) {
        static_cast<void>(world.database.GetRecordset(statement.text));
        expected = SystemStatements::expectedAfter(expected, statement, value, world.fields[statement.table]);
        if (statement.removes || ++queries == SystemStatements::queryCount)
            requireEqual(SystemStatements::pictureOf(world.database), expected, statement.text);
    }
    return 0;
}
