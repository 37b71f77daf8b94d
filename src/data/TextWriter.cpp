// The forms of export that are text, as a table: what opens the file, what a row is, what closes it.
#include "data/NewFile.h"
#include "data/RowWriters.h"
#include "pages/EmailFinder.h"
#include "util/Errors.h"
#include "util/Text.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {
constexpr auto lineEnd = "\r\n"_L1;
constexpr auto tableStart = "<HTML><TABLE Border=1><TR><TD>"_L1;

void commaRow(QString &text, const DataColumns &columns, const DataRow &values)
{
    for (std::size_t i = 0; i < values.size(); ++i)
        text.append(i == 0 ? ""_L1 : ","_L1).append(Cells::text(columns[i], values[i]));
    text += lineEnd;
}

void tabRow(QString &text, const DataColumns &columns, const DataRow &values)
{
    for (std::size_t i = 0; i < values.size(); ++i)
        text.append(Cells::text(columns[i], values[i])).append(u'\t');
    text += "\r\n\r\n"_L1;
}

void bareCellsRow(QString &text, const DataColumns &columns, const DataRow &values)
{
    for (std::size_t i = 0; i < values.size(); ++i)
        text.append(i == 0 ? ""_L1 : "<TD>"_L1)
            .append(values[i].isNull() ? u"N/A"_s : Cells::text(columns[i], values[i]));
    text.append(lineEnd).append("<TR><TD>"_L1);
}

// Every link that does not begin with "http://" gets it in front, one with "https://" too: the format of these files.
void linkedRow(QString &text, const DataColumns &columns, const DataRow &values)
{
    constexpr qint64 invalidUseOfNull = 94;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i].isNull())
            throw RuntimeError(invalidUseOfNull, u"Invalid use of Null"_s);
        QString value = Cells::text(columns[i], values[i]);
        if (cIEText::IsThisEmailOrLink(value, true) != cIEText::TextKind::Link) {
            text.append("<TD>"_L1).append(value).append(u'\t');
            continue;
        }
        if (!cUtility::startsWithIgnoringCase(value, u"http://"))
            value.prepend("http://"_L1);
        text.append("<TD><A Href=\""_L1).append(value).append("\">"_L1).append(value).append("</A>"_L1);
    }
    text.append("<TR><TD>\r\n\r\n"_L1);
}

QString quoted(const QString &text)
{
    static constexpr QStringView special = u",\"\r\n";
    const bool plain = std::none_of(text.begin(), text.end(), [](QChar unit) { return special.contains(unit); });
    return plain ? text : u'"' + QString(text).replace(u'"', "\"\""_L1) + u'"';
}

QString heads(const DataColumns &columns)
{
    QStringList names;
    for (const DataColumn &column : columns)
        names.append(quoted(Cells::harmless(column.name)));
    return names.join(u',') + lineEnd;
}

void csvRow(QString &text, const DataColumns &columns, const DataRow &values)
{
    for (std::size_t i = 0; i < values.size(); ++i)
        text.append(i == 0 ? ""_L1 : ","_L1).append(quoted(Cells::harmless(Cells::text(columns[i], values[i]))));
    text += lineEnd;
}

QString json(const QString &text)
{
    QString written = u"\""_s;
    for (const QChar unit : text) {
        if (unit == u'"' || unit == u'\\')
            written.append(u'\\').append(unit);
        else if (unit < u' ')
            written += u"\\u%1"_s.arg(unit.unicode(), 4, 16, QChar(u'0'));
        else
            written += unit;
    }
    return written + u'"';
}

QString jsonValue(const DataColumn &column, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return u"null"_s;
    case QMetaType::Bool:
        return value.toBool() ? u"true"_s : u"false"_s;
    case QMetaType::LongLong:
        return value.toString();
    case QMetaType::Double:
        return std::isfinite(value.toDouble()) ? Cells::text(column, value) : u"null"_s;
    case QMetaType::QByteArray:
        return json(QString::fromLatin1(value.toByteArray().toBase64()));
    default:
        return json(Cells::text(column, value));
    }
}

void jsonRow(QString &text, const DataColumns &columns, const DataRow &values)
{
    for (std::size_t i = 0; i < values.size(); ++i)
        text.append(i == 0 ? u'{' : u',')
            .append(json(columns[i].name))
            .append(u':')
            .append(jsonValue(columns[i], values[i]));
    text += "}\n"_L1;
}

struct TextForm
{
    DataFormat format;
    bool byteOrderMark;
    bool hasHeads;
    QLatin1StringView opening;
    void (*row)(QString &text, const DataColumns &columns, const DataRow &values);
    QLatin1StringView closing;
};

constexpr TextForm forms[] = {
    {DataFormat::Comma, false, false, {}, commaRow, lineEnd},
    {DataFormat::Tab, false, false, {}, tabRow, {}},
    {DataFormat::HtmlCells, true, false, tableStart, bareCellsRow, "</TABLE></HTML>\r\n"_L1},
    {DataFormat::HtmlLinks, true, false, "<HTML><TABLE Border=1><TR><TD>\r\n"_L1, linkedRow, "</TABLE></HTML>\r\n"_L1},
    {DataFormat::Csv, true, true, {}, csvRow, {}},
    {DataFormat::JsonLines, false, false, {}, jsonRow, {}},
};

const TextForm &formOf(DataFormat format)
{
    const auto *const found =
        std::find_if(std::begin(forms), std::end(forms), [&](const TextForm &form) { return form.format == format; });
    if (found == std::end(forms))
        throw RuntimeError(ErrorNumber::InvalidProcedureCall, u"No form of text"_s);
    return *found;
}

class TextWriter : public RowWriter
{
  public:
    TextWriter(DataFormat format, const QString &path, const DataColumns &columns)
        : mForm(formOf(format)), mColumns(columns), mFile(path)
    {
        if (mForm.byteOrderMark)
            mText += QChar(QChar::ByteOrderMark);
        mText += mForm.opening;
        if (mForm.hasHeads)
            mText += heads(mColumns);
    }

    void row(const DataRow &values) override
    {
        mForm.row(mText, mColumns, values);
        if (mText.size() >= portion)
            write();
    }

    void finish() override
    {
        mText += mForm.closing;
        write();
        mFile.commit();
    }

  private:
    static constexpr qsizetype portion = 1 << 16;

    void write()
    {
        mFile.write(mText.toUtf8());
        mText.resize(0);
    }

    const TextForm &mForm;
    DataColumns mColumns;
    NewFile mFile;
    QString mText;
};
} // namespace

std::unique_ptr<RowWriter> RowWriters::text(DataFormat format, const QString &path, const DataColumns &columns)
{
    return std::make_unique<TextWriter>(format, path, columns);
}
