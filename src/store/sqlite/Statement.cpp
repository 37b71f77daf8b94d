#include "store/sqlite/Statement.h"
#include "store/StoredText.h"
#include "store/sqlite/SqliteErrors.h"

#include <QStringEncoder>
#include <sqlite3.h>

namespace {
constexpr std::size_t mostIdleStatements = 200;
// From this length on a text gets the room that is kept, as long as that does not grow beyond reason.
constexpr qsizetype longText = 4096;
constexpr qsizetype largestRoom = qsizetype(4) * 1024 * 1024;

QString textOf(sqlite3_stmt *row, int column)
{
    const auto *const bytes = reinterpret_cast<const char *>(sqlite3_column_text(row, column));
    return storedText({bytes, sqlite3_column_bytes(row, column)});
}
} // namespace

void StatementFinalizer::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

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

void StatementCache::giveRoomBack(QByteArray room)
{
    if (room.size() > mRoom.size() && room.size() <= largestRoom)
        mRoom = std::move(room);
}

Statement::Statement(StatementCache &cache, EngineSteps &steps, const std::string &text)
    : mCache(cache), mSteps(steps), mSlot(&cache.slotOf(text)), mGeneration(cache.generation()),
      mStatement(std::move(*mSlot))
{
    // The slot is empty for a new text, and while the same statement is in use further out.
    if (mStatement)
        return;
    sqlite3_stmt *prepared = nullptr;
    require(sqlite3_prepare_v3(steps.handle(), text.data(), static_cast<int>(text.size()), SQLITE_PREPARE_PERSISTENT,
                               &prepared, nullptr));
    mStatement.reset(prepared);
}

Statement::~Statement()
{
    if (!mLongText.isEmpty())
        mCache.giveRoomBack(std::move(mLongText));
    if (mGeneration != mCache.generation() || *mSlot)
        return;
    sqlite3_reset(mStatement.get());
    sqlite3_clear_bindings(mStatement.get());
    *mSlot = std::move(mStatement);
}

void Statement::require(int code) const
{
    if (code != SQLITE_OK)
        mSteps.raise(code);
}

Statement &Statement::bind(int place, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return bind(place, value.toString());
    case QMetaType::QByteArray: {
        const QByteArray &bytes = mBytes.emplace_back(value.toByteArray());
        require(sqlite3_bind_blob64(mStatement.get(), place, bytes.constData(), sqlite3_uint64(bytes.size()),
                                    SQLITE_STATIC));
        return *this;
    }
    case QMetaType::Double:
        require(sqlite3_bind_double(mStatement.get(), place, value.toDouble()));
        return *this;
    case QMetaType::UnknownType:
        require(sqlite3_bind_null(mStatement.get(), place));
        return *this;
    default:
        return bind(place, value.toLongLong());
    }
}

Statement &Statement::bind(int place, qint64 value)
{
    require(sqlite3_bind_int64(mStatement.get(), place, value));
    return *this;
}

Statement &Statement::bind(int place, const QString &value)
{
    if (value.size() >= longText && mLongText.isEmpty())
        return bindLong(place, value);
    const QByteArray &text = mBytes.emplace_back(value.toUtf8());
    return bindUtf8(place, text.constData(), text.size());
}

Statement &Statement::bindLong(int place, const QString &value)
{
    QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    mLongText = mCache.takeRoom();
    if (const qsizetype needed = encoder.requiredSpace(value.size()); mLongText.size() < needed)
        mLongText = QByteArray(needed, Qt::Uninitialized);
    const char *const end = encoder.appendToBuffer(mLongText.data(), value);
    return bindUtf8(place, mLongText.constData(), end - mLongText.constData());
}

Statement &Statement::bindUtf8(int place, const char *text, qsizetype size)
{
    require(sqlite3_bind_text64(mStatement.get(), place, text, sqlite3_uint64(size), SQLITE_STATIC, SQLITE_UTF8));
    return *this;
}

bool Statement::step()
{
    const int code = sqlite3_step(mStatement.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        require(code);
    return code == SQLITE_ROW;
}

int Statement::run()
{
    while (step())
        ;
    return sqlite3_changes(mSteps.handle());
}

qint64 Statement::integer(int column) const
{
    return sqlite3_column_int64(mStatement.get(), column);
}

QString Statement::text(int column) const
{
    return textOf(mStatement.get(), column);
}

QVariant Statement::value(int column) const
{
    sqlite3_stmt *const row = mStatement.get();
    switch (sqlite3_column_type(row, column)) {
    case SQLITE_INTEGER:
        return static_cast<qlonglong>(sqlite3_column_int64(row, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(row, column);
    case SQLITE_TEXT:
        return textOf(row, column);
    case SQLITE_BLOB: {
        const auto *const bytes = static_cast<const char *>(sqlite3_column_blob(row, column));
        return QByteArray(bytes, sqlite3_column_bytes(row, column));
    }
    default:
        return {};
    }
}
