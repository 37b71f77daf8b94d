#include "store/FixNull.h"
#include "store/rows/ColumnKinds.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 invalidUseOfNull = 94;

struct NullText
{
    int kind;
    QLatin1StringView text;
};

constexpr std::array nullTexts{
    NullText{ColumnKind::Integer, "0"_L1},     NullText{ColumnKind::Single, "0"_L1},
    NullText{ColumnKind::Double, "0"_L1},      NullText{ColumnKind::Numeric, "0"_L1},
    NullText{ColumnKind::WChar, ""_L1},        NullText{ColumnKind::VarChar, ""_L1},
    NullText{ColumnKind::LongVarChar, ""_L1},  NullText{ColumnKind::VarWChar, ""_L1},
    NullText{ColumnKind::LongVarWChar, ""_L1},
};
} // namespace

QString FixNull(const Field &field)
{
    const QVariant value = field.Value();
    if (value.isValid())
        return valueText(value);
    const auto *const found = std::find_if(nullTexts.begin(), nullTexts.end(),
                                           [kind = field.Type()](const auto &row) { return row.kind == kind; });
    if (found == nullTexts.end())
        throw RuntimeError(invalidUseOfNull, u"Invalid use of Null"_s);
    return found->text;
}

QString FixNull(const Field &field, ErrorReceiver &log)
{
    return guardedResult(log, {"frmSearch"_L1, "Function FixNull"_L1}, QString(),
                         [&](QString &text) { text = FixNull(field); });
}
