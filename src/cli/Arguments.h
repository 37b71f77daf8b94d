// The command line of trawlex-harvest.
#pragma once

#include "cli/DataArguments.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

struct Arguments
{
    enum class Run { Auto, Manual, Browse };
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
    int browseSeconds = 0; ///< how long the browser is followed
    QString listFile;      ///< lines of text that the manual list on show takes; "" for none
    bool listDb = false;   ///< that list takes what is saved of it
    bool listSave = false; ///< it is saved before the run
    bool listPrint = false;
    bool json = false;
    DataArguments data;
    bool help = false;

    /// Something is to be done with the list on show, so that no run is needed.
    [[nodiscard]] bool hasListWork() const { return !listFile.isEmpty() || listDb || listSave || listPrint; }
};

/// What stands behind --help.
[[nodiscard]] QString usage();
/// The arguments, without the program's name. What cannot be understood raises a RuntimeError with one clear line.
[[nodiscard]] Arguments parseArguments(const QStringList &words);
