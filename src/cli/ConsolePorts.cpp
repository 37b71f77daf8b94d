#include "cli/ConsolePorts.h"

#include "cli/ErrorLine.h"

using namespace Qt::StringLiterals;

void ConsoleDialogs::tell(const QString &title, const QString &text)
{
    printError(title + ": "_L1 + QString(text).replace("\r\n"_L1, " "_L1));
}

UserDialogs::Answer ConsoleDialogs::ask(const QString &title, const QString &text, Icon, Answer withoutWindow)
{
    tell(title, text);
    return withoutWindow;
}

UserDialogs::Answer ConsoleDialogs::askAboutError(const QString &, const QString &record, const QString &)
{
    printError(record);
    return Answer::No;
}

QString ConsoleDialogs::input(const QString &, const QString &, const QString &)
{
    return {};
}

QString ConsoleDialogs::chooseFile(const QString &, const QString &, const QString &)
{
    return {};
}

QString ConsoleDialogs::chooseFileToAppend(const QString &proposal, const QString &, const QString &)
{
    return proposal;
}

void ConsoleDesktop::open(const QString &target)
{
    printError("Not opened without a desktop: "_L1 + target);
}
