#include "data/TableList.h"

#include "util/Text.h"

#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {
constexpr auto lineEnd = "\r\n"_L1;

struct ListForm
{
    int type;
    QString (*table)(int table, const QString &name);
    QString (*field)(int table, int field, const QString &name);
};

bool isAutoCreated(const QString &name)
{
    return name == "Index"_L1 || name == "Date"_L1;
}

const ListForm forms[] = {
    {3, [](int t, const QString &name) { return u"sDefArray$(%1,0)= \"%2\"\r\n"_s.arg(t).arg(name); },
     [](int t, int f, const QString &name) { return u"sDefArray$(%1,%2)= \"%3\"\r\n"_s.arg(t).arg(f).arg(name); }},
    {4, [](int, const QString &name) -> QString { return name + lineEnd; },
     [](int, int, const QString &name) -> QString { return "     "_L1 + name + lineEnd; }},
    {5, [](int, const QString &name) -> QString { return "   Table:     "_L1 + name + lineEnd; },
     [](int, int, const QString &name) -> QString { return "          Field:     "_L1 + name + lineEnd; }},
    {6, [](int, const QString &name) -> QString { return '['_L1 + name + ']'_L1 + lineEnd; },
     [](int, int, const QString &name) { return isAutoCreated(name) ? QString() : name + lineEnd; }},
};

QString listOf(const cAdoMdb &database, int type)
{
    const auto *const form = std::find_if(std::begin(forms), std::end(forms),
                                          [&](const ListForm &candidate) { return candidate.type == type; });
    QString text;
    for (int table = 0; form != std::end(forms) && table <= database.Tables_Count(); ++table) {
        text += form->table(table, database.Tables_ListItem(table, QString()));
        for (int field = 1; field <= database.Fields_Count(table, QString()); ++field)
            text += form->field(table, field, database.Fields_ListItem(field, QString(), table, QString()));
    }
    return text;
}

bool mayReplace(UserDialogs &dialogs, const QString &path)
{
    return !QFileInfo::exists(path) ||
           dialogs.ask(u"FILE EXISTS"_s, u"\"%1\" exists.\r\n Overwrite existing file?"_s.arg(path),
                       UserDialogs::Icon::Question, UserDialogs::Answer::No) == UserDialogs::Answer::Yes;
}
} // namespace

void PrintTablesAndFields(const cAdoMdb &database, UserDialogs &dialogs, const QString &sFileName, int eOutPutType,
                          bool bOverWriteExisting)
{
    guarded(database.log(), {"cAdoMdb"_L1, "Sub PrintTablesAndFields"_L1}, [&] {
        if (sFileName.isEmpty() || (!bOverWriteExisting && !mayReplace(dialogs, sFileName)))
            return;
        const QByteArray text = listOf(database, eOutPutType).toUtf8();
        QSaveFile file(sFileName);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
            throw RuntimeError(ErrorNumber::PathAccessError, file.errorString());
    });
}
