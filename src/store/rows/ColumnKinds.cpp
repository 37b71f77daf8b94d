#include "store/rows/ColumnKinds.h"
#include "store/AdoErrors.h"
#include "store/rows/StoredDates.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {
struct TypeWord
{
    int kind;
    std::string_view declared;
};

// The words are chosen so that SQLite keeps what is stored: exact decimals stay texts, bytes stay bytes.
constexpr std::array typeWords{
    TypeWord{ColumnKind::WChar, "TEXT(255)"},        TypeWord{ColumnKind::Integer, "INTEGER"},
    TypeWord{ColumnKind::Date, "DATETIME"},          TypeWord{ColumnKind::LongVarWChar, "LONGTEXT"},
    TypeWord{ColumnKind::LongVarBinary, "LONGBLOB"}, TypeWord{ColumnKind::SmallInt, "SMALLINT"},
    TypeWord{ColumnKind::Byte, "TINYINT"},           TypeWord{ColumnKind::Single, "FLOAT"},
    TypeWord{ColumnKind::Double, "DOUBLE"},          TypeWord{ColumnKind::Currency, "CURRENCY TEXT"},
    TypeWord{ColumnKind::Numeric, "DECIMAL TEXT"},   TypeWord{ColumnKind::Boolean, "BOOLEAN"},
    TypeWord{ColumnKind::Guid, "GUID TEXT"},         TypeWord{ColumnKind::Binary, "BINARY BLOB"},
};

// What a type word of another program holds, by a part of the word; the first row that fits counts.
constexpr std::array foreignWords{
    TypeWord{ColumnKind::Integer, "INT"},        TypeWord{ColumnKind::WChar, "CHAR"},
    TypeWord{ColumnKind::LongVarWChar, "CLOB"},  TypeWord{ColumnKind::LongVarWChar, "TEXT"},
    TypeWord{ColumnKind::LongVarBinary, "BLOB"}, TypeWord{ColumnKind::Double, "REAL"},
    TypeWord{ColumnKind::Double, "FLOA"},        TypeWord{ColumnKind::Double, "DOUB"},
    TypeWord{ColumnKind::Boolean, "BOOL"},       TypeWord{ColumnKind::Date, "DATE"},
    TypeWord{ColumnKind::Date, "TIME"},          TypeWord{ColumnKind::Double, "NUM"},
    TypeWord{ColumnKind::Double, "DEC"},
};

struct NamedKind
{
    QStringView name;
    int kind;
};

constexpr std::array namedKinds{
    NamedKind{u"Index", ColumnKind::Integer},         NamedKind{u"Date", ColumnKind::Date},
    NamedKind{u"Picture", ColumnKind::LongVarBinary}, NamedKind{u"FullPage", ColumnKind::LongVarWChar},
    NamedKind{u"Memo", ColumnKind::LongVarWChar},
};

struct IntegerRange
{
    int kind;
    qint64 least;
    qint64 greatest;
};

constexpr std::array integerRanges{
    IntegerRange{ColumnKind::Integer, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()},
    IntegerRange{ColumnKind::SmallInt, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()},
    IntegerRange{ColumnKind::Byte, 0, std::numeric_limits<quint8>::max()},
};

// A number in `value`, which may be a text.
double numberIn(const QVariant &value)
{
    bool good = false;
    const double number =
        value.typeId() == QMetaType::QString ? value.toString().trimmed().toDouble(&good) : value.toDouble(&good);
    if (!good || !std::isfinite(number))
        throw AdoError::error(AdoError::TypeMismatch);
    return number;
}

QVariant integerFor(const IntegerRange &range, const QVariant &value)
{
    // Most numbers come as plain digits, which are read many times faster than any number.
    bool plain = false;
    const qlonglong digits = value.typeId() == QMetaType::QString ? value.toString().toLongLong(&plain) : 0;
    // Halves go to the even neighbour, as everywhere where a number becomes a whole one.
    const double whole = plain ? static_cast<double>(digits) : std::nearbyint(numberIn(value));
    if (whole < static_cast<double>(range.least) || whole > static_cast<double>(range.greatest))
        throw AdoError::error(AdoError::MultipleStep);
    return static_cast<qlonglong>(whole);
}

