// One open database file: its prepared statements, what is known of its tables, its transaction, and what a statement
// may do there. Held by everyone who still reads from it; the file is closed when the last one lets go. For one thread.
// Inside store/ only: the engine's own types stop here.
#pragma once

#include "store/sqlite/PlatformFiles.h"
#include "store/sqlite/SqliteErrors.h"
#include "store/sqlite/Statement.h"

#include <QHash>
#include <QStringList>
#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace SQLite {
class Database;
}

/// A column of a table as the file declares it.
struct ColumnInfo
{
    QString name;
    /// In brackets, ready to be put into a statement.
    std::string quoted;
    int kind = 0;
    /// Filled by the engine; nobody else may write it.
    bool autoIncrement = false;
};

/// What has been done to a table through the connection.
struct TableChanges
{
    /// Rows that were changed, removed or taken back.
    quint64 revision = 0;
    /// Rows that were added.
    quint64 additions = 0;
};

struct TableInfo
{
    /// As the file spells it.
    QString name;
    /// In brackets, ready to be put into a statement.
    std::string quoted;
    std::vector<ColumnInfo> columns;
    /// The word by which statements name a row's key: one that is no column of the table.
    std::string key = "rowid";
    /// Shared by all descriptions of the table; who writes counts here.
    std::shared_ptr<TableChanges> changes;

    /// The column of that name without regard to case, or -1.
    [[nodiscard]] int columnOf(QStringView columnName) const;
};

/// The number in a file's head that marks it as ours, and the version of what it holds.
constexpr qint32 applicationId = 0x54524C58;
constexpr qint32 schemaVersion = 1;

class Connection
{
  public:
    enum class Access {
        /// An existing file, to read and write. A file that may not be written is opened to read.
        Write,
        /// An existing file, to read only. Where the user may write it nothing is left beside it.
        Read,
        /// A file that is made now.
        Create,
        /// A private store that goes with the connection; it is kept on disk once it is large.
        Temporary
    };

    /// Opens a file. Errors: AdoError::Engine for a file that is missing, no database, damaged or locked.
    [[nodiscard]] static std::shared_ptr<Connection> open(const QString &path, Access access);
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    /// Makes the file the one that this program writes to: readers are not held up by a writer, what is committed is on
    /// the disk, and from now on the file must stay where it is. A file that cannot be written stays as it is.
    void prepareForWriting();

    /// A statement out of the cache. It must not outlive the connection.
    [[nodiscard]] Statement prepare(const std::string &text);

    /// The first `count` characters of a text in the row with that key, of which no more is read; "" where there is no
    /// text.
    [[nodiscard]] QString textBeginning(const TableInfo &table, const ColumnInfo &column, qint64 key, qsizetype count);

    /// Runs statements that only the store itself may run: schema, pragmas. No rows.
    void administer(const std::string &text);
    /// The rows' first column of such a statement, as text.
    [[nodiscard]] QStringList administerTexts(const std::string &text);

    /// The names of tables and views in the order of the catalog, those of the engine itself included on request.
    [[nodiscard]] QStringList tableNames(bool withEngineTables);
    /// The names of a table's columns in order, whatever table it is; none where it is not there.
    [[nodiscard]] QStringList columnNames(const QString &table);
    /// A table without regard to case; nothing where there is none, and for the engine's own.
    [[nodiscard]] std::shared_ptr<const TableInfo> table(const QString &name);
    /// The same; error AdoError::NoSuchTable.
    [[nodiscard]] std::shared_ptr<const TableInfo> requireTable(const QString &name);

    [[nodiscard]] bool isReadOnly() const { return mReadOnly; }
    [[nodiscard]] const QString &path() const { return mSteps.path(); }
    /// Its statements end with an error soon after `stop` has become true, which outlives it.
    void stopWhen(const std::atomic<bool> &stop);

    /// The row number of the last row that was inserted.
    [[nodiscard]] qint64 lastRow() const;

    /// The number of transactions, inner ones too, that were taken back.
    [[nodiscard]] quint64 rollBacks() const { return mRollBacks; }
    /// A number that changes when another program has changed the file. Inside a transaction of ours it stands still.
    [[nodiscard]] qint64 outsideVersion();

    [[nodiscard]] bool inTransaction() const;

    // Transactions, one inside another. Used by Transaction only.
    /// Waits that many milliseconds for another program that writes. Error AdoError::Engine where the file cannot be
    /// locked for writing.
    void begin(int patience = usualPatience);
    /// Error AdoError::Engine where the rows are not in the file at its place, or where a row of the transaction met a
    /// fault of the file; then nothing is kept.
    void commit();
    /// Does nothing where nothing is open.
    void rollBack() noexcept;
    /// Between these two every write is refused: for as long as a transaction stands that could not begin.
    void refuseWrites() { ++mRefusals; }
    void allowWrites() { --mRefusals; }
    /// Runs a statement that changes rows, and gives their number. Error AdoError::Engine where the engine itself has
    /// ended the transaction that is open, or where writes are refused: it would be written outside the transaction it
    /// belongs to. Outside a transaction the file must be at its place before and after it.
    int change(Statement &statement);
    /// Removes all rows of a table, and runs no trigger of it.
    void empty(const TableInfo &table);

    /// The first fault since the outermost transaction began.
    [[nodiscard]] StoreFault fault() const { return mSteps.firstFault(); }

    /// How long a step waits for another program that holds the file, in milliseconds.
    static constexpr int usualPatience = 3000;

  private:
    class Privilege;
    explicit Connection(std::unique_ptr<SQLite::Database> database, const QString &path, Access access);
    void configure(Access access);
    [[nodiscard]] std::shared_ptr<const TableInfo> readTable(const QString &name);
    [[nodiscard]] bool isUtf8();
    [[nodiscard]] QString wholeText(const TableInfo &table, const ColumnInfo &column, qint64 key);
    void beginOutermost(int patience);
    void commitOutermost();
    void requireLiveTransaction() const;
    [[noreturn]] void fail(StoreFault fault, const QString &words);
    void requireInPlace();
    static int authorize(void *self, int action, const char *first, const char *second, const char *database,
                         const char *trigger);

    std::unique_ptr<SQLite::Database> mDatabase;
    EngineSteps mSteps;
    // Each file that belongs to the database, as it was when this program began to write to it.
    std::vector<std::pair<QByteArray, PlatformFiles::Identity>> mPlace;
    StatementCache mStatements;
    QHash<QString, std::shared_ptr<const TableInfo>> mTables;
    QHash<QString, std::shared_ptr<TableChanges>> mChanges;
    std::optional<bool> mUtf8;
    quint64 mRollBacks = 0;
    qint64 mOutsideVersion = -1;
    int mDepth = 0;
    int mRefusals = 0;
    bool mPrivileged = false;
    bool mReadOnly = false;
};
