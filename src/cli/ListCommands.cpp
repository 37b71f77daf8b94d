#include "cli/ListCommands.h"

using namespace Qt::StringLiterals;

void giveUpStoredSeries(Program &program, const Arguments &arguments)
{
    const auto isOfSeries = [](const Arguments::Setting &setting) {
        return setting.control == "cboMNAutoUrl"_L1 || setting.control.startsWith("mnuMNStatusAutoIncrPos("_L1);
    };
    const bool hasOwn = !arguments.listFile.isEmpty() || arguments.listDb ||
                        std::any_of(arguments.settings.begin(), arguments.settings.end(), isOfSeries);
    if (const int position = program.manual.desk.GetAutoIncrChecked(); hasOwn && position > 0)
        program.manual.series.SetAutoIncrPos(position);
}

bool prepareList(Program &program, const Arguments &arguments)
{
    if (!arguments.listFile.isEmpty() && !program.manual.files.loadFile(arguments.listFile))
        return false;
    if (arguments.listDb && !program.manual.store.loadFromDatabase())
        return false;
    return !arguments.listSave || program.manual.store.saveToDatabase();
}

QByteArray listText(const ListBox &list)
{
    QByteArray text;
    for (const QString &item : list.items())
        text += item.toUtf8() + '\n';
    return text;
}
