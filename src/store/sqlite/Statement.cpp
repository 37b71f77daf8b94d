#include "store/sqlite/Statement.h"
#include "store/sqlite/SqliteErrors.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

namespace {
constexpr std::size_t mostIdleStatements = 200;
}

StatementCache::StatementCache() = default;
StatementCache::~StatementCache() = default;

StatementCache::Slot &StatementCache::slotOf(const std::string &text)
{
    const auto known = mSlots.find(text);
    if (known != mSlots.end())
        return known->second;
    if (mSlots.size() >= mostIdleStatements)
        clear();
    return mSlots[text];
}

void StatementCache::clear() noexcept
{
    ++mGeneration;
    mSlots.clear();
}

Statement::Statement(StatementCache &cache, EngineSteps &steps, SQLite::Database &database, const std::string &text)
    : mCache(cache), mSteps(steps), mSlot(&cache.slotOf(text)), mGeneration(cache.generation()),
      mStatement(std::move(*mSlot))
{
    // The slot is empty for a new text, and while the same statement is in use further out.
    if (!mStatement)
        mStatement = mSteps.run([&] { return std::make_unique<SQLite::Statement>(database, text); });
}

Statement::~Statement()
{
    if (mGeneration != mCache.generation() || *mSlot)
        return;
    try {
        static_cast<void>(mStatement->tryReset());
        mStatement->clearBindings();
        *mSlot = std::move(mStatement);
    } catch (const std::exception &) {
        // A statement that cannot be made ready again is let go.
        mStatement.reset();
    }
}

Statement &Statement::bind(int place, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return bind(place, value.toString());
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        mSteps.run([&] { mStatement->bind(place, bytes.constData(), static_cast<int>(bytes.size())); });
        return *this;
    }
    case QMetaType::Double:
        mSteps.run([&] { mStatement->bind(place, value.toDouble()); });
        return *this;
    case QMetaType::UnknownType:
        mSteps.run([&] { mStatement->bind(place); });
        return *this;
    default:
        return bind(place, value.toLongLong());
    }
}

Statement &Statement::bind(int place, qint64 value)
{
    mSteps.run([&] { mStatement->bind(place, static_cast<int64_t>(value)); });
    return *this;
}

Statement &Statement::bind(int place, const QString &value)
{
    // The text is read where it lies; one with a zero in it needs its length told, which takes another copy.
    const QByteArray &text = mTexts.emplace_back(value.toUtf8());
    if (text.contains('\0'))
        mSteps.run([&] { mStatement->bind(place, text.toStdString()); });
    else
        mSteps.run([&] { mStatement->bindNoCopy(place, text.constData()); });
    return *this;
}

bool Statement::step()
{
    return mSteps.run([&] { return mStatement->executeStep(); });
}

int Statement::run()
{
    return mSteps.run([&] { return mStatement->exec(); });
}

qint64 Statement::integer(int column) const
{
    return mSteps.run([&] { return mStatement->getColumn(column).getInt64(); });
}

QString Statement::text(int column) const
{
    return mSteps.run([&] {
        const auto cell = mStatement->getColumn(column);
        const char *bytes = cell.getText();
        return QString::fromUtf8(bytes, cell.getBytes());
    });
}

QVariant Statement::value(int column) const
{
    return mSteps.run([&]() -> QVariant {
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
