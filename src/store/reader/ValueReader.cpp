#include "store/reader/ValueReader.h"
#include "store/foreign/TextForms.h"
#include "store/reader/FrameWriter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <stdexcept>

namespace {
struct TypeKind
{
    int type;
    int kind;
};

// Types of newer files that the library has no names for.
constexpr int largeNumber = 0x13;
constexpr int extendedDateTime = 0x14;

constexpr std::array typeKinds{
    TypeKind{MDB_BOOL, 11},        TypeKind{MDB_BYTE, 17},     TypeKind{MDB_INT, 2},     TypeKind{MDB_LONGINT, 3},
    TypeKind{MDB_MONEY, 6},        TypeKind{MDB_FLOAT, 4},     TypeKind{MDB_DOUBLE, 5},  TypeKind{MDB_DATETIME, 7},
    TypeKind{MDB_TEXT, 130},       TypeKind{MDB_MEMO, 203},    TypeKind{MDB_OLE, 205},   TypeKind{MDB_BINARY, 128},
    TypeKind{MDB_REPID, 72},       TypeKind{MDB_NUMERIC, 131}, TypeKind{MDB_COMPLEX, 3}, TypeKind{largeNumber, 131},
    TypeKind{extendedDateTime, 7},
};

// The least that a value of the type takes on its page.
constexpr std::array fixedSizes{
    TypeKind{MDB_BYTE, 1},   TypeKind{MDB_INT, 2},      TypeKind{MDB_LONGINT, 4}, TypeKind{MDB_COMPLEX, 4},
    TypeKind{MDB_MONEY, 8},  TypeKind{MDB_FLOAT, 4},    TypeKind{MDB_DOUBLE, 8},  TypeKind{MDB_DATETIME, 8},
    TypeKind{MDB_REPID, 16}, TypeKind{MDB_NUMERIC, 17}, TypeKind{largeNumber, 8}, TypeKind{extendedDateTime, 42},
};

template <std::size_t Count> int lookedUp(const std::array<TypeKind, Count> &rows, int type, int otherwise)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [type](const TypeKind &row) { return row.type == type; });
    return found == rows.end() ? otherwise : found->kind;
}

template <class Number> std::string shortest(Number number)
{
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), end.ptr};
}

// Takes a text that the library has allocated.
std::string taken(char *text)
{
    std::string copy = text == nullptr ? std::string() : std::string(text);
    g_free(text);
    return copy;
}

bool isCalculated(MdbColumn &column)
{
    return mdb_col_get_prop(&column, "Expression") != nullptr;
}

std::string required(std::string text, const char *otherwise)
{
    if (text.empty())
        throw std::runtime_error(otherwise);
    return text;
}

std::int64_t longLong(const void *bytes)
{
    std::int64_t number = 0;
    std::memcpy(&number, bytes, sizeof(number));
    return static_cast<std::int64_t>(GUINT64_FROM_LE(static_cast<std::uint64_t>(number)));
}
} // namespace

int columnKind(int fileType)
{
    constexpr int bytes = 128;
    return lookedUp(typeKinds, fileType, bytes);
}

ValueReader::ValueReader(const JetFile &file, MdbTableDef &table)
    : mHandle(file.handle()), mTable(table), mColumns(JetFile::columns(table)), mFields(mColumns.size()),
      mPiece(MDB_PGSIZE * 4, '\0'), mCodePage(file.hasCodePage())
{
    mdb_rewind_table(&mTable);
}

bool ValueReader::writeNextRow()
{
    if (mdb_fetch_row(&mTable) == 0)
        return false;
    int start = 0;
    std::size_t size = 0;
    // The row is taken apart here, since the library itself does not tell an empty text from Null.
    if (mdb_find_row(mHandle, static_cast<int>(mTable.cur_row) - 1, &start, &size) != 0)
        throw std::runtime_error("A row cannot be found.");
    constexpr int offsetMask = 0x1FFF;
    // The answer counts deleted columns too, but no more fields are filled than the table has columns.
    if (mdb_crack_row(&mTable, start & offsetMask, size, mFields.data()) < 0)
        throw std::runtime_error("A row is damaged.");
    std::vector<const MdbField *> byColumn(mColumns.size(), nullptr);
    for (const MdbField &field : mFields) {
        if (field.colnum >= 0 && static_cast<std::size_t>(field.colnum) < byColumn.size())
            byColumn[static_cast<std::size_t>(field.colnum)] = &field;
    }
    writeFrame(Frames::Row);
    for (std::size_t place = 0; place < mColumns.size(); ++place) {
        if (byColumn[place] == nullptr)
            writeFrame(Frames::Null);
        else if (isCalculated(*mColumns[place]))
            writeCalculated(*mColumns[place], *byColumn[place]);
        else
            writeValue(*mColumns[place], *byColumn[place]);
    }
    return true;
}

void ValueReader::requireInside(const MdbField &field) const
{
    const auto page = static_cast<long>(mHandle->fmt->pg_size);
    if (field.start < 0 || field.siz < 0 || long(field.start) + long(field.siz) > page)
        throw std::runtime_error("A value lies outside its page.");
}

std::string ValueReader::fieldBytes(const MdbField &field) const
{
    return {reinterpret_cast<const char *>(mHandle->pg_buf) + field.start, static_cast<std::size_t>(field.siz)};
}

