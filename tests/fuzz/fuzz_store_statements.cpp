// Builds every statement of the system around one hostile value, runs them all on a database with rows in every table,
// and holds the rows that the engine changes against those that must go. A difference ends the run.
#include "SystemStatements.h"
#include "store/sqlite/Connection.h"

#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {
class QuietLog : public ErrorReceiver
{
  public:
    void ErrorLogger(qint64, const QString &, const QString &, const QString &) override {}
};

[[noreturn]] void fail(const char *what, const QString &text)
{
    std::fprintf(stderr, "%s: %s\n", what, qUtf8Printable(text));
    std::abort();
}

// What the engine itself tells of the rows that change under the connection that was opened last. Its count of all
// changes proves that it has told of each: it does not tell of those of a table that is emptied at one stroke.
class ChangeWatch
{
  public:
    ChangeWatch() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(&ChangeWatch::opened)); }

    void begin()
    {
        sqlite3_update_hook(lastOpened, &ChangeWatch::changed, this);
        mTotal = sqlite3_total_changes(lastOpened);
    }

    // Since the last call these rows were removed, and nothing else has changed.
    void requireRemoved(const QString &table, const QList<qint64> &rows, const QString &text)
    {
        const int total = sqlite3_total_changes(lastOpened);
        if (mForeign || total - mTotal != rows.size() || mRemoved.size() != rows.size())
            fail("other rows changed", text);
        for (const qint64 row : rows) {
            if (!mRemoved.contains({table, row}))
                fail("a row was kept", text);
        }
        mTotal = total;
        mRemoved.clear();
    }

  private:
    static int opened(sqlite3 *handle, const char **, const void *)
    {
        lastOpened = handle;
        return SQLITE_OK;
    }
    static void changed(void *self, int what, const char *, const char *table, sqlite3_int64 row)
    {
        auto &watch = *static_cast<ChangeWatch *>(self);
        watch.mForeign |= what != SQLITE_DELETE;
        watch.mRemoved.append({QString::fromUtf8(table), row});
    }

    static inline sqlite3 *lastOpened = nullptr;
    QList<std::pair<QString, qint64>> mRemoved;
    int mTotal = 0;
    bool mForeign = false;
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
        schema = schemaVersion();
        for (const QStringList &table : LoadTblFldNames())
            fields[table[0]] = table;
        watch.begin();
    }
    [[nodiscard]] QStringList schemaVersion() const
    {
        return database.connection()->administerTexts("PRAGMA schema_version");
    }

    QTemporaryDir folder;
    QuietLog log;
    ChangeWatch watch;
    cAdoMdb database{log};
    SystemStatements::Picture rows;
    QStringList schema;
    QMap<QString, QStringList> fields;
};

// Runs all statements; gives the rows that are left.
SystemStatements::Picture run(World &world, const QString &value)
{
    SystemStatements::Picture expected = world.rows;
    for (const auto &statement : SystemStatements::with(value)) {
        static_cast<void>(world.database.GetRecordset(statement.text));
        const auto removed = SystemStatements::removedBy(statement, expected, value, world.fields[statement.table]);
        world.watch.requireRemoved(statement.table, removed, statement.text);
        for (const qint64 row : removed)
            expected[statement.table].remove(row);
    }
    return expected;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    static World world;
    static unsigned inputs = 0;
    constexpr unsigned inputsBetweenPictures = 200;
    const QString value = QString::fromUtf8(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const bool pictured = inputs++ % inputsBetweenPictures == 0;
    {
        const Transaction takenBack(world.database);
        const SystemStatements::Picture expected = run(world, value);
        // What the engine tells is itself held against all rows of all tables now and then.
        if (pictured && SystemStatements::pictureOf(world.database) != expected)
            fail("other rows changed", value);
    }
    if (world.schemaVersion() != world.schema)
        fail("the schema changed", value);
    if (pictured && SystemStatements::pictureOf(world.database) != world.rows)
        fail("rows were not taken back", value);
    return 0;
}
