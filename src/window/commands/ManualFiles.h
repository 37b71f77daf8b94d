// The commands that put the manual list on show into a text file and take it from one.
#pragma once

#include "lists/ManualFeed.h"
#include "window/commands/ManualWork.h"

class ManualFiles : public QObject
{
    Q_OBJECT

  public:
    ManualFiles(const Context &context, const Menu &menu, FilePlaces &places, const ManualDesk &desk,
                const ManualWork &work, ManualFeed &feed, BrowserHolder &browser);

    /// "Urls (File)" of a file that is known. False where nothing of it could be taken.
    bool loadFile(const QString &path);

  private:
    void loadChosen();
    void saveAs();
    [[nodiscard]] QString base();
    void keepFolder(const QString &path);

    Context mContext;
    FilePlaces &mPlaces;
    const ManualDesk &mDesk;
    const ManualWork &mWork;
    ManualFeed &mFeed;
    BrowserHolder &mBrowser;
};