// The values of a calculated column lie in a wrapping; only the long ones have theirs outside of the row.
void ValueReader::writeCalculated(MdbColumn &column, const MdbField &field)
{
    if (field.is_null) {
        writeFrame(Frames::Null);
        return;
    }
    requireInside(field);
    const bool isLong = column.col_type == MDB_MEMO || column.col_type == MDB_OLE;
    const std::string bytes = isLong ? longBytes(column, field) : fieldBytes(field);
    const auto inner = calculatedValue(bytes);
    if (!inner || column.col_type == MDB_NUMERIC)
        throw std::runtime_error(std::string("The calculated column ") + column.name + " cannot be read.");
    const std::string value = bytes.substr(inner->start, inner->length);
    if (column.col_type == MDB_MEMO)
        return writeFrame(Frames::Text, textFromUnits(value));
    if (column.col_type == MDB_OLE)
        return writeFrame(Frames::Bytes, value);
    if (column.col_type == MDB_BOOL)
        return writeFrame(Frames::Integer, !value.empty() && value.front() != 0 ? "1" : "0");
    MdbField unwrapped = field;
    unwrapped.start += static_cast<int>(inner->start);
    unwrapped.siz = static_cast<int>(inner->length);
    writeValue(column, unwrapped);
}

void ValueReader::writeValue(MdbColumn &column, const MdbField &field)
{
    if (column.col_type == MDB_BOOL) {
        writeFrame(Frames::Integer, field.is_null ? "0" : "1");
        return;
    }
    if (field.is_null) {
        writeFrame(Frames::Null);
        return;
    }
    requireInside(field);
    if (field.siz < lookedUp(fixedSizes, column.col_type, 0))
        throw std::runtime_error("A value is shorter than its type.");
    unsigned char *const page = mHandle->pg_buf;
    switch (column.col_type) {
    case MDB_BYTE:
        return writeFrame(Frames::Integer, std::to_string(page[field.start]));
    case MDB_INT:
        return writeFrame(Frames::Integer, std::to_string(static_cast<std::int16_t>(mdb_get_int16(page, field.start))));
    case MDB_LONGINT:
    case MDB_COMPLEX:
        return writeFrame(Frames::Integer, std::to_string(static_cast<std::int32_t>(mdb_get_int32(page, field.start))));
    case MDB_MONEY:
        return writeFrame(Frames::Text, amountText(longLong(page + field.start)));
    case MDB_FLOAT:
        return writeFrame(Frames::Number, shortest(mdb_get_single(page, field.start)));
    case MDB_DOUBLE:
        return writeFrame(Frames::Number, shortest(mdb_get_double(page, field.start)));
    case MDB_DATETIME:
        return writeFrame(Frames::Text, dateFromDays(mdb_get_double(page, field.start)));
    case MDB_NUMERIC:
        return writeFrame(Frames::Text,
                          taken(mdb_numeric_to_string(mHandle, field.start, column.col_scale, column.col_prec)));
    case MDB_REPID:
        return writeFrame(Frames::Text, guidText(fieldBytes(field)));
    case largeNumber:
        return writeFrame(Frames::Text, std::to_string(longLong(page + field.start)));
    case extendedDateTime:
        return writeFrame(Frames::Text, required(extendedDate(fieldBytes(field)), "A date cannot be read."));
    case MDB_TEXT:
        return writeFrame(Frames::Text, mCodePage ? codePageText(column, field) : textFromUnits(fieldBytes(field)));
    case MDB_MEMO:
        return writeFrame(Frames::Text,
                          mCodePage ? codePageText(column, field) : textFromUnits(longBytes(column, field)));
    case MDB_OLE:
        return writeFrame(Frames::Bytes, longBytes(column, field));
    default:
        return writeFrame(Frames::Bytes, fieldBytes(field));
    }
}

// The library knows the code pages. The room for the text is set before each one, since a fixed one would cut it.
std::string ValueReader::codePageText(MdbColumn &column, const MdbField &field) const
{
    constexpr std::uint32_t lengthMask = 0x3FFFFFFF;
    constexpr std::size_t widest = 4;
    std::size_t length = static_cast<std::size_t>(field.siz);
    if (column.col_type == MDB_MEMO && field.siz >= MDB_MEMO_OVERHEAD)
        length = std::max(
            length, std::size_t(static_cast<std::uint32_t>(mdb_get_int32(mHandle->pg_buf, field.start)) & lengthMask));
    if (length > Frames::maxLength / widest)
        throw std::length_error("A text is too long.");
    mdb_set_bind_size(mHandle, length * widest + MDB_BIND_SIZE);
    std::string text = taken(mdb_col_to_string(mHandle, mHandle->pg_buf, field.start, column.col_type, field.siz));
    mdb_set_bind_size(mHandle, MDB_BIND_SIZE);
    return text;
}

// A long value lies in its row, on one other page or on a chain of pages.
std::string ValueReader::longBytes(MdbColumn &column, const MdbField &field)
{
    if (field.siz < MDB_MEMO_OVERHEAD)
        return {};
    std::array<char, MDB_MEMO_OVERHEAD> head{};
    std::memcpy(head.data(), mHandle->pg_buf + field.start, head.size());
    column.cur_value_start = field.start;
    column.cur_value_len = field.siz;
    column.bind_ptr = mPiece.data();
    std::string bytes;
    std::size_t length = mdb_ole_read(mHandle, &column, head.data(), mPiece.size());
    while (length > 0) {
        if (length > mPiece.size() || bytes.size() + length > Frames::maxLength)
            throw std::length_error("A value is too long.");
        bytes.append(mPiece, 0, length);
        length = mdb_ole_read_next(mHandle, &column, head.data());
    }
    column.bind_ptr = nullptr;
    return bytes;
}
