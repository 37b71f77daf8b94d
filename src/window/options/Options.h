// Loads the options into their controls and stores them: at each change or at the end of the program, as their table
// says. Nothing is stored while it is loaded, and nothing that could not be loaded and was not changed since.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"
#include "window/options/OptionTable.h"

#include <QSet>

class Options : public QObject
{
    Q_OBJECT

  public:
    /// The controls begin at their defaults.
    Options(const Context &context, frmSearch &form, QString programFolder);

    /// Loads what neither the database nor the window decides. A value that does not convert ends the loading of the
    /// options behind it, which stay as they are; the directories and the database's name are loaded in any case.
    void GetSettings();
    /// Loads the option of `control` that depends on the database; one that does not convert leaves the control as it
    /// is.
    void load(const Control &control);
    /// Writes what is written at the end alone.
    void saveAtExit();

  private:
    [[nodiscard]] bool isReady(const Control &control) const;
    void begin();
    void connectStoring(const OptionRow &row);
    void load(const OptionRow &row);
    void loadDirectories();
    [[nodiscard]] QString directory(QLatin1StringView key, const QString &byDefault);
    [[nodiscard]] QString baseFolder() const;
    void txtSBSelAreaCodes_Validate();

    Context mContext;
    frmSearch &mForm;
    QString mProgramFolder;
    QSet<const OptionRow *> mKnown; ///< loaded, or changed since the start
};
