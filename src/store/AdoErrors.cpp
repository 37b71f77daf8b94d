#include "store/AdoErrors.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {
struct ErrorText
{
    qint64 number;
    const char *text;
};

constexpr std::array errorTexts{
    ErrorText{AdoError::BadSql, "Syntax error in query expression."},
    ErrorText{AdoError::NoSuchTable, "The engine cannot find the input table or query."},
    ErrorText{AdoError::MultipleStep, "Multiple-step operation generated errors. Check each status value."},
    ErrorText{AdoError::TypeMismatch, "Type mismatch."},
    ErrorText{AdoError::RowDeleted, "The specified row has been deleted."},
    ErrorText{AdoError::NoCurrentRow,
              "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
              "current record."},
    ErrorText{AdoError::NotAllowed, "Operation is not allowed in this context."},
    ErrorText{AdoError::NoReadWrite, "Current Recordset does not support updating."},
    ErrorText{AdoError::NoSuchField,
              "Item cannot be found in the collection corresponding to the requested name or ordinal."},
    ErrorText{AdoError::ObjectClosed, "Operation is not allowed when the object is closed."},
    ErrorText{AdoError::ConnectionClosed,
              "The connection cannot be used to perform this operation. It is either closed or invalid in this "
              "context."},
    ErrorText{ErrorNumber::ObjectNotSet, "Object variable or With block variable not set"},
    ErrorText{ErrorNumber::SubscriptOutOfRange, "Subscript out of range"},
    ErrorText{ErrorNumber::FileNotFound, "File not found"},
    ErrorText{ErrorNumber::InvalidProcedureCall, "Invalid procedure call or argument"},
    ErrorText{ErrorNumber::PathAccessError, "Path/File access error"},
    ErrorText{ErrorNumber::PathNotFound, "Path not found"},
};
} // namespace

RuntimeError AdoError::error(qint64 number)
{
    const auto *const found =
        std::find_if(errorTexts.begin(), errorTexts.end(), [number](const auto &row) { return row.number == number; });
    return {number, found == errorTexts.end() ? u"Application-defined or object-defined error"_s
                                              : QString::fromLatin1(found->text)};
}
