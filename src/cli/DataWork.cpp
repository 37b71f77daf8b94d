#include "cli/DataWork.h"

#include "cli/ErrorLine.h"

using namespace Qt::StringLiterals;

namespace {
bool exportTable(Program &program, const DataArguments &arguments)
{
    const DataArguments::Condition where = arguments.where.value_or(DataArguments::Condition());
    const ExportSource source{*arguments.exported, where.field, where.text};
    return program.dataSide.exports.exportTable(source, *arguments.format, arguments.to);
}

struct Step
{
    QString begins, done;
    std::function<QString()> import;
};

/// What is to be imported, in this order.
QList<Step> stepsOf(Imports &imports, const DataArguments &arguments)
{
    const QString file = *arguments.imported;
    QList<Step> steps;
    if (arguments.allSettings)
        steps.append({u"Importing all settings"_s, u"Settings Imported"_s,
                      [=, &imports] { return imports.ImportAllSettings(file); }});
    if (arguments.allData)
        steps.append(
            {u"Importing all data"_s, u"Data Imported"_s, [=, &imports] { return imports.ImportAllData(file); }});
    if (!arguments.table.isEmpty())
        steps.append({"Importing "_L1 + arguments.table, arguments.table + " Imported"_L1,
                      [=, &imports] { return imports.ImportTable(file, arguments.table); }});
    const DataArguments::FieldOf from = arguments.from, into = arguments.into;
    if (!from.field.isEmpty())
        steps.append({"Importing "_L1 + from.field, u"Data imported"_s, [=, &imports] {
                          return imports.ImportField(file, from.table, from.field, into.table, into.field);
                      }});
    return steps;
}

bool import(Program &program, const DataArguments &arguments)
{
    Imports &imports = program.dataSide.imports;
    const auto refuse = [&](const QString &why) {
        program.status.UpDateStatus(why);
        return false;
    };
    if (imports.isOpenDatabase(*arguments.imported))
        return refuse(u"Can't import loaded database"_s);
    if (arguments.from.field.isEmpty() && !imports.TestImportDatabase(*arguments.imported))
        return refuse(u"Not an Trawlex database"_s);
    bool cancelled = false;
    for (const Step &step : stepsOf(imports, arguments)) {
        if (cancelled)
            return refuse("Cancelled before: "_L1 + step.begins);
        QString failure;
        program.longWork.run(step.begins, [&] {
            failure = step.import();
            cancelled = program.longWork.isCancelled();
        });
        program.status.UpDateStatus(failure.isEmpty() ? step.done : failure);
        if (!failure.isEmpty())
            return false;
    }
    return true;
}
} // namespace

void printStatuses(Program &program)
{
    QObject::connect(&program.status, &StatusLine::told, &program.form,
                     [begun = QString()](const QString &text) mutable {
                         if (!begun.isEmpty() && text.startsWith(begun + u' '))
                             return;
                         if (text.startsWith("Exporting "_L1) || text.startsWith("Importing "_L1))
                             begun = text;
                         printError(text);
                     });
}

bool runDataCommand(Program &program, const DataArguments &arguments)
{
    program.options.GetSettings();
    return program.databaseFile.LoadDatabase(false) && program.database.isSet() &&
           (arguments.exported ? exportTable(program, arguments) : import(program, arguments));
}
