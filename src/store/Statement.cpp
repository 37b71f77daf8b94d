#include "store/Statement.h"
#include "store/EngineErrors.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

namespace {
constexpr std::size_t mostIdleStatements = 200;
}

StatementCache::StatementCache() = default;
StatementCache::~StatementCache() = default;

std::unique_ptr<SQLite::Statement> StatementCache::take(SQLite::Database &database, const std::string &text)
{
    const auto idle = mIdle.find(text);
    if (idle != mIdle.end() && idle->second)
        return std::move(idle->second);
    return engineStep([&] { return std::make_unique<SQLite::Statement>(database, text); });
}

void StatementCache::giveBack(std::unique_ptr<SQLite::Statement> statement) noexcept
{
    try {
        static_cast<void>(statement->tryReset());
        statement->clearBindings();
        if (mIdle.size() >= mostIdleStatements)
            mIdle.clear();
        mIdle[statement->getQuery()] = std::move(statement);
    } catch (...) {
        // A statement that cannot be kept is let go.
        statement.reset();
    }
}

void StatementCache::clear() noexcept
{
    mIdle.clear();
}

Statement::Statement(StatementCache &cache, SQLite::Database &database, const std::string &text)
    : mCache(cache), mStatement(cache.take(database, text))
{
}

Statement::~Statement()
{
    mCache.giveBack(std::move(mStatement));
}

Statement &Statement::bind(int place, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return bind(place, value.toString());
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        engineStep([&] { mStatement->bind(place, bytes.constData(), static_cast<int>(bytes.size())); });
        return *this;
    }
    case QMetaType::Double:
        engineStep([&] { mStatement->bind(place, value.toDouble()); });
        return *this;
    case QMetaType::UnknownType:
        engineStep([&] { mStatement->bind(place); });
        return *this;
    default:
        return bind(place, value.toLongLong());
    }
}

Statement &Statement::bind(int place, qint64 value)
{
    engineStep([&] { mStatement->bind(place, static_cast<int64_t>(value)); });
    return *this;
}

Statement &Statement::bind(int place, const QString &value)
{
    // The text is read where it lies; one with a zero in it needs its length told, which takes another copy.
    const QByteArray &text = mTexts.emplace_back(value.toUtf8());
    if (text.contains('\0'))
        engineStep([&] { mStatement->bind(place, text.toStdString()); });
    else
        engineStep([&] { mStatement->bindNoCopy(place, text.constData()); });
    return *this;
}

bool Statement::step()
{
    return engineStep([&] { return mStatement->executeStep(); });
}

int Statement::run()
{
    return engineStep([&] { return mStatement->exec(); });
}

int Statement::columnCount() const
{
    return mStatement->getColumnCount();
}

qint64 Statement::integer(int column) const
{
    return engineStep([&] { return mStatement->getColumn(column).getInt64(); });
}

QString Statement::text(int column) const
{
    return engineStep([&] {
        const auto cell = mStatement->getColumn(column);
        const char *bytes = cell.getText();
        return QString::fromUtf8(bytes, cell.getBytes());
    });
}

QVariant Statement::value(int column) const
{
    return engineStep([&]() -> QVariant {
        const auto cell = mStatement->getColumn(column);
        switch (cell.getType()) {
        case SQLITE_INTEGER:
            return static_cast<qlonglong>(cell.getInt64());
        case SQLITE_FLOAT:
            return cell.getDouble();
        case SQLITE_TEXT: {
            const char *bytes = cell.getText();
            return QString::fromUtf8(bytes, cell.getBytes());
        }
        case SQLITE_BLOB: {
            const auto *bytes = static_cast<const char *>(cell.getBlob());
            return QByteArray(bytes, cell.getBytes());
        }
        default:
            return {};
        }
    });
}
