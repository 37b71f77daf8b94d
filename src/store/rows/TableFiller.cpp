#include "store/rows/TableFiller.h"
#include "store/rows/ColumnKinds.h"
#include "store/sql/SqlTranslator.h"

TableFiller::TableFiller(Connection &connection, const QString &table, const std::vector<Column> &columns)
    : mConnection(connection)
{
    std::string definitions;
    std::string places;
    for (const Column &column : columns) {
        definitions.append(definitions.empty() ? "" : ",").append(bracketed(column.name)).append(" ");
        definitions.append(declaredType(column.kind)).append(startsAsEmptyText(column.kind) ? " COLLATE NOCASE" : "");
        places.append(places.empty() ? "?" : ",?");
    }
    connection.administer("CREATE TABLE " + bracketed(table) + "(" + definitions + ")");
    mInsert = "INSERT INTO " + bracketed(table) + " VALUES(" + places + ")";
    connection.begin();
}

TableFiller::~TableFiller()
{
    if (mOpen)
        mConnection.rollBack();
}

void TableFiller::addRow(const std::vector<QVariant> &values)
{
    Statement insert = mConnection.prepare(mInsert);
    int place = 0;
    for (const QVariant &value : values)
        insert.bind(++place, value);
    insert.run();
}

void TableFiller::finish()
{
    mConnection.commit();
    mOpen = false;
}
