// The command line of trawlex-harvest.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

struct Arguments
{
    enum class Run { Auto, Manual };
    struct Setting
    {
        QString control;
        QString value;
    };

    QString databaseDir;        ///< "" for the stored one; ends in the separator otherwise
    std::optional<int> browser; ///< index in cboANWBSelect; nothing for the stored one
    bool headless = false;
    QStringList browserArgs;
    QString open;
    QList<Setting> settings;
    bool untilLoaded = false;
    std::optional<Run> run;
    QString listFile;      ///< lines of text that the list on show takes; "" for none
    bool listDb = false;   ///< the list on show takes what is saved of it
    bool listSave = false; ///< it is saved before the run
    bool listPrint = false;
    bool json = false;
    bool help = false;

    /// Something is to be done with a list, so that no run is needed.
    [[nodiscard]] bool hasListWork() const { return !listFile.isEmpty() || listDb || listSave || listPrint; }
};

/// What stands behind --help.
[[nodiscard]] QString usage();
/// The arguments, without the program's name. What cannot be understood raises a RuntimeError with one clear line.
[[nodiscard]] Arguments parseArguments(const QStringList &words);
