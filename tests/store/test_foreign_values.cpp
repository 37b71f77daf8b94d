// Bytes and long texts of other programs' files. What the samples do not hold is put into copies of them: a column's
// type is changed in the table's definition, and a value's bytes are overwritten wherever the file keeps them.
#include "ForeignFixture.h"

#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {
enum ColumnType : char { Binary = 9, TextType = 10, Ole = 11, Memo = 12 };

// Where a table's definition keeps its columns.
struct Layout
{
    qsizetype pageSize;
    qsizetype columnCount;
    qsizetype indexCount;
    qsizetype firstColumn;
    qsizetype indexSize;
    qsizetype columnSize;
};
constexpr Layout oldLayout{2048, 25, 31, 43, 8, 18};
constexpr Layout newLayout{4096, 45, 51, 63, 12, 25};
constexpr qint64 catalogPage = 2;

bool isOld(const QByteArray &file)
{
    constexpr qsizetype versionPlace = 0x14;
    return file.at(versionPlace) == 0;
}

// All columns of one type become columns of another.
void changeType(QByteArray &file, qint64 page, ColumnType from, ColumnType to)
{
    const Layout &layout = isOld(file) ? oldLayout : newLayout;
    char *const definition = file.data() + page * layout.pageSize;
    const auto columns = qFromLittleEndian<quint16>(definition + layout.columnCount);
    const auto indexes = qFromLittleEndian<quint32>(definition + layout.indexCount);
    char *column = definition + layout.firstColumn + indexes * layout.indexSize;
    for (int place = 0; place < columns; ++place, column += layout.columnSize) {
        if (*column == from)
            *column = to;
    }
}

// The number of characters that two texts have in common from their starts on.
qsizetype commonLength(QByteArrayView left, QByteArrayView right)
{
    return std::mismatch(left.begin(), left.end(), right.begin(), right.end()).first - left.begin();
}

// Writes `other` over a value. Long values lie in pieces on several pages, and old copies may lie about: the longest
// piece that is found is the one, with all its copies.
void overwrite(QByteArray &file, const QByteArray &value, const QByteArray &other)
{
    constexpr qsizetype least = 48;
    for (qsizetype done = 0; done < value.size();) {
        const QByteArrayView rest = QByteArrayView(value).sliced(done);
        qsizetype longest = 0;
        QList<qsizetype> places;
        for (qsizetype place = -1; (place = file.indexOf(rest.first(std::min(least, rest.size())), place + 1)) >= 0;) {
            const qsizetype length = commonLength(rest, QByteArrayView(file).sliced(place));
            if (length > longest)
                places.clear();
            longest = std::max(longest, length);
            if (length == longest)
                places.append(place);
        }
        ASSERT_GT(longest, 0) << "byte " << done << " of the value is not in the file";
        for (const qsizetype place : places)
            file.replace(place, longest, other.mid(done, longest));
        done += longest;
    }
}

// A text in the file's own form, with letters beyond ASCII, and what it reads.
struct Pattern
{
    QByteArray bytes;
    QString text;
};

Pattern patternOf(qsizetype size, bool old)
{
    Pattern pattern{QByteArray(size, '\0'), {}};
    if (old) {
        // The old files' texts are in the code page of Windows.
        for (qsizetype place = 0; place < size; ++place) {
            pattern.bytes[place] = "\xE4\x80"
                                   "abcde"[place % 7];
            pattern.text += u"ä€abcde"[place % 7];
        }
        return pattern;
    }
    for (qsizetype place = 0; place + 1 < size; place += 2) {
        const auto unit = static_cast<char16_t>(0x0430 + place / 2 % 32);
        qToLittleEndian(unit, pattern.bytes.data() + place);
        pattern.text += unit;
    }
    return pattern;
}

struct PropertyCase
{
    const char *file;
    /// The objects that have properties, by name, and the size of the properties.
    QMap<QString, qsizetype> sizes;
};