QVariant dateFor(const QVariant &value)
{
    if (value.typeId() == QMetaType::QDate)
        return StoredDates::text(value.toDate().startOfDay(Qt::UTC));
    if (value.typeId() == QMetaType::QDateTime)
        return StoredDates::text(value.toDateTime());
    if (value.typeId() == QMetaType::QString && StoredDates::isStored(value.toString()))
        return value;
    const auto moment = value.typeId() == QMetaType::QString ? StoredDates::parse(value.toString()) : std::nullopt;
    if (!moment)
        throw AdoError::error(AdoError::TypeMismatch);
    return StoredDates::text(*moment);
}

QVariant textFor(int kind, const QVariant &value)
{
    QString text = valueText(value);
    if (kind != ColumnKind::LongVarWChar && kind != ColumnKind::LongVarChar && text.size() > maxTextLength)
        throw AdoError::error(AdoError::MultipleStep);
    return text;
}

QVariant decimalFor(const QVariant &value)
{
    static_cast<void>(numberIn(value));
    return valueText(value).trimmed();
}

QVariant booleanFor(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString) {
        const QString text = value.toString().trimmed();
        if (text.compare("True"_L1, Qt::CaseInsensitive) == 0)
            return true;
        if (text.compare("False"_L1, Qt::CaseInsensitive) == 0)
            return false;
    }
    return numberIn(value) != 0;
}

QVariant bytesFor(const QVariant &value)
{
    if (value.typeId() != QMetaType::QByteArray)
        throw AdoError::error(AdoError::TypeMismatch);
    return value;
}
} // namespace

int columnKindOf(QStringView fieldName)
{
    if (fieldName.indexOf("Index"_L1, 0, Qt::CaseInsensitive) >= 1)
        return ColumnKind::Integer;
    const auto *const found =
        std::find_if(namedKinds.begin(), namedKinds.end(), [&](const auto &row) { return row.name == fieldName; });
    return found == namedKinds.end() ? ColumnKind::WChar : found->kind;
}

std::string_view declaredType(int kind)
{
    const auto *const found =
        std::find_if(typeWords.begin(), typeWords.end(), [kind](const auto &row) { return row.kind == kind; });
    return found == typeWords.end() ? std::string_view("LONGTEXT") : found->declared;
}

int kindOfDeclaredType(std::string_view declared)
{
    const auto *const own = std::find_if(typeWords.begin(), typeWords.end(),
                                         [declared](const auto &row) { return row.declared == declared; });
    if (own != typeWords.end())
        return own->kind;
    const auto word = QByteArray(declared.data(), static_cast<qsizetype>(declared.size())).toUpper();
    const auto *const foreign = std::find_if(foreignWords.begin(), foreignWords.end(), [&](const auto &row) {
        return word.contains(QByteArrayView(row.declared.data(), static_cast<qsizetype>(row.declared.size())));
    });
    return foreign == foreignWords.end() ? ColumnKind::WChar : foreign->kind;
}

bool startsAsEmptyText(int kind)
{
    return kind == ColumnKind::WChar || kind == ColumnKind::VarWChar || kind == ColumnKind::LongVarWChar;
}

QVariant valueForColumn(int kind, const QVariant &value)
{
    if (value.isNull() && value.typeId() != QMetaType::QString && value.typeId() != QMetaType::QByteArray)
        return {};
    const auto *const range =
        std::find_if(integerRanges.begin(), integerRanges.end(), [kind](const auto &row) { return row.kind == kind; });
    if (range != integerRanges.end())
        return integerFor(*range, value);
    switch (kind) {
    case ColumnKind::Single:
    case ColumnKind::Double:
        return numberIn(value);
    case ColumnKind::Currency:
    case ColumnKind::Numeric:
        return decimalFor(value);
    case ColumnKind::Date:
        return dateFor(value);
    case ColumnKind::Boolean:
        return booleanFor(value);
    case ColumnKind::Binary:
    case ColumnKind::LongVarBinary:
        return bytesFor(value);
    default:
        return textFor(kind, value);
    }
}

QString valueText(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? u"True"_s : u"False"_s;
    case QMetaType::Double:
    case QMetaType::Float:
        return QString::number(value.toDouble(), 'g', 15);
    case QMetaType::QByteArray:
        return QString::fromLatin1(value.toByteArray());
    case QMetaType::QDate:
        return StoredDates::text(value.toDate().startOfDay(Qt::UTC));
    case QMetaType::QDateTime:
        return StoredDates::text(value.toDateTime());
    default:
        return value.toString();
    }
}
