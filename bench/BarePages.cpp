#include "BarePages.h"

#include <cstdio>
#include <cstdlib>

namespace {
// A mark that fails measures nothing.
void require(bool good, sqlite3 *handle)
{
    if (good)
        return;
    std::fprintf(stderr, "bench: %s\n", sqlite3_errmsg(handle));
    std::exit(1);
}

constexpr const char *series = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<";
} // namespace

BareDatabase::BareDatabase(const std::string &path)
{
    require(sqlite3_open(path.c_str(), &mHandle) == SQLITE_OK, mHandle);
    run("PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA cache_size=-8000");
    mBegin = statement("BEGIN IMMEDIATE");
    mCommit = statement("COMMIT");
    mFindSummary = statement("SELECT 1 FROM SiteSummary WHERE Url=?1 LIMIT 1");
    mFindAddress = statement("SELECT 1 FROM EmailAddress WHERE Address=?1 LIMIT 1");
    mFindNumber = statement("SELECT 1 FROM PhoneNumber WHERE Number=?1 LIMIT 1");
    mFindPassUrl = statement("SELECT 1 FROM PassUrlsA WHERE Url=?1 LIMIT 1");
    mFindMask = statement("SELECT 1 FROM PassUrlsA WHERE MaskName=?1 LIMIT 1");
    mAddSummary = statement("INSERT INTO SiteSummary(Date,Title,Url,FullPage) VALUES(?2,?3,?4,?5)");
    mAddAddress = statement("INSERT INTO EmailAddress(SSIndex,Date,Address,Url) VALUES(?1,?2,?3,?4)");
    mAddNumber = statement("INSERT INTO PhoneNumber(SSIndex,Date,Number,Type,Url) VALUES(?1,?2,?3,?4,?5)");
    mAddPassUrl = statement("INSERT INTO PassUrlsA(SSIndex,Date,MaskName,Url) VALUES(?1,?2,?3,?4)");
}

BareDatabase::~BareDatabase()
{
    for (sqlite3_stmt *prepared : mStatements)
        sqlite3_finalize(prepared);
    sqlite3_close(mHandle);
}

sqlite3_stmt *BareDatabase::statement(const char *text)
{
    sqlite3_stmt *prepared = nullptr;
    require(sqlite3_prepare_v3(mHandle, text, -1, SQLITE_PREPARE_PERSISTENT, &prepared, nullptr) == SQLITE_OK, mHandle);
    mStatements.push_back(prepared);
    return prepared;
}

void BareDatabase::run(const char *text)
{
    require(sqlite3_exec(mHandle, text, nullptr, nullptr, nullptr) == SQLITE_OK, mHandle);
}

void BareDatabase::fill(int rows, int pageLength)
{
    const std::string count = series + std::to_string(rows) + ") ";
    const std::string page = "replace(hex(zeroblob(" + std::to_string(pageLength / 2) + ")),'0','p')";
    run("PRAGMA synchronous=OFF; BEGIN");
    run(("INSERT INTO SiteSummary(Date,Title,Url,FullPage) " + count +
         "SELECT '2024-01-01','Title '||i,'http://www.site'||(i*7919%1000003)||'.example/page'||i||'.html'," + page +
         " FROM n")
            .c_str());
    run(("INSERT INTO EmailAddress(SSIndex,Date,Address,Url) " + count +
         "SELECT i,'2024-01-01','user'||(i*7919%1000003)||'@site'||i||'.example','' FROM n")
            .c_str());
    run(("INSERT INTO PhoneNumber(SSIndex,Date,Number,Type,Url) " + count +
         "SELECT i,'2024-01-01','('||(i*7919%1000003)||') 555-'||i,'Any','' FROM n")
            .c_str());
    run(("INSERT INTO PassUrlsA(SSIndex,Date,MaskName,Url) " + count +
         "SELECT i,'2024-01-01','PassUrl-'||(i+99),'http://www.site'||(i*7919%1000003)||'.example/page'||i FROM n")
            .c_str());
    run("COMMIT; PRAGMA wal_checkpoint(TRUNCATE); PRAGMA synchronous=FULL");
}

void BareDatabase::dropIndexes()
{
    for (const char *index : {"ByUrlInSiteSummary", "ByAddressInEmailAddress", "ByNumberInPhoneNumber",
                              "ByUrlInPassUrlsA", "ByMaskNameInPassUrlsA"})
        run((std::string("DROP INDEX ") + index).c_str());
}

bool BareDatabase::exists(sqlite3_stmt *query, const std::string &value)
{
    sqlite3_bind_text(query, 1, value.data(), static_cast<int>(value.size()), SQLITE_STATIC);
    const int step = sqlite3_step(query);
    require(step == SQLITE_ROW || step == SQLITE_DONE, mHandle);
    sqlite3_reset(query);
    return step == SQLITE_ROW;
}

void BareDatabase::insert(sqlite3_stmt *statement, sqlite3_int64 number, const std::vector<const std::string *> &texts)
{
    if (number > 0)
        sqlite3_bind_int64(statement, 1, number);
    int place = 1;
    for (const std::string *text : texts)
        sqlite3_bind_text(statement, ++place, text->data(), static_cast<int>(text->size()), SQLITE_STATIC);
    require(sqlite3_step(statement) == SQLITE_DONE, mHandle);
    sqlite3_reset(statement);
}

void BareDatabase::store(const BarePage &page)
{
    static const std::string any = "Any";
    require(sqlite3_step(mBegin) == SQLITE_DONE, mHandle);
    sqlite3_reset(mBegin);
    if (!exists(mFindSummary, page.url))
        insert(mAddSummary, 0, {&page.date, &page.title, &page.url, &page.page});
    const sqlite3_int64 index = sqlite3_last_insert_rowid(mHandle);
    for (const std::string &address : page.addresses) {
        if (!exists(mFindAddress, address))
            insert(mAddAddress, index, {&page.date, &address, &page.url});
    }
    for (const std::string &number : page.numbers) {
        if (!exists(mFindNumber, number))
            insert(mAddNumber, index, {&page.date, &number, &any, &page.url});
    }
    if (!exists(mFindPassUrl, page.url) && !exists(mFindMask, page.mask))
        insert(mAddPassUrl, index, {&page.date, &page.mask, &page.url});
    require(sqlite3_step(mCommit) == SQLITE_DONE, mHandle);
    sqlite3_reset(mCommit);
}
