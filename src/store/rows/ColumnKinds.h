// The kinds of column: their numbers, the type words that stand for them in a file, and the values that they take.
#pragma once

#include <QStringView>
#include <QVariant>
#include <string_view>

namespace ColumnKind {
constexpr int SmallInt = 2;
constexpr int Integer = 3;
constexpr int Single = 4;
constexpr int Double = 5;
constexpr int Currency = 6;
constexpr int Date = 7;
constexpr int Boolean = 11;
constexpr int Byte = 17;
constexpr int Guid = 72;
constexpr int Binary = 128;
constexpr int WChar = 130;
constexpr int Numeric = 131;
constexpr int VarChar = 200;
constexpr int LongVarChar = 201;
constexpr int VarWChar = 202;
constexpr int LongVarWChar = 203;
constexpr int LongVarBinary = 205;
} // namespace ColumnKind

/// The longest text that a text column takes, in characters.
constexpr qsizetype maxTextLength = 255;

/// The kind of a column that is made under that name. The name alone decides.
[[nodiscard]] int columnKindOf(QStringView fieldName);

/// The type word under which a column of that kind is declared in a file, and back again. A word of another program
/// gives the kind whose values are most like what is stored under it.
[[nodiscard]] std::string_view declaredType(int kind);
[[nodiscard]] int kindOfDeclaredType(std::string_view declared);

/// True for the kinds whose fields start as an empty text in a new record: 130, 202, 203.
[[nodiscard]] bool startsAsEmptyText(int kind);

/// `value` in the form in which a column of that kind holds it: qlonglong, double, QString (texts, dates in ISO 8601,
/// exact decimals), bool, QByteArray, or an invalid QVariant for Null.
/// Errors: AdoError::TypeMismatch for a value of another nature, AdoError::MultipleStep for a number out of range and
/// for a text of more than 255 characters in a column of kind 130.
[[nodiscard]] QVariant valueForColumn(int kind, const QVariant &value);

/// A value as text: numbers in their shortest form, dates as they stand, True or False; Null gives "".
[[nodiscard]] QString valueText(const QVariant &value);
