// Rows as a database file of their own, with the one table and all its columns.
#include "data/NewFile.h"
#include "data/RowWriters.h"
#include "util/Errors.h"

#include <SQLiteCpp/SQLiteCpp.h>

using namespace Qt::StringLiterals;

namespace {
struct DeclaredType
{
    int kind;
    const char *declared;
};
constexpr DeclaredType typeWords[] = {{3, "INTEGER"},     {5, "DOUBLE"},     {7, "DATETIME"},
                                      {130, "TEXT(255)"}, {203, "LONGTEXT"}, {205, "LONGBLOB"}};

std::string quoted(QString name)
{
    return (u'"' + name.replace(u'"', "\"\""_L1) + u'"').toStdString();
}

std::string declared(const DataColumn &column)
{
    const auto *const found = std::find_if(std::begin(typeWords), std::end(typeWords),
                                           [&](const DeclaredType &word) { return word.kind == column.kind; });
    return quoted(column.name).append(" ").append(found == std::end(typeWords) ? "" : found->declared);
}

class DatabaseWriter : public RowWriter
{
  public:
    DatabaseWriter(const QString &path, const QString &table, const DataColumns &columns)
        : mFile(path), mDatabase(mFile.placeUntilComplete().toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
    {
        // The file is new, and goes when anything is wrong with it: nothing has to be undone in it.
        mDatabase.exec("PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF");
        std::string definitions, places;
        for (const DataColumn &column : columns) {
            definitions.append(definitions.empty() ? "" : ",").append(declared(column));
            places += places.empty() ? "?" : ",?";
        }
        const std::string name = quoted(table);
        mDatabase.exec("CREATE TABLE " + name + "(" + definitions + ")");
        mDatabase.exec("BEGIN");
        mInsert.emplace(mDatabase, "INSERT INTO " + name + " VALUES(" + places + ")");
    }

    void row(const DataRow &values) override
    {
        for (std::size_t i = 0; i < values.size(); ++i)
            bind(static_cast<int>(i) + 1, values[i]);
        mInsert->exec();
        mInsert->reset();
        mInsert->clearBindings();
    }

    void complete() override
    {
        mInsert.reset();
        mDatabase.exec("COMMIT");
    }
    void finish() override { mFile.commit(); }

  private:
    void bind(int place, const QVariant &value)
    {
        switch (value.typeId()) {
        case QMetaType::UnknownType:
            return;
        case QMetaType::Bool:
        case QMetaType::LongLong:
            return mInsert->bind(place, static_cast<int64_t>(value.toLongLong()));
        case QMetaType::Double:
            return mInsert->bind(place, value.toDouble());
        case QMetaType::QByteArray: {
            const QByteArray bytes = value.toByteArray();
            return mInsert->bind(place, static_cast<const void *>(bytes.constData()), static_cast<int>(bytes.size()));
        }
        default:
            return mInsert->bind(place, value.toString().toStdString());
        }
    }

    NewFile mFile;
    SQLite::Database mDatabase;
    std::optional<SQLite::Statement> mInsert;
};
} // namespace

std::unique_ptr<RowWriter> RowWriters::database(const QString &path, const QString &table, const DataColumns &columns)
{
    return std::make_unique<DatabaseWriter>(path, table, columns);
}
