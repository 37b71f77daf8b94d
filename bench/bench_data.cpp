// The grid, exports and imports: a million e-mail rows looked at, filtered, deleted from and exported in every form;
// 100,000 rows of each table imported, against the same rows written by bare prepared statements. Each figure stands
// beside its mark. Time is wall time; TRAWLEX_BENCH_ROWS gives another number of rows for the first part, and
// TRAWLEX_BENCH_ACCESS an Access file whose texts are imported too.
#include "app/QtEventPump.h"
#include "app/frmSearch.h"
#include "data/DataView.h"
#include "data/Exports.h"
#include "data/GridSources.h"
#include "data/ImportLists.h"
#include "data/Imports.h"
#include "store/Schema.h"
#include "support/Fakes.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <malloc.h>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {
void report(const QString &what, double value, const char *unit, double mark)
{
    std::printf("| %-44s | %10.1f %s |", qPrintable(what), value, unit);
    if (mark > 0)
        std::printf(" %g %s | %s |", mark, unit, value <= mark ? "met" : "MISSED");
    std::printf("\n");
    std::fflush(stdout);
}

template <class Body> double milliseconds(Body &&body)
{
    QElapsedTimer timer;
    timer.start();
    body();
    return double(timer.nsecsElapsed()) / 1e6;
}

/// The memory of this process in MB: "VmRSS" is what is in use now, "VmHWM" the most since forgetPeak().
double memory(const char *kind)
{
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    constexpr double kilobytes = 1024;
    const QByteArray text = file.readAll();
    const qsizetype number = text.indexOf(QByteArray(kind) + ':') + qsizetype(qstrlen(kind)) + 1;
    return text.mid(number, text.indexOf("kB", number) - number).trimmed().toDouble() / kilobytes;
}

