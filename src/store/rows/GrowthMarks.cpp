#include "store/rows/GrowthMarks.h"
#include "store/sql/SqlTranslator.h"

using namespace Qt::StringLiterals;

namespace {
std::string inQuotes(const QString &text)
{
    std::string quoted("'");
    return quoted.append(QString(text).replace(u'\'', "''"_L1).toStdString()).append("'");
}
} // namespace

bool GrowthMarks::exist()
{
    return mConnection.table(u"SysGrowthMarks"_s) != nullptr;
}

std::optional<GrowthMarks::Mark> GrowthMarks::read(const QString &name)
{
    if (!exist())
        return std::nullopt;
    Statement row = mConnection.prepare("SELECT Id,Value FROM SysGrowthMarks WHERE TableName=?1 AND Name=?2");
    if (!row.bind(1, mTable.name).bind(2, name).step())
        return std::nullopt;
    return Mark{row.integer(0), row.text(1)};
}

GrowthMarks::Mark GrowthMarks::set(const QString &name, const QString &value)
{
    if (!read(name))
        prepare();
    mConnection
        .prepare("INSERT INTO SysGrowthMarks(TableName,Name,Value) VALUES(?1,?2,?3) "
                 "ON CONFLICT(TableName,Name) DO UPDATE SET Value=excluded.Value")
        .bind(1, mTable.name)
        .bind(2, name)
        .bind(3, value)
        .run();
    return read(name).value();
}

void GrowthMarks::removeAll()
{
    if (!exist())
        return;
    Statement statement = mConnection.prepare("DELETE FROM SysGrowthMarks WHERE TableName=?1");
    mConnection.change(statement.bind(1, mTable.name));
}

void GrowthMarks::prepare()
{
    mConnection.administer("CREATE TABLE IF NOT EXISTS SysGrowthMarks(Id INTEGER PRIMARY KEY AUTOINCREMENT,"
                           "TableName TEXT NOT NULL,Name TEXT NOT NULL,Value TEXT NOT NULL,UNIQUE(TableName,Name))");
    const std::string takeAway = "DELETE FROM SysGrowthMarks WHERE TableName=" + inQuotes(mTable.name) + ";";
    makeGrowthTriggers(mConnection, mTable, "SysGrowth", takeAway, takeAway, takeAway);
}

void makeGrowthTriggers(Connection &connection, const TableInfo &table, const std::string &name,
                        const std::string &onAdded, const std::string &onChanged, const std::string &onRemoved)
{
    const auto trigger = [&](const char *ending, const char *event, const std::string &when, const std::string &work) {
        connection.administer(
            "CREATE TRIGGER IF NOT EXISTS " +
            bracketed(QString::fromStdString(name) + "Of"_L1 + table.name + QLatin1StringView(ending)) + " AFTER " +
            event + " ON " + table.quoted + when + " BEGIN " + work + " END");
    };
    trigger("Added", "INSERT", " WHEN NEW." + table.key + "<(SELECT max(" + table.key + ") FROM " + table.quoted + ")",
            onAdded);
    trigger("Changed", "UPDATE", {}, onChanged);
    trigger("Removed", "DELETE", {}, onRemoved);
}
