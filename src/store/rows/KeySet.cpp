#include "store/rows/KeySet.h"

#include <algorithm>
#include <limits>

namespace {
// Keys fetched at once: few for the first look, since most sets are asked only whether they have a row.
constexpr qint64 firstFetch = 16;
constexpr qint64 laterFetch = 2048;
// Rows that are looked at between two looks at the clock.
constexpr int rowsPerLook = 64;
} // namespace

KeySet::KeySet(Query query) : mQuery(std::move(query)) {}

bool KeySet::reach(qint64 place)
{
    while (!mComplete && place >= static_cast<qint64>(mKeys.size()))
        if (mQuery.order.empty())
            fetch(mKeys.empty() ? firstFetch : laterFetch);
        else
            takeSorted();
    return place >= 0 && place < static_cast<qint64>(mKeys.size());
}

void KeySet::fetch(qint64 count)
{
    if (mQuery.top >= 0)
        count = std::min(count, mQuery.top - static_cast<qint64>(mKeys.size()));
    const TableInfo &table = *mQuery.table;
    const std::string range = mBegun ? " AND " + table.key + ">?2 AND " + table.key + "<=?3" : "";
    Statement keys = mQuery.connection->prepare("SELECT " + table.key + " FROM " + table.quoted + " WHERE 1" +
                                                mQuery.condition + range + " ORDER BY " + table.key + " LIMIT ?4");
    if (!mQuery.condition.empty())
        keys.bind(1, mQuery.value);
    if (mBegun)
        keys.bind(2, mLookedAt).bind(3, mLastKey);
    keys.bind(4, count);
    const std::size_t before = mKeys.size();
    while (keys.step())
        mKeys.push_back(keys.integer(0));
    const auto fetched = static_cast<qint64>(mKeys.size() - before);
    mComplete = fetched < count || isFull();
    if (mComplete)
        return;
    if (!mBegun)
        begin();
    mLookedAt = mKeys.back();
}

/// From here on the table's last row is the last one.
void KeySet::begin()
{
    const TableInfo &table = *mQuery.table;
    Statement last = mQuery.connection->prepare("SELECT max(" + table.key + ") FROM " + table.quoted);
    mLastKey = last.step() ? last.integer(0) : 0;
    mLookedAt = std::numeric_limits<qint64>::min();
    mBegun = true;
}

/// Looks at one row after another, also where none belongs to the set.
void KeySet::look(const QDeadlineTimer &time)
{
    const TableInfo &table = *mQuery.table;
    const std::string belongs = mQuery.condition.empty() ? "" : ",1" + mQuery.condition;
    Statement rows = mQuery.connection->prepare("SELECT " + table.key + belongs + " FROM " + table.quoted + " WHERE " +
                                                table.key + ">?2 AND " + table.key + "<=?3 ORDER BY " + table.key);
    if (!belongs.empty())
        rows.bind(1, mQuery.value);
    rows.bind(2, mLookedAt).bind(3, mLastKey);
    for (int row = 1; !mComplete && (row % rowsPerLook != 0 || !time.hasExpired()); ++row) {
        mComplete = !rows.step();
        if (mComplete)
            break;
        mLookedAt = rows.integer(0);
        if (belongs.empty() || rows.integer(1) == 1)
            mKeys.push_back(mLookedAt);
        mComplete = isFull();
    }
}

bool KeySet::advance(int milliseconds)
{
    const QDeadlineTimer time(milliseconds);
    if (!mComplete && !mQuery.order.empty() && beginSorting().isReady(milliseconds))
        takeSorted();
    if (!mComplete && mQuery.order.empty()) {
        if (!mBegun)
            begin();
        look(time);
    }
    return mComplete;
}

SortedKeys &KeySet::beginSorting()
{
    if (!mSorted) {
        begin();
        mSorted = std::make_unique<SortedKeys>(mQuery, mLastKey);
    }
    return *mSorted;
}

void KeySet::takeSorted()
{
    mKeys = beginSorting().take();
    mSorted.reset();
    mComplete = true;
}

qint64 KeySet::tableSize() const
{
    Statement count = mQuery.connection->prepare("SELECT count(*) FROM " + mQuery.table->quoted);
    return count.step() ? count.integer(0) : 0;
}

qint64 KeySet::size()
{
    static_cast<void>(reach(std::numeric_limits<qint64>::max()));
    return static_cast<qint64>(mKeys.size());
}

bool KeySet::isDeleted(qint64 place) const
{
    return std::binary_search(mDeleted.begin(), mDeleted.end(), place);
}

void KeySet::markDeleted(qint64 place)
{
    mDeleted.insert(std::lower_bound(mDeleted.begin(), mDeleted.end(), place), place);
}

qint64 KeySet::append(qint64 key)
{
    const qint64 place = size();
    mKeys.push_back(key);
    return place;
}
