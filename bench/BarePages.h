// The mark for storing pages: the same rows, written by prepared statements and nothing else, each uniqueness query by
// an index, one transaction a page. Also makes the databases that are measured.
#pragma once

#include <array>
#include <sqlite3.h>
#include <string>
#include <vector>

/// What one harvested page brings.
struct BarePage
{
    std::string title;
    std::string url;
    std::string page;
    std::array<std::string, 5> addresses;
    std::array<std::string, 2> numbers;
    std::string mask;
    std::string date;
};

class BareDatabase
{
  public:
    /// Opens the file of a database object's schema with the settings under which Trawlex writes.
    explicit BareDatabase(const std::string &path);
    ~BareDatabase();
    BareDatabase(const BareDatabase &) = delete;
    BareDatabase &operator=(const BareDatabase &) = delete;

    /// Fills the four tables that a page writes to with that many rows, pages of `pageLength` among them.
    void fill(int rows, int pageLength);
    /// Takes all indexes away, so that the mark has neither their help nor their cost.
    void dropIndexes();
    /// Stores one page with its uniqueness queries.
    void store(const BarePage &page);

  private:
    sqlite3_stmt *statement(const char *text);
    void run(const char *text);
    bool exists(sqlite3_stmt *query, const std::string &value);
    void insert(sqlite3_stmt *statement, sqlite3_int64 number, const std::vector<const std::string *> &texts);

    sqlite3 *mHandle = nullptr;
    std::vector<sqlite3_stmt *> mStatements;
    sqlite3_stmt *mBegin, *mCommit;
    sqlite3_stmt *mFindSummary, *mFindAddress, *mFindNumber, *mFindPassUrl, *mFindMask;
    sqlite3_stmt *mAddSummary, *mAddAddress, *mAddNumber, *mAddPassUrl;
};
