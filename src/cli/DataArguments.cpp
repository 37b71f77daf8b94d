#include "cli/DataArguments.h"

#include "store/Schema.h"
#include "util/Errors.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {
[[noreturn]] void refuse(const QString &text)
{
    throw RuntimeError(ErrorNumber::InvalidProcedureCall, text);
}

/// The table's name and fields as the schema spells them; nothing for one that is not there.
QStringList schemaOf(const QString &table)
{
    for (const QStringList &row : LoadTblFldNames()) {
        if (row.constFirst().compare(table, Qt::CaseInsensitive) == 0)
            return row;
    }
    return {};
}

DataArguments::FieldOf fieldOf(const QString &option, const QString &text)
{
    const auto dot = text.indexOf(u'.');
    if (dot < 1 || dot + 1 == text.size())
        refuse(u"%1: \"%2\" is not of the form TABLE.FIELD"_s.arg(option, text));
    return {text.left(dot), text.mid(dot + 1)};
}
} // namespace

void DataArguments::takeExport(const QString &value)
{
    const QStringList row = schemaOf(value);
    if (value.isEmpty() || row.isEmpty())
        refuse(u"--export: there is no table \"%1\""_s.arg(value));
    exported = row.constFirst();
}

void DataArguments::takeFormat(const QString &value)
{
    format = ExportKinds::ofWord(value);
    if (format != nullptr)
        return;
    QStringList words;
    for (const ExportKind &kind : ExportKinds::all)
        words.append(kind.word);
    refuse(u"--format: \"%1\" is none of %2"_s.arg(value, words.join(", "_L1)));
}

void DataArguments::takeWhere(const QString &value)
{
    const auto equals = value.indexOf(u'=');
    if (equals < 1 || equals + 1 == value.size())
        refuse(u"--where: \"%1\" is not of the form FIELD=TEXT"_s.arg(value));
    where = Condition{value.left(equals), value.mid(equals + 1)};
}

void DataArguments::takeTo(const QString &value)
{
    to = value;
}

void DataArguments::takeImport(const QString &value)
{
    if (!QFileInfo(value).isFile())
        refuse(u"--import: no such file: %1"_s.arg(value));
    imported = QFileInfo(value).absoluteFilePath();
}

void DataArguments::takeField(const QString &value)
{
    from = fieldOf(u"--field"_s, value.section(u'=', 0, 0));
    into = fieldOf(u"--field"_s, value.section(u'=', 1));
    const QStringList row = schemaOf(into.table);
    if (!row.mid(1).contains(into.field, Qt::CaseInsensitive))
        refuse(u"--field: there is no field \"%1.%2\""_s.arg(into.table, into.field));
    for (const QString &field : {from.field, into.field}) {
        if (field.compare("Index"_L1, Qt::CaseInsensitive) == 0)
            refuse(u"--field: Index fields can not be imported"_s);
    }
}

void DataArguments::check() const
{
    const int kinds = (allData || allSettings ? 1 : 0) + (table.isEmpty() ? 0 : 1) + (from.field.isEmpty() ? 0 : 1);
    if (exported && imported)
        refuse(u"--export and --import exclude each other"_s);
    if (!exported && (format != nullptr || where || !to.isEmpty()))
        refuse(u"--format, --where and --to belong to --export"_s);
    if (!imported && kinds > 0)
        refuse(u"--data, --settings, --table and --field belong to --import"_s);
    if (exported && (format == nullptr || to.isEmpty()))
        refuse(u"--export wants --format and --to"_s);
    if (where && !schemaOf(*exported).mid(1).contains(where->field, Qt::CaseInsensitive))
        refuse(u"--where: %1 has no field \"%2\""_s.arg(*exported, where->field));
    if (imported && kinds != 1)
        refuse(u"--import wants --data, --settings or both, or one of --table and --field"_s);
}