void PrintTo(const PropertyCase &row, std::ostream *out)
{
    *out << row.file;
}

class ForeignProperties : public ForeignTest, public testing::WithParamInterface<PropertyCase>
{
  protected:
    // Each object's properties; Null where it has none.
    [[nodiscard]] QMap<QString, QVariant> properties(const QString &file)
    {
        QMap<QString, QVariant> all;
        for (const QVariantList &row : valuesOf(file, u"SELECT Name,LvProp FROM MSysObjects"_s))
            all[row[0].toString()] = row[1];
        return all;
    }
};

constexpr int bytesKind = 205;
constexpr int textKind = 203;
} // namespace

TEST_P(ForeignProperties, AreBytesWhateverTheirLength)
{
    SAMPLE(path, QString::fromLatin1(GetParam().file));
    const QByteArray mark = isOld(contentOf(path)) ? QByteArray("KKD", 4) : QByteArray("MR2", 4);
    EXPECT_EQ(kindsOf(path, u"SELECT LvProp FROM MSysObjects"_s), QList<int>{bytesKind});
    QMap<QString, qsizetype> sizes;
    int nulls = 0;
    const auto all = properties(path);
    for (auto it = all.begin(); it != all.end(); ++it) {
        if (!it.value().isValid()) {
            ++nulls;
            continue;
        }
        ASSERT_EQ(it.value().typeId(), QMetaType::QByteArray);
        const QByteArray bytes = it.value().toByteArray();
        sizes[it.key()] = bytes.size();
        // Behind the mark each part tells its own length: a page that is missing or out of order shows.
        EXPECT_EQ(bytes.left(mark.size()), mark);
        qsizetype place = mark.size();
        while (place + 6 <= bytes.size()) {
            const auto length = qFromLittleEndian<quint32>(bytes.constData() + place);
            ASSERT_GE(length, 6U);
            place += length;
        }
        EXPECT_EQ(place, bytes.size()) << it.key().toStdString();
    }
    EXPECT_EQ(sizes, GetParam().sizes);
    EXPECT_GT(nulls, 0);
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

TEST_P(ForeignProperties, AreReadByteByByte)
{
    SAMPLE(path, QString::fromLatin1(GetParam().file));
    QByteArray file = contentOf(path);
    const auto before = properties(path);
    for (const QVariant &value : before)
        overwrite(file, value.toByteArray(), patternOf(value.toByteArray().size(), true).bytes);
    const auto after = properties(written(file));
    EXPECT_EQ(after.keys(), before.keys());
    for (auto it = after.begin(); it != after.end(); ++it) {
        EXPECT_EQ(it.value().isValid(), before[it.key()].isValid());
        EXPECT_EQ(it.value().toByteArray(), patternOf(before[it.key()].toByteArray().size(), true).bytes)
            << it.key().toStdString();
    }
}

TEST_P(ForeignProperties, AreReadAsLongTextsWhereTheirColumnIsOne)
{
    SAMPLE(path, QString::fromLatin1(GetParam().file));
    QByteArray file = contentOf(path);
    const bool old = isOld(file);
    const auto before = properties(path);
    for (const QVariant &value : before)
        overwrite(file, value.toByteArray(), patternOf(value.toByteArray().size(), old).bytes);
    changeType(file, catalogPage, Ole, Memo);
    const auto after = properties(written(file));
    EXPECT_EQ(kindsOf(written(file), u"SELECT LvProp FROM MSysObjects"_s), QList<int>{textKind});
    EXPECT_EQ(after.keys(), before.keys());
    for (auto it = after.begin(); it != after.end(); ++it) {
        const QVariant &was = before[it.key()];
        EXPECT_EQ(it.value(), was.isValid() ? QVariant(patternOf(was.toByteArray().size(), old).text) : QVariant())
            << it.key().toStdString();
    }
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

// Short ones stand in the row, longer ones on a page of their own, and the longest on a chain of pages.
INSTANTIATE_TEST_SUITE_P(
    Files, ForeignProperties,
    testing::Values(PropertyCase{"testV1997.mdb",
                                 {{u"MSysDb"_s, 277},
                                  {u"SummaryInfo"_s, 102},
                                  {u"UserDefined"_s, 49},
                                  {u"Table1"_s, 1040},
                                  {u"Table2"_s, 9818},
                                  {u"Table3"_s, 296},
                                  {u"Table4"_s, 356}}},
                    PropertyCase{"test2V2000.mdb",
                                 {{u"MSysDb"_s, 120}, {u"AccessLayout"_s, 52}, {u"MSP_PROJECTS"_s, 12757}}}),
    [](const auto &row) { return QString::fromLatin1(row.param.file).section(u'.', 0, 0).toStdString(); });

TEST_F(ForeignTest, BytesInTheRowAndNoneAtAll)
{
    for (const QString &name : {u"overflowTestV1997.mdb"_s, u"delColTestV2000.mdb"_s}) {
        SAMPLE(path, name);
        QByteArray file = contentOf(path);
        const auto before = valuesOf(path, u"SELECT * FROM Table1"_s);
        const auto ids = valuesOf(path, u"SELECT Id,Name FROM MSysObjects"_s);
        const auto id = std::find_if(ids.begin(), ids.end(), [](const auto &row) { return row[1] == u"Table1"_s; });
        ASSERT_NE(id, ids.end());
        const bool old = isOld(file);
        changeType(file, id->front().toLongLong(), TextType, Binary);
        const auto after = valuesOf(written(file), u"SELECT * FROM Table1"_s);
        ASSERT_EQ(after.size(), before.size());
        int bytes = 0;
        for (std::size_t row = 0; row < before.size(); ++row) {
            for (qsizetype column = 0; column < before[row].size(); ++column) {
                const QVariant &was = before[row][column];
                const QVariant &is = after[row][column];
                if (was.typeId() != QMetaType::QString) {
                    EXPECT_EQ(is, was);
                    continue;
                }
                ++bytes;
                EXPECT_EQ(is, QVariant((old ? "" : "\xFF\xFE") + was.toString().toLatin1()));
            }
        }
        EXPECT_GT(bytes, 3);
    }
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

TEST_F(ForeignTest, AnAttachedFileComesOutWhole)
{
    SAMPLE(path, u"complexDataTestV2010.accdb"_s);
    const auto contentOfFirst = [&](const QString &table) {
        // A head of eight bytes, the second four of them the size, and the content, packed and with a checksum.
        const QByteArray packed =
            valuesOf(path, u"SELECT FileData FROM ["_s + table + u"]"_s).front().front().toByteArray();
        QByteArray size(4, '\0');
        qToBigEndian(qFromLittleEndian<quint32>(packed.constData() + 4), size.data());
        return qUncompress(size + packed.mid(8));
    };
    const QByteArray text = contentOfFirst(u"f_3B07F994AD0A4B56A3A1E13B3A1D3B70_attach-data"_s);
    EXPECT_TRUE(text.endsWith("this is some test data for attachment.")) << text.constData();
    EXPECT_EQ(contentOfFirst(u"f_63A2725FD5F0424B858BA73DA673639B_Data"_s).size(), 3118);
}

TEST_F(ForeignTest, WhatTheLibraryPrintsIsNoPartOfTheAnswer)
{
    SAMPLE(path, u"testV1997.mdb"_s);
    QByteArray file = contentOf(path);
    // Properties of no known form make the library talk.
    file.replace(QByteArray("KKD", 4), "????");
    EXPECT_EQ(mDatabase.GetExternalTablesFields(written(file)), mDatabase.GetExternalTablesFields(path));
    EXPECT_EQ(rowsOf(written(file), u"SELECT * FROM Table1"_s), rowsOf(path, u"SELECT * FROM Table1"_s));
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}
