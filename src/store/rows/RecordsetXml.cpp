#include "store/rows/RecordsetXml.h"
#include "store/rows/ColumnKinds.h"

#include <QXmlStreamReader>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr QLatin1StringView rootName{"recordset"};
constexpr QLatin1StringView columnName{"column"};
constexpr QLatin1StringView rowName{"row"};
constexpr QLatin1StringView valueName{"v"};
constexpr QLatin1StringView typeName{"type"};

// The forms of a value, as its attribute names them.
constexpr QLatin1StringView nullType{"null"};
constexpr QLatin1StringView bytesType{"bytes"};
constexpr QLatin1StringView encodedType{"encoded"};
constexpr QLatin1StringView integerType{"integer"};
constexpr QLatin1StringView numberType{"number"};

// A document holds line ends as they stand only in this form, and no control characters at all.
bool isPlain(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) {
        const char16_t unit = character.unicode();
        return (unit >= 0x20 || unit == u'\t' || unit == u'\n') && !character.isSurrogate() && unit < 0xFFFE;
    });
}

QVariant valueIn(QXmlStreamReader &xml)
{
    const QString type = xml.attributes().value(typeName).toString();
    const QString text = xml.readElementText();
    if (type == nullType)
        return {};
    if (type == bytesType)
        return QByteArray::fromBase64(text.toLatin1());
    if (type == encodedType) {
        const QByteArray units = QByteArray::fromBase64(text.toLatin1());
        return QString(reinterpret_cast<const QChar *>(units.constData()), units.size() / qsizetype(sizeof(QChar)));
    }
    if (type == integerType)
        return text.toLongLong();
    return type == numberType ? QVariant(text.toDouble()) : QVariant(text);
}

std::vector<QVariant> rowIn(QXmlStreamReader &xml)
{
    std::vector<QVariant> values;
    while (xml.readNextStartElement())
        values.push_back(valueIn(xml));
    return values;
}
} // namespace

RecordsetXmlWriter::RecordsetXmlWriter(QIODevice &device, const std::vector<TableFiller::Column> &columns)
    : mXml(&device)
{
    mXml.writeStartDocument();
    mXml.writeStartElement(rootName);
    for (const auto &[name, kind] : columns) {
        mXml.writeStartElement(columnName);
        mXml.writeAttribute(u"name"_s, name);
        mXml.writeAttribute(u"kind"_s, QString::number(kind));
        mXml.writeEndElement();
    }
}

void RecordsetXmlWriter::addRow(const std::vector<QVariant> &values)
{
    mXml.writeStartElement(rowName);
    for (const QVariant &value : values)
        addValue(value);
    mXml.writeEndElement();
}

void RecordsetXmlWriter::addValue(const QVariant &value)
{
    mXml.writeStartElement(valueName);
    const auto write = [this](QLatin1StringView type, const QString &text) {
        if (!type.isEmpty())
            mXml.writeAttribute(typeName, type);
        mXml.writeCharacters(text);
    };
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        write(nullType, {});
        break;
    case QMetaType::QByteArray:
        write(bytesType, QString::fromLatin1(value.toByteArray().toBase64()));
        break;
    case QMetaType::Double:
        write(numberType, QString::number(value.toDouble(), 'g', 17));
        break;
    case QMetaType::QString: {
        const QString text = value.toString();
        const auto units =
            QByteArrayView(reinterpret_cast<const char *>(text.constData()), text.size() * qsizetype(sizeof(QChar)));
        if (isPlain(text))
            write({}, text);
        else
            write(encodedType, QString::fromLatin1(units.toByteArray().toBase64()));
        break;
    }
    default:
        write(integerType, QString::number(value.toLongLong()));
    }
    mXml.writeEndElement();
}

bool RecordsetXmlWriter::finish()
{
    mXml.writeEndDocument();
    return !mXml.hasError();
}

bool readRecordsetXml(QIODevice &device, Connection &connection, const QString &table)
{
    QXmlStreamReader xml(&device);
    if (!xml.readNextStartElement() || xml.name() != rootName)
        return false;
    std::vector<TableFiller::Column> columns;
    while (xml.readNextStartElement() && xml.name() == columnName) {
        columns.push_back({xml.attributes().value("name"_L1).toString(), xml.attributes().value("kind"_L1).toInt()});
        xml.skipCurrentElement();
    }
    if (columns.empty())
        return false;
    TableFiller filler(connection, table, columns);
    while (!xml.atEnd() && xml.isStartElement() && xml.name() == rowName) {
        const std::vector<QVariant> values = rowIn(xml);
        if (values.size() != columns.size())
            return false;
        filler.addRow(values);
        xml.readNextStartElement();
    }
    if (xml.hasError() || !xml.isEndElement() || xml.name() != rootName)
        return false;
    filler.finish();
    return true;
}
