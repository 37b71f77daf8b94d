#include "store/reader/JetFile.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <strings.h>
#include <sys/stat.h>

namespace {
std::uint64_t lengthOf(std::FILE *file)
{
    struct stat state = {};
    return fstat(fileno(file), &state) == 0 ? static_cast<std::uint64_t>(state.st_size) : 0;
}
} // namespace

JetFile::JetFile(const char *path) : mHandle(mdb_open(path, MDB_NOFLAGS))
{
    if (!mHandle)
        throw std::runtime_error("The file is no database that can be read.");
    const std::uint64_t length = lengthOf(mHandle->f->stream);
    const auto pageLength = static_cast<std::uint64_t>(mHandle->fmt->pg_size);
    std::uint64_t needed = (length + pageLength - 1) / pageLength;
    // The list of tables is a table itself.
    MdbCatalogEntry list{};
    list.mdb = mHandle.get();
    list.object_type = MDB_TABLE;
    list.table_pg = 2;
    needed = std::max(needed, pagesOf(list));
    const bool known = mdb_read_catalog(mHandle.get(), MDB_TABLE) != nullptr;
    for (MdbCatalogEntry *const entry : tables())
        needed = std::max(needed, pagesOf(*entry));
    if (needed > length / pageLength)
        throw std::runtime_error("The file is damaged: " + std::to_string(length / pageLength) + " of " +
                                 std::to_string(needed) + " pages.");
    if (!known)
        throw std::runtime_error("The file's list of tables cannot be read.");
}

// A table says which pages are its own. The library passes over those that are not there, and their rows with them. A
// table that cannot be opened needs none: whoever asks for it will see.
std::uint64_t JetFile::pagesOf(MdbCatalogEntry &entry) const
{
    const MdbTablePointer table(mdb_read_table(&entry));
    std::int64_t page = 0;
    std::uint64_t needed = 0;
    while (table) {
        page = mdb_map_find_next(mHandle.get(), table->usage_map, static_cast<unsigned>(table->map_sz),
                                 static_cast<guint32>(page));
        if (page <= 0)
            break;
        needed = std::max(needed, static_cast<std::uint64_t>(page) + 1);
    }
    return needed;
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
