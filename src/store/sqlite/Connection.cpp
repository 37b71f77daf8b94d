#include "store/sqlite/Connection.h"
#include "store/StoredText.h"
#include "store/rows/ColumnKinds.h"
#include "store/sql/SqlTranslator.h"
#include "store/sqlite/LikeFunction.h"
#include "store/sqlite/OpenFile.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <SQLiteCpp/Database.h>
#include <algorithm>
#include <array>
#include <cstring>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {
// The file itself, and the log beside it that holds what was committed last.
constexpr std::array filesWithRows{""_L1, "-wal"_L1};

constexpr std::array allowedFunctions{"like", "max", "min", "count"};

bool isEngineName(const char *name)
{
    return name != nullptr && sqlite3_strnicmp(name, "sqlite_", 7) == 0;
}

bool isAllowedFunction(const char *name)
{
    return name != nullptr && std::any_of(allowedFunctions.begin(), allowedFunctions.end(),
                                          [name](const char *allowed) { return sqlite3_stricmp(name, allowed) == 0; });
}
} // namespace

int TableInfo::columnOf(QStringView columnName) const
{
    // Nearly all names are spelled as the file spells them.
    auto found = std::find_if(columns.begin(), columns.end(),
                              [columnName](const ColumnInfo &column) { return columnName == column.name; });
    if (found == columns.end())
        found = std::find_if(columns.begin(), columns.end(), [columnName](const ColumnInfo &column) {
            return columnName.compare(column.name, Qt::CaseInsensitive) == 0;
        });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

// While one stands, the store's own statements may do what queries may not.
class Connection::Privilege
{
  public:
    explicit Privilege(Connection &connection) : mConnection(connection), mBefore(connection.mPrivileged)
    {
        mConnection.mPrivileged = true;
    }
    ~Privilege() { mConnection.mPrivileged = mBefore; }
    Privilege(const Privilege &) = delete;
    Privilege &operator=(const Privilege &) = delete;

  private:
    Connection &mConnection;
    bool mBefore;
};

std::shared_ptr<Connection> Connection::open(const QString &path, Access access)
{
    const QString place = path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
    return openingStep(place, [&] {
        // The constructor is private: nobody makes a connection without the settings that keep it safe.
        return std::shared_ptr<Connection>(new Connection(openDatabaseFile(path, access), place, access));
    });
}

Connection::Connection(std::unique_ptr<SQLite::Database> database, const QString &path, Access access)
    : mDatabase(std::move(database)), mSteps(mDatabase->getHandle(), path)
{
    mReadOnly = access == Access::Read || sqlite3_db_readonly(mDatabase->getHandle(), "main") == 1;
    configure(access);
}

Connection::~Connection()
{
    mStatements.clear();
}

void Connection::configure(Access access)
{
    sqlite3 *handle = mDatabase->getHandle();
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    // A word in double quotes is a name or nothing; the engine must not take an unknown one for a text.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    installLike(handle);
    sqlite3_set_authorizer(handle, &Connection::authorize, this);
    if (access == Access::Read)
        administer("PRAGMA query_only=ON");
    // A private store is never read again after a fault, so nothing is spent on surviving one.
    if (access == Access::Temporary)
        administer("PRAGMA synchronous=OFF; PRAGMA journal_mode=OFF");
}

void Connection::prepareForWriting()
{
    if (mReadOnly)
        return;
    // Where another program stands in the way the file keeps the journal that it has, which is as safe.
    try {
        administer("PRAGMA journal_mode=WAL");
    } catch (const RuntimeError &) {
    }
    administer("PRAGMA synchronous=FULL; PRAGMA cache_size=-8000; PRAGMA schema_version");
    mSteps.forgetFaults();
    mPlace.clear();
    for (const auto &ending : filesWithRows) {
        const QByteArray file = QFile::encodeName(mSteps.path() + ending);
        if (const auto identity = PlatformFiles::identityOf(file))
            mPlace.emplace_back(file, *identity);
    }
}

int Connection::authorize(void *self, int action, const char *first, const char *second, const char *, const char *)
{
    if (static_cast<Connection *>(self)->mPrivileged)
        return SQLITE_OK;
    switch (action) {
    case SQLITE_SELECT:
    case SQLITE_TRANSACTION:
    case SQLITE_SAVEPOINT:
        return SQLITE_OK;
    case SQLITE_READ:
    case SQLITE_INSERT:
    case SQLITE_UPDATE:
    case SQLITE_DELETE:
        return isEngineName(first) ? SQLITE_DENY : SQLITE_OK;
    case SQLITE_FUNCTION:
        return isAllowedFunction(second) ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_PRAGMA:
        return std::strcmp(first, "data_version") == 0 ? SQLITE_OK : SQLITE_DENY;
    default:
        return SQLITE_DENY;
    }
}

Statement Connection::prepare(const std::string &text)
{
    return {mStatements, mSteps, text};
}

bool Connection::isUtf8()
{
    if (!mUtf8)
        mUtf8 = administerTexts("PRAGMA encoding") == QStringList{u"UTF-8"_s};
    return *mUtf8;
}

QString Connection::wholeText(const TableInfo &table, const ColumnInfo &column, qint64 key)
{
    Statement row = prepare("SELECT " + column.quoted + " FROM " + table.quoted + " WHERE " + table.key + "=?1");
    return row.bind(1, key).step() ? row.value(0).toString() : QString();
}

QString Connection::textBeginning(const TableInfo &table, const ColumnInfo &column, qint64 key, qsizetype count)
{
    constexpr qsizetype longestCharacter = 3; // of one unit, in bytes
    if (!isUtf8())
        return wholeText(table, column, key).left(count);
    sqlite3_blob *text = nullptr;
    const int code = sqlite3_blob_open(mDatabase->getHandle(), "main", table.name.toUtf8().constData(),
                                       column.name.toUtf8().constData(), key, 0, &text);
    const std::unique_ptr<sqlite3_blob, int (*)(sqlite3_blob *)> closer(text, &sqlite3_blob_close);
    // No such row, or no text in it.
    if (code == SQLITE_ERROR)
        return {};
    if (code != SQLITE_OK)
        mSteps.raise(code);
    QByteArray bytes(std::min<qsizetype>(sqlite3_blob_bytes(text), (count + 1) * longestCharacter), Qt::Uninitialized);
    if (const int read = sqlite3_blob_read(text, bytes.data(), static_cast<int>(bytes.size()), 0); read != SQLITE_OK)
        mSteps.raise(read);
    return storedText(bytes).left(count);
}

void Connection::administer(const std::string &text)
{
    const Privilege privilege(*this);
    mStatements.clear();
    mTables.clear();
    mSteps.run([&] { mDatabase->exec(text); });
}

void Connection::empty(const TableInfo &table)
{
    // With a trigger the engine would remove row by row what it can let go at one stroke.
    sqlite3 *handle = mDatabase->getHandle();
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    const auto restore = qScopeGuard([&] { sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 1, nullptr); });
    Statement statement = prepare("DELETE FROM " + table.quoted);
    change(statement);
}

