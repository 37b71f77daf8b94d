// Another program's database file, opened to read through libmdb.
#pragma once

// The library's header takes glib's into its C linkage, where its templates cannot be; so it comes first.
#include <glib.h>

#include <cstdint>
#include <mdbtools.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct MdbCloser
{
    void operator()(MdbHandle *handle) const { mdb_close(handle); }
};
struct MdbTableFreer
{
    void operator()(MdbTableDef *table) const { mdb_free_tabledef(table); }
};
using MdbTablePointer = std::unique_ptr<MdbTableDef, MdbTableFreer>;

class JetFile
{
  public:
    /// Throws std::runtime_error for a file that cannot be read, and for one that is shorter than
    /// its tables say.
    explicit JetFile(const char *path);

    [[nodiscard]] MdbHandle *handle() const { return mHandle.get(); }
    /// True for files of the oldest kind, whose texts are in a code page.
    [[nodiscard]] bool hasCodePage() const;

    /// The tables in the order of the catalog. Valid as long as the file.
    [[nodiscard]] std::vector<MdbCatalogEntry *> tables() const;
    /// The table of that name without regard to case of ASCII letters, or nullptr.
    [[nodiscard]] MdbCatalogEntry *find(std::string_view name) const;

    /// Opens a table with its columns. Throws std::runtime_error for a damaged one.
    [[nodiscard]] static MdbTablePointer open(MdbCatalogEntry *entry);
    [[nodiscard]] static std::vector<MdbColumn *> columns(const MdbTableDef &table);

  private:
    [[nodiscard]] std::uint64_t pagesOf(MdbCatalogEntry &entry) const;

    std::unique_ptr<MdbHandle, MdbCloser> mHandle;
};
