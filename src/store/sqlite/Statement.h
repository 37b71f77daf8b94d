// One prepared statement, taken from a connection's cache for as long as it is used. Errors of the engine come out as
// RuntimeError. Inside store/ only.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <deque>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>

class EngineSteps;
struct sqlite3_stmt;

struct StatementFinalizer
{
    void operator()(sqlite3_stmt *statement) const;
};

/// Prepared statements by their text, so that the same statement is prepared once.
class StatementCache
{
  public:
    /// A place for the statement of one text; it stays where it is until the cache is cleared.
    using Slot = std::unique_ptr<sqlite3_stmt, StatementFinalizer>;

    /// The slot of that text. When there are too many, all idle statements are let go first.
    [[nodiscard]] Slot &slotOf(const std::string &text);
    /// Changes when the slots go.
    [[nodiscard]] quint64 generation() const { return mGeneration; }
    void clear() noexcept;

    /// Room for one long text at a time, kept from statement to statement: each page of a harvest needs it again.
    [[nodiscard]] QByteArray takeRoom() { return std::exchange(mRoom, {}); }
    void giveRoomBack(QByteArray room);

  private:
    std::unordered_map<std::string, Slot> mSlots;
    quint64 mGeneration = 0;
    QByteArray mRoom;
};

class Statement
{
  public:
    /// All outlive the statement.
    Statement(StatementCache &cache, EngineSteps &steps, const std::string &text);
    ~Statement();
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    /// Binds the parameter `place`, from 1. Texts go in as UTF-8.
    Statement &bind(int place, const QVariant &value);
    Statement &bind(int place, qint64 value);
    Statement &bind(int place, const QString &value);

    /// True while there is a row.
    [[nodiscard]] bool step();
    /// Runs a statement that has no rows, and gives the number of rows that it changed.
    int run();

    /// The columns of the row, from 0.
    [[nodiscard]] qint64 integer(int column) const;
    [[nodiscard]] QString text(int column) const;
    /// The value as it is stored: qlonglong, double, QString, QByteArray, or Null.
    [[nodiscard]] QVariant value(int column) const;

  private:
    void require(int code) const;
    Statement &bindLong(int place, const QString &value);
    Statement &bindUtf8(int place, const char *text, qsizetype size);

    StatementCache &mCache;
    EngineSteps &mSteps;
    // Where the statement came from and goes back to, unless the cache has been cleared since.
    StatementCache::Slot *mSlot;
    quint64 mGeneration;
    StatementCache::Slot mStatement;
    // Bound values, which the engine reads where they lie.
    std::deque<QByteArray> mBytes;
    QByteArray mLongText;
};
