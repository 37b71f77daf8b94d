#include "store/rows/SortedKeys.h"

namespace {
constexpr qint64 fewRows = 10'000;

std::vector<qint64> read(Connection &connection, const std::string &text, const QString &value)
{
    Statement statement = connection.prepare(text);
    if (text.find("?1") != std::string::npos)
        statement.bind(1, value);
    std::vector<qint64> keys;
    while (statement.step())
        keys.push_back(statement.integer(0));
    return keys;
}
} // namespace

SortedKeys::SortedKeys(const Query &query, qint64 lastKey)
{
    const TableInfo &table = *query.table;
    const std::string text = "SELECT " + table.key + " FROM " + table.quoted + " WHERE 1" + query.condition +
                             " ORDER BY " + query.order + "," + table.key;
    if (lastKey <= fewRows) {
        std::promise<std::vector<qint64>> keys;
        mKeys = keys.get_future();
        keys.set_value(read(*query.connection, text, query.value));
        return;
    }
    mKeys = std::async(std::launch::async, [this, text, value = query.value, path = query.connection->path()] {
        const auto own = Connection::open(path, Connection::Access::Read);
        own->stopWhen(mStop);
        return read(*own, text, value);
    });
}

bool SortedKeys::isReady(int milliseconds) const
{
    return mKeys.wait_for(std::chrono::milliseconds(milliseconds)) == std::future_status::ready;
}