QStringList Connection::administerTexts(const std::string &text)
{
    const Privilege privilege(*this);
    Statement rows = prepare(text);
    QStringList texts;
    while (rows.step())
        texts.append(rows.text(0));
    return texts;
}

QStringList Connection::tableNames(bool withEngineTables)
{
    QStringList names = administerTexts("SELECT name FROM sqlite_schema WHERE type IN ('table','view') ORDER BY rowid");
    if (!withEngineTables)
        names.removeIf([](const QString &name) { return isEngineName(name.toUtf8().constData()); });
    return names;
}

QStringList Connection::columnNames(const QString &table)
{
    const auto info = readTable(table);
    QStringList names;
    if (info)
        std::transform(info->columns.begin(), info->columns.end(), std::back_inserter(names),
                       [](const ColumnInfo &column) { return column.name; });
    return names;
}

std::shared_ptr<const TableInfo> Connection::table(const QString &name)
{
    // Each spelling that is in use has an entry of its own.
    const auto known = mTables.constFind(name);
    if (known != mTables.constEnd())
        return *known;
    if (isEngineName(name.toUtf8().constData()))
        return {};
    auto info = readTable(name);
    if (info)
        mTables.insert(name, info);
    return info;
}

std::shared_ptr<const TableInfo> Connection::requireTable(const QString &name)
{
    auto info = table(name);
    if (!info)
        throw AdoError::error(AdoError::NoSuchTable);
    return info;
}

