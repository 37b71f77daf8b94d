#include "store/reader/JetFile.h"

#include <stdexcept>
#include <strings.h>

JetFile::JetFile(const char *path) : mHandle(mdb_open(path, MDB_NOFLAGS))
{
    if (!mHandle)
        throw std::runtime_error("The file is no database that can be read.");
    if (mdb_read_catalog(mHandle.get(), MDB_TABLE) == nullptr)
        throw std::runtime_error("The file's list of tables cannot be read.");
}

bool JetFile::hasCodePage() const
{
    return mHandle->f->jet_version == MDB_VER_JET3;
}

std::vector<MdbCatalogEntry *> JetFile::tables() const
{
    std::vector<MdbCatalogEntry *> entries;
    for (unsigned place = 0; place < mHandle->num_catalog; ++place) {
        auto *const entry = static_cast<MdbCatalogEntry *>(g_ptr_array_index(mHandle->catalog, place));
        if (entry->object_type == MDB_TABLE)
            entries.push_back(entry);
    }
    return entries;
}

MdbCatalogEntry *JetFile::find(std::string_view name) const
{
    for (MdbCatalogEntry *const entry : tables()) {
        if (strcasecmp(entry->object_name, std::string(name).c_str()) == 0)
            return entry;
    }
    return nullptr;
}

MdbTablePointer JetFile::open(MdbCatalogEntry *entry)
{
    MdbTablePointer table(mdb_read_table(entry));
    if (!table || mdb_read_columns(table.get()) == nullptr)
        throw std::runtime_error("A table's columns cannot be read.");
    return table;
}

std::vector<MdbColumn *> JetFile::columns(const MdbTableDef &table)
{
    std::vector<MdbColumn *> columns;
    for (unsigned place = 0; place < table.num_cols; ++place)
        columns.push_back(static_cast<MdbColumn *>(g_ptr_array_index(table.columns, place)));
    return columns;
}