/// What is free already goes back to the system, so that what is taken from now on can be seen.
void forgetPeak()
{
    malloc_trim(0);
    QFile file(u"/proc/self/clear_refs"_s);
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

struct Desk
{
    explicit Desk(const QString &folder)
    {
        database.set(std::make_unique<cAdoMdb>(log));
        database->setDatabasePath(folder + u"/Trawlex-0.mdb"_s);
        declareSchema(*database);
        if (!database->CreateDatabase(true))
            std::exit(1);
    }
    frmSearch form;
    RecordingLog log;
    QtEventPump pump;
    FakeDialogs dialogs;
    MemorySettings settings;
    CountingStates states;
    Tips tips{form.options.chkSMV(0)};
    StatusLine status{form.frame.picStatus, tips};
    Context context{log, status, states, dialogs, settings, tips};
    DatabaseHolder database;
    BrowserHolder browser;
    Navigation navigation{context, form.browser, browser};
    LongWork work{pump, status};
    DataView view{context, form.data, form.lists.cboMNList, form.saved.cboANList, database};
    Exports exports{context, form.data, form.places, form.options.chkSMD(0), database, navigation, work};
    Imports imports{log, database, work};
};

void require(int code, sqlite3 *handle)
{
    if (code == SQLITE_OK || code == SQLITE_DONE || code == SQLITE_ROW)
        return;
    std::fprintf(stderr, "bench: %s\n", sqlite3_errmsg(handle));
    std::exit(1);
}

/// Rows written by one prepared statement in one transaction, and nothing else.
void insertBarely(const QString &path, const QString &table, const QStringList &columns, int rows, int first = 0)
{
    sqlite3 *handle = nullptr;
    require(sqlite3_open(path.toUtf8().constData(), &handle), handle);
    require(sqlite3_exec(handle, "PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; BEGIN", nullptr, nullptr, nullptr),
            handle);
    QStringList places(columns.size(), u"?"_s);
    const QString text = u"INSERT INTO [%1]([%2]) VALUES(%3)"_s.arg(table, columns.join("],["_L1), places.join(u','));
    sqlite3_stmt *statement = nullptr;
    require(sqlite3_prepare_v2(handle, text.toUtf8().constData(), -1, &statement, nullptr), handle);
    for (int row = first; row < first + rows; ++row) {
        for (int i = 0; i < columns.size(); ++i) {
            const bool date = columns[i] == "Date"_L1, number = columns[i].endsWith("Index"_L1);
            const QByteArray value =
                date     ? QByteArray("2024-05-01")
                : number ? QByteArray::number(row % 1000)
                         : "http://www.site" + QByteArray::number(row) + ".com/" + columns[i].toUtf8() + ".htm";
            if (number)
                require(sqlite3_bind_int(statement, i + 1, row % 1000), handle);
            else
                require(sqlite3_bind_text(statement, i + 1, value.constData(), int(value.size()), SQLITE_TRANSIENT),
                        handle);
        }
        require(sqlite3_step(statement), handle);
        require(sqlite3_reset(statement), handle);
    }
    sqlite3_finalize(statement);
    require(sqlite3_exec(handle, "COMMIT", nullptr, nullptr, nullptr), handle);
    sqlite3_close(handle);
}

void measureGrid(Desk &desk, int rows)
{
    DataBoxes &data = desk.form.data;
    desk.view.LoadTableSelectData();
    const double before = memory("VmRSS");
    const auto firstRows = [&] {
        for (int row = 0; row < 40; ++row)
            static_cast<void>(data.fxgTrawlex.textMatrix(row, 3));
    };
    // Until other rows are on show, and have been read.
    const auto untilOthers = [&](auto &&action) {
        return milliseconds([&] {
            const auto standing = data.fxgTrawlex.dataSource();
            action();
            while (data.fxgTrawlex.dataSource() == standing)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
            firstRows();
        });
    };
    const auto waitForRows = [&](int wanted) {
        for (const QDeadlineTimer patience(60'000); data.fxgTrawlex.rows() != wanted;) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
            if (patience.hasExpired()) {
                std::fprintf(stderr, "bench: %d rows instead of %d\n", data.fxgTrawlex.rows(), wanted);
                std::exit(1);
            }
        }
    };
    report(u"choosing the table, first rows"_s, milliseconds([&] {
               data.cboDBTables.setListIndex(1);
               firstRows();
           }),
           "ms", 100);
    report(u"scrolling to the end"_s, milliseconds([&] {
               const int last = data.fxgTrawlex.rows() - 1;
               for (int row = last - 40; row <= last; ++row)
                   static_cast<void>(data.fxgTrawlex.textMatrix(row, 3));
           }),
           "ms", 100);
    for (int click = 0; click < 3; ++click) // up, down, as they stand
        report(u"a click on the head of the addresses"_s, untilOthers([&] { data.fxgTrawlex.clickHead(3); }), "ms",
               300);
    data.cboDBFields.setListIndex(3);
    for (const QString &text : {u"site12345"_s, u"com"_s, u"nowhere"_s})
        report("a keystroke, filter \""_L1 + text + '"'_L1, untilOthers([&] { data.txtDBQuery.setText(text); }), "ms",
               300);
    data.txtDBQuery.setText({});
    waitForRows(rows);
    report(u"memory above the empty grid"_s, memory("VmRSS") - before, "MB", 50);
    data.fxgTrawlex.select(0, 0, {100, 0, 10'099, 0});
    report(u"deleting 10,000 selected rows"_s, milliseconds([&] { desk.view.deleteSelected(); }), "ms", 2000);
    waitForRows(rows - 10'000);
}

void measureExports(Desk &desk, const QString &folder)
{
    for (const ExportKind &kind : ExportKinds::all) {
        forgetPeak();
        const double before = memory("VmRSS");
        const QString path = folder + u"/out."_s + kind.word;
        const double time = milliseconds([&] {
            if (!desk.exports.exportTable({u"EmailAddress"_s, {}, {}}, kind, path))
                std::exit(1);
        });
        report("export: "_L1 + kind.word, time, "ms", kind.format == DataFormat::Comma ? 5000 : 0);
        report(u"   memory above what it was, at most"_s, memory("VmHWM") - before, "MB", 50);
        QFile::remove(path);
    }
}

using ImportAll = QString (Imports::*)(const QString &path);

void measureImport(const ImportedTable &table, ImportAll importAll)
{
    constexpr int rows = 100'000;
    QTemporaryDir folder, source, bare;
    Desk target(folder.path()), from(source.path()), mark(bare.path());
    insertBarely(from.database->DatabasePath(), table.name, table.columns, rows);
    const double told = milliseconds([&] {
        if (!(target.imports.*importAll)(from.database->DatabasePath()).isEmpty())
            std::exit(1);
    });
    const double plain =
        milliseconds([&] { insertBarely(mark.database->DatabasePath(), table.name, table.columns, rows); });
    report("import: "_L1 + table.name, told, "ms", 0);
    report(u"   times bare inserts"_s, told / plain, "x", 2);
}

void measureImports()
{
    for (const ImportedTable &table : ImportLists::data()) {
        // The others of its letters are as the first.
        if (table.name.back() <= u'A' || table.name.back() > u'E')
            measureImport(table, &Imports::ImportAllData);
    }
    for (const ImportedTable &table : ImportLists::settings())
        measureImport(table, &Imports::ImportAllSettings);
}

/// Every field of every table of a file that another program has made, as mail addresses. Fields that hold no text are
/// refused.
void measureAccess()
{
    const QString path = qEnvironmentVariable("TRAWLEX_BENCH_ACCESS");
    if (path.isEmpty()) {
        std::printf("import from an Access file: skipped, TRAWLEX_BENCH_ACCESS names none\n");
        return;
    }
    QTemporaryDir folder;
    Desk target(folder.path());
    const double time = milliseconds([&] {
        for (const QStringList &names : target.database->GetExternalTablesFields(path)) {
            for (const QString &field : names.mid(1))
                std::ignore =
                    target.imports.ImportField(path, names.constFirst(), field, u"EmailAddress"_s, u"Address"_s);
        }
    });
    const auto rows = target.database->GetRecordset(u"SELECT * FROM EmailAddress"_s).RecordCount();
    report(u"import from an Access file, %1 texts"_s.arg(rows), time, "ms", 0);
    if (rows == 0)
        std::exit(1);
}

/// How long the event loop is kept from its work at most, while something else is done.
class Freeze
{
  public:
    Freeze()
    {
        QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this] { beat(); });
        mClock.start();
        mTimer.start(10);
    }
    [[nodiscard]] double longest()
    {
        beat();
        return double(mLongest) / 1e6;
    }

  private:
    void beat()
    {
        mLongest = std::max(mLongest, mClock.nsecsElapsed() - std::exchange(mBefore, mClock.nsecsElapsed()));
    }

    QElapsedTimer mClock;
    QTimer mTimer;
    qint64 mBefore = 0, mLongest = 0;
};

/// As the window imports: into a table that has rows, with the status line told how far it is.
void measureFreeze()
{
    constexpr int rows = 100'000;
    for (const ImportedTable &table : ImportLists::data()) {
        if (table.name != "SiteSummary"_L1 && table.name != "EmailAddress"_L1)
            continue;
        QTemporaryDir folder, source;
        Desk target(folder.path()), from(source.path());
        insertBarely(from.database->DatabasePath(), table.name, table.columns, rows);
        insertBarely(target.database->DatabasePath(), table.name, table.columns, rows, rows);
        Freeze freeze;
        const double whole = milliseconds([&] {
            target.work.run(u"Importing"_s,
                            [&] { std::ignore = target.imports.ImportAllData(from.database->DatabasePath()); });
        });
        report("longest freeze while importing "_L1 + table.name, freeze.longest(), "ms", 100);
        report(u"   of"_s, whole, "ms", 0);
    }
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    bool wanted = false;
    const int given = qEnvironmentVariableIntValue("TRAWLEX_BENCH_ROWS", &wanted);
    const int rows = wanted ? given : 1'000'000;
    {
        QTemporaryDir folder;
        Desk desk(folder.path());
        insertBarely(desk.database->DatabasePath(), u"EmailAddress"_s,
                     {u"Date"_s, u"SSIndex"_s, u"Address"_s, u"Url"_s}, rows);
        std::printf("%d rows of EmailAddress\n", rows);
        measureGrid(desk, rows);
        measureExports(desk, folder.path());
    }
    std::printf("100000 rows into each table\n");
    measureImports();
    measureAccess();
    measureFreeze();
}
