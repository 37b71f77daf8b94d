#include "store/sqlite/LikeFunction.h"
#include "store/StoredText.h"
#include "store/sql/LikePattern.h"

#include <exception>
#include <sqlite3.h>

namespace {
std::string_view bytesOf(sqlite3_value *value)
{
    const auto *const bytes = reinterpret_cast<const char *>(sqlite3_value_text(value));
    return bytes == nullptr ? std::string_view()
                            : std::string_view(bytes, static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

// The pattern of a statement is the same for all rows, so it is kept with the statement while that runs.
const LikePattern *patternOf(sqlite3_context *context, sqlite3_value *value)
{
    if (const void *known = sqlite3_get_auxdata(context, 0))
        return static_cast<const LikePattern *>(known);
    sqlite3_set_auxdata(context, 0, new LikePattern(storedText(bytesOf(value))),
                        [](void *pattern) { delete static_cast<LikePattern *>(pattern); });
    return static_cast<const LikePattern *>(sqlite3_get_auxdata(context, 0));
}

// "text LIKE pattern" comes as (pattern, text).
void like(sqlite3_context *context, int, sqlite3_value **values)
{
    const int kind = sqlite3_value_type(values[1]);
    if (kind == SQLITE_NULL || sqlite3_value_type(values[0]) == SQLITE_NULL)
        return;
    try {
        const LikePattern *const pattern = patternOf(context, values[0]);
        if (pattern == nullptr)
            sqlite3_result_error_nomem(context);
        else
            sqlite3_result_int(context, kind != SQLITE_BLOB && pattern->matchesUtf8(bytesOf(values[1])) ? 1 : 0);
    } catch (const std::exception &) {
        sqlite3_result_error_nomem(context);
    }
}
} // namespace

void installLike(sqlite3 *handle)
{
    sqlite3_create_function_v2(handle, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr, &like,
                               nullptr, nullptr, nullptr);
}