std::shared_ptr<const TableInfo> Connection::readTable(const QString &name)
{
    const Privilege privilege(*this);
    auto info = std::make_shared<TableInfo>();
    {
        Statement row = prepare("SELECT name FROM sqlite_schema WHERE type IN ('table','view') AND name=?1 "
                                "COLLATE NOCASE");
        row.bind(1, name);
        if (!row.step())
            return {};
        info->name = row.text(0);
        info->quoted = bracketed(info->name);
    }
    Statement columns = prepare("SELECT name, type, pk FROM pragma_table_info(?1)");
    columns.bind(1, info->name);
    while (columns.step()) {
        const std::string declared = columns.text(1).toStdString();
        const bool key = columns.integer(2) != 0 && sqlite3_stricmp(declared.c_str(), "INTEGER") == 0;
        info->columns.push_back({columns.text(0), bracketed(columns.text(0)), kindOfDeclaredType(declared), key});
    }
    auto &changes = mChanges[info->name];
    if (!changes)
        changes = std::make_shared<TableChanges>();
    info->changes = changes;
    for (const char *word : {"rowid", "_rowid_", "oid"}) {
        info->key = word;
        if (info->columnOf(QString::fromLatin1(word)) < 0)
            break;
    }
    return info;
}

qint64 Connection::lastRow() const
{
    return mDatabase->getLastInsertRowid();
}

qint64 Connection::outsideVersion()
{
    if (mOutsideVersion < 0 || !inTransaction()) {
        Statement version = prepare("PRAGMA data_version");
        mOutsideVersion = version.step() ? version.integer(0) : 0;
    }
    return mOutsideVersion;
}

void Connection::stopWhen(const std::atomic<bool> &stop)
{
    constexpr int stepsPerLook = 1000; // of the engine's own machine
    const auto stops = [](void *wish) { return static_cast<const std::atomic<bool> *>(wish)->load() ? 1 : 0; };
    sqlite3_progress_handler(mDatabase->getHandle(), stepsPerLook, stops, const_cast<std::atomic<bool> *>(&stop));
}

bool Connection::inTransaction() const
{
    return sqlite3_get_autocommit(mDatabase->getHandle()) == 0;
}

void Connection::begin(int patience)
{
    if (mDepth == 0 && mRefusals == 0)
        mSteps.forgetFaults();
    requireLiveTransaction();
    if (mDepth == 0)
        beginOutermost(patience);
    else
        static_cast<void>(prepare("SAVEPOINT inner_work").run());
    ++mDepth;
}

void Connection::beginOutermost(int patience)
{
    // The engine would begin and find out at the first row.
    if (mReadOnly)
        fail(StoreFault::ReadOnly, u"The database is read-only."_s);
    requireInPlace();
    sqlite3_busy_timeout(mDatabase->getHandle(), patience);
    const auto restore = qScopeGuard([&] { sqlite3_busy_timeout(mDatabase->getHandle(), usualPatience); });
    static_cast<void>(prepare("BEGIN IMMEDIATE").run());
    mOutsideVersion = -1;
}

void Connection::commit()
{
    requireLiveTransaction();
    if (mDepth == 1)
        commitOutermost();
    else
        static_cast<void>(prepare("RELEASE inner_work").run());
    --mDepth;
    // The engine holds the file that it has opened, wherever that is by now, and writes to it without complaint.
    if (mDepth == 0)
        requireInPlace();
}

void Connection::commitOutermost()
{
    // A row that the file refused is missing: what is left must not pass for the whole.
    if (fault() != StoreFault::None)
        fail(fault(), u"A part of the transaction could not be written."_s);
    static_cast<void>(prepare("COMMIT").run());
}

void Connection::rollBack() noexcept
{
    if (mDepth == 0)
        return;
    ++mRollBacks;
    --mDepth;
    // Tables that were made in the transaction go with it.
    mTables.clear();
    try {
        if (inTransaction() && mDepth == 0)
            static_cast<void>(prepare("ROLLBACK").run());
        else if (inTransaction())
            mDatabase->exec("ROLLBACK TO inner_work; RELEASE inner_work");
    } catch (...) {
        // The engine rolls back what a failed roll-back leaves, at the latest when the file is closed.
    }
}

int Connection::change(Statement &statement)
{
    requireLiveTransaction();
    if (mDepth > 0)
        return statement.run();
    requireInPlace();
    const int rows = statement.run();
    requireInPlace();
    return rows;
}

void Connection::requireLiveTransaction() const
{
    if (mRefusals > 0 || (mDepth > 0 && !inTransaction()))
        throw StoreError(fault(), AdoError::Engine, u"The transaction could not begin or has been rolled back."_s);
}

void Connection::fail(StoreFault fault, const QString &words)
{
    mSteps.note(fault);
    throw StoreError(fault, AdoError::Engine, words);
}

void Connection::requireInPlace()
{
    const bool inPlace = std::all_of(mPlace.begin(), mPlace.end(), [](const auto &file) {
        return PlatformFiles::identityOf(file.first) == file.second;
    });
    if (!inPlace)
        fail(StoreFault::Gone, u"The database has been moved, replaced or deleted."_s);
}
