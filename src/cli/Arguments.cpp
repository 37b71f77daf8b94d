#include "cli/Arguments.h"

#include "util/Errors.h"

#include <QFileInfo>
#include <functional>

using namespace Qt::StringLiterals;

namespace {
[[noreturn]] void refuse(const QString &text)
{
    throw RuntimeError(ErrorNumber::InvalidProcedureCall, text);
}

void takeDatabaseDir(Arguments &arguments, const QString &value)
{
    const QFileInfo folder(value);
    if (!folder.isDir())
        refuse(u"--database-dir: no such folder: %1"_s.arg(value));
    arguments.databaseDir = folder.absoluteFilePath();
    if (!arguments.databaseDir.endsWith(u'/'))
        arguments.databaseDir += u'/';
}

void takeBrowser(Arguments &arguments, const QString &value)
{
    const QStringList names{u"internal"_s, u"iexplore"_s};
    const auto index = names.indexOf(value.toLower());
    if (index < 0)
        refuse(u"--browser: \"%1\" is neither \"internal\" nor \"iexplore\""_s.arg(value));
    arguments.browser = static_cast<int>(index);
}

void takeSetting(Arguments &arguments, const QString &value)
{
    const auto equals = value.indexOf(u'=');
    if (equals < 1)
        refuse(u"--set: \"%1\" is not of the form NAME=VALUE"_s.arg(value));
    arguments.settings.append({value.left(equals), value.mid(equals + 1)});
}

void takeListFile(Arguments &arguments, const QString &value)
{
    const QFileInfo file(value);
    if (!file.isFile())
        refuse(u"--list-file: no such file: %1"_s.arg(value));
    if (!file.isReadable())
        refuse(u"--list-file: can not be read: %1"_s.arg(value));
    arguments.listFile = file.absoluteFilePath();
}

void takeRun(Arguments &arguments, Arguments::Run run)
{
    if (arguments.run && *arguments.run != run)
        refuse(u"--auto, --manual and --browse exclude each other"_s);
    arguments.run = run;
}

void takeBrowse(Arguments &arguments, const QString &value)
{
    bool isNumber = false;
    arguments.browseSeconds = value.toInt(&isNumber);
    if (!isNumber || arguments.browseSeconds < 1)
        refuse(u"--browse: \"%1\" is no number of seconds"_s.arg(value));
    takeRun(arguments, Arguments::Run::Browse);
}

struct Option
{
    QLatin1StringView name;
    bool hasValue;
    void (*take)(Arguments &, const QString &value);
    QLatin1StringView help;
};

// clang-format off
const Option options[] = {
    {"--database-dir"_L1, true, takeDatabaseDir, "DIR           folder of the database (default: the stored one)"_L1},
    {"--browser"_L1, true, takeBrowser, "internal|iexplore  the built-in browser, or one in a window of its own"_L1},
    {"--headless"_L1, false, [](Arguments &a, const QString &) { a.headless = true; }, "                  start the browser without a window"_L1},
    {"--browser-arg"_L1, true, [](Arguments &a, const QString &v) { a.browserArgs.append(v); }, "ARG            a switch for the browser (repeatable)"_L1},
    {"--open"_L1, true, [](Arguments &a, const QString &v) { a.open = v; }, "URL                   open a page first and wait until it has loaded"_L1},
    {"--set"_L1, true, takeSetting, "NAME=VALUE             set a control by its name, as chkSMA(9)=1 (repeatable)"_L1},
    {"--until-loaded"_L1, false, [](Arguments &a, const QString &) { a.untilLoaded = true; }, "              end each wait as soon as the page has loaded"_L1},
    {"--auto"_L1, false, [](Arguments &a, const QString &) { takeRun(a, Arguments::Run::Auto); }, "                      run the Auto tab"_L1},
    {"--manual"_L1, false, [](Arguments &a, const QString &) { takeRun(a, Arguments::Run::Manual); }, "                    run the Manual tab"_L1},
    {"--browse"_L1, true, takeBrowse, "SECONDS             collect from the pages that the browser shows, for so long"_L1},
    {"--list-file"_L1, true, takeListFile, "FILE             fill the manual list on show from a text file"_L1},
    {"--list-db"_L1, false, [](Arguments &a, const QString &) { a.listDb = true; }, "                   fill it with what the database has of it"_L1},
    {"--list-save"_L1, false, [](Arguments &a, const QString &) { a.listSave = true; }, "                 keep it in the database, before the run"_L1},
    {"--list-print"_L1, false, [](Arguments &a, const QString &) { a.listPrint = true; }, "                print it, one item a line, after the run or alone"_L1},
    {"--export"_L1, true, [](Arguments &a, const QString &v) { a.data.takeExport(v); }, "TABLE               write a table to a file, without a browser"_L1},
    {"--format"_L1, true, [](Arguments &a, const QString &v) { a.data.takeFormat(v); }, "html|comma|tab|dat|csv|jsonl|xlsx|sqlite  the form of the file"_L1},
    {"--where"_L1, true, [](Arguments &a, const QString &v) { a.data.takeWhere(v); }, "FIELD=TEXT           only the rows that hold the text there, or equal the number"_L1},
    {"--to"_L1, true, [](Arguments &a, const QString &v) { a.data.takeTo(v); }, "FILE                    the file; one that is there is refused"_L1},
    {"--import"_L1, true, [](Arguments &a, const QString &v) { a.data.takeImport(v); }, "FILE                copy from another database file, without a browser"_L1},
    {"--data"_L1, false, [](Arguments &a, const QString &) { a.data.allData = true; }, "                      all its data"_L1},
    {"--settings"_L1, false, [](Arguments &a, const QString &) { a.data.allSettings = true; }, "                  all its settings"_L1},
    {"--table"_L1, true, [](Arguments &a, const QString &v) { a.data.table = v; }, "TABLE                one of its tables"_L1},
    {"--field"_L1, true, [](Arguments &a, const QString &v) { a.data.takeField(v); }, "TABLE.FIELD=TABLE.FIELD  one of its fields into one of the database"_L1},
    {"--json"_L1, false, [](Arguments &a, const QString &) { a.json = true; }, "                      print the outcome as one JSON object"_L1},
    {"--help"_L1, false, [](Arguments &a, const QString &) { a.help = true; }, "                      print this"_L1},
};
// clang-format on

/// What is to be done must be said, and go together.
void checkPurpose(const Arguments &arguments)
{
    arguments.data.check();
    if (arguments.data.isWanted() && (arguments.run || arguments.hasListWork()))
        refuse(u"--export and --import go without a run and without a list"_s);
    if (!arguments.run && !arguments.data.isWanted() && !arguments.hasListWork())
        refuse(u"one of --auto, --manual, --browse, --list-..., --export and --import is wanted (see --help)"_s);
    if (!arguments.run && !arguments.open.isEmpty())
        refuse(u"--open wants a run"_s);
}
} // namespace

QString usage()
{
    QString text = u"trawlex-harvest: a harvest without a window\n\n"_s;
    for (const Option &option : options)
        text += u"  %1 %2\n"_s.arg(option.name, option.help);
    return text + u"\nExit status: 0 after \"Stopped (FINISHED)\", 1 after any other end, 2 for bad arguments.\n"
                  "Without a run: 0 when all was done, 1 when not.\n"_s;
}

Arguments parseArguments(const QStringList &words)
{
    Arguments arguments;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString name = words[i].section(u'=', 0, 0);
        const auto *option = std::find_if(std::begin(options), std::end(options),
                                          [&](const Option &candidate) { return candidate.name == name; });
        if (option == std::end(options))
            refuse(u"unknown argument: %1 (see --help)"_s.arg(words[i]));
        const bool attached = words[i].contains(u'=');
        if (option->hasValue && !attached && i + 1 >= words.size())
            refuse(u"%1 wants a value"_s.arg(name));
        if (!option->hasValue && attached)
            refuse(u"%1 takes no value"_s.arg(name));
        option->take(arguments, !option->hasValue ? QString() : attached ? words[i].section(u'=', 1) : words[++i]);
    }
    if (!arguments.help)
        checkPurpose(arguments);
    return arguments;
}
