#include "data/Cells.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

DataColumns Cells::columnsOf(const Recordset &rows)
{
    const Fields fields = rows.Fields();
    DataColumns columns;
    for (int column = 0; column < fields.Count(); ++column)
        columns.push_back({fields[column].Name(), fields[column].Type()});
    return columns;
}

QString Cells::text(const DataColumn &column, const QVariant &value)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? u"True"_s : u"False"_s;
    if (value.typeId() == QMetaType::Double)
        return QString::number(value.toDouble(), 'g', 15);
    QString text =
        value.typeId() == QMetaType::QByteArray ? QString::fromLatin1(value.toByteArray()) : value.toString();
    constexpr qsizetype dateLength = 10;
    if (column.isDate() && text.size() > dateLength && text[dateLength] == u'T')
        text[dateLength] = u' ';
    return text;
}

bool Cells::isNumber(QStringView text)
{
    static const QRegularExpression number(u"\\A[+-]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][+-]?[0-9]+)?\\z"_s);
    return number.match(text).hasMatch();
}

QString Cells::harmless(const QString &text)
{
    static constexpr QStringView starts = u"=+-@\t\r";
    return !text.isEmpty() && starts.contains(text.front()) && !isNumber(text) ? u'\'' + text : text;
}
