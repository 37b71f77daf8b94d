// The command line of trawlex-harvest.
#pragma once

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
    bool json = false;
    bool help = false;
};

/// What stands behind --help.
[[nodiscard]] QString usage();
/// The arguments, without the program's name. What cannot be understood raises a RuntimeError with one clear line.
[[nodiscard]] Arguments parseArguments(const QStringList &words);
