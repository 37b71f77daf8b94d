// The translator takes any text: it gives a statement of the system or refuses, and what it gives is in the text.
#include "store/AdoErrors.h"
#include "store/sql/SqlTranslator.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {
void require(bool good)
{
    if (!good)
        std::abort();
}

void requireHonest(const QString &text, const SqlStatement &statement)
{
    const auto stands = [&](const QString &part) { return text.contains(part, Qt::CaseInsensitive); };
    require(!statement.table.isEmpty() && stands(statement.table));
    for (const QString &field : statement.fields)
        require(!field.isEmpty() && stands(field));
    // No more than one text, and nothing behind it.
    require(text.count(u'\'') <= 2);
    if (!statement.condition)
        return;
    require(stands(statement.condition->field) && stands(statement.condition->value));
    require(!statement.condition->value.contains(u'\'') || !text.contains(u'\''));
    if (text.contains(u'\'') && !text.contains(u'['))
        require(text.trimmed().endsWith(u'\'') && text.contains(u"'"_s + statement.condition->value + u"'"_s));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    try {
        requireHonest(text, parseStatement(text));
    } catch (const RuntimeError &error) {
        require(error.number() == AdoError::BadSql);
    }
    return 0;
}
