// trawlex-mdb-reader: reads one database file of another program and writes what it holds to standard output.
//
//   trawlex-mdb-reader catalog FILE         all tables with their columns
//   trawlex-mdb-reader rows FILE TABLE      one table's columns and rows
//
// The answer is a row of frames (see Frames.h), ended by End or Failure. An answer that ends otherwise is worth
// nothing: the process has met a file that it cannot survive. Exit status 0 after End, 1 after Failure, 2 for bad
// arguments.
#include "store/reader/FrameWriter.h"
#include "store/reader/JetFile.h"
#include "store/reader/Limits.h"
#include "store/reader/ValueReader.h"

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>

namespace {
void writeColumns(const MdbTableDef &table)
{
    for (const MdbColumn *column : JetFile::columns(table))
        writeFrame(Frames::Column, std::to_string(columnKind(column->col_type)) + " " + column->name);
}

void writeTable(MdbCatalogEntry &entry)
{
    std::string text(1, mdb_is_user_table(&entry) != 0 ? 'u' : 's');
    writeFrame(Frames::Table, text.append(static_cast<const char *>(entry.object_name)));
}

void writeCatalog(const JetFile &file)
{
    for (MdbCatalogEntry *const entry : file.tables()) {
        writeTable(*entry);
        writeColumns(*JetFile::open(entry));
    }
}

void writeRows(const JetFile &file, const char *name)
{
    MdbCatalogEntry *const entry = file.find(name);
    if (entry == nullptr)
        return;
    const MdbTablePointer table = JetFile::open(entry);
    writeTable(*entry);
    writeColumns(*table);
    ValueReader rows(file, *table);
    unsigned count = 0;
    while (rows.writeNextRow())
        ++count;
    if (count < table->num_rows)
        throw std::runtime_error("The table is damaged: " + std::to_string(count) + " of " +
                                 std::to_string(table->num_rows) + " rows.");
}

int answer(bool catalog, int count, char **arguments)
{
    try {
        const JetFile file(arguments[2]);
        if (catalog)
            writeCatalog(file);
        else
            writeRows(file, arguments[count - 1]);
        writeFrame(Frames::End);
        flushFrames();
        return 0;
    } catch (const std::exception &error) {
        writeFrame(Frames::Failure, error.what());
        flushFrames();
        return 1;
    }
}
} // namespace

int main(int count, char **arguments)
{
    const std::string command = count > 1 ? arguments[1] : "";
    const bool catalog = command == "catalog" && count == 3;
    const bool rows = command == "rows" && count == 4;
    if (!catalog && !rows) {
        std::fputs("usage: trawlex-mdb-reader catalog FILE | rows FILE TABLE\n", stderr);
        return 2;
    }
    limitThisProcess();
    beginFrames();
    return answer(catalog, count, arguments);
}
