// The status bar's menu on the Data tab: exports, and the loading of a saved recordset.
#pragma once

#include "data/DataView.h"
#include "data/Exports.h"

class DataStatusMenu : public QObject
{
    Q_OBJECT

  public:
    DataStatusMenu(const Context &context, const FilePlaces &places, Menu &mnuPopUpDBStatus, DataView &view,
                   Exports &exports);

  private:
    void reload();

    Context mContext;
    const FilePlaces &mPlaces;
    DataView &mView;
};
