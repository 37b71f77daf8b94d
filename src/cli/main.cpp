// trawlex-harvest: the runs of Trawlex from a terminal or from cron, on the same database. This front reads the
// arguments and needs nothing but text for that; the work is loaded.
#include "cli/ErrorLine.h"
#include "cli/Harvest.h"
#include "util/Errors.h"
#include "util/ProgramParts.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {
/// The words behind the program's name.
QStringList wordsOf(int argc, char *argv[])
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    return words;
}

int work(char *argv[], const Arguments &arguments)
{
    const auto file = QString::fromLatin1(harvestFile);
    auto *const harvest = reinterpret_cast<HarvestWork *>(cUtility::functionOfPart(file, harvestName));
    return harvest(argv, arguments);
}

int refuse(const RuntimeError &error, ExitStatus status)
{
    printError("trawlex-harvest: "_L1 + error.description());
    return status;
}
} // namespace

int main(int argc, char *argv[])
{
    Arguments arguments;
    try {
        arguments = parseArguments(wordsOf(argc, argv));
    } catch (const RuntimeError &error) {
        return refuse(error, BadArguments);
    }
    if (arguments.help) {
        std::fputs(usage().toUtf8().constData(), stdout);
        return Finished;
    }
    try {
        return work(argv, arguments);
    } catch (const RuntimeError &error) {
        return refuse(error, OtherEnd);
    }
}
