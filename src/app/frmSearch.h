// The main window's state as a passive object: the named controls in their groups, flags and arrays through which the
// runs, the window's events and the status display talk to one another. What is done with them lives in the classes
// above; each takes the groups that it works on. Knows controls.
#pragma once

#include "app/FormGroups.h"
#include "app/Menus.h"

class frmSearch : public QObject
{
    Q_OBJECT

  public:
    /// The control or menu item of that name, an array member as "chkSMA(9)"; null if there is none.
    [[nodiscard]] Control *control(const QString &name) const;

    WindowFrame frame{this};
    BrowserPanel browser{this};
    AutoPanel autoRun{this};
    SavedAddresses saved{this};
    Outputs outputs{this};
    Criteria criteria{this};
    BlockingLists blocking{this};
    CollectLabels collect{this};
    ManualPanel manual{this};
    SeriesPanel series{this};
    ManualLists lists{this};
    UrlFilterBoxes urlFilter{this};
    SiteEditor siteEditor{this};
    AreaCodeBoxes areaCodes{this};
    FilePlaces places{this};
    ImportPage import{this};
    OptionBoxes options{this};
    Limits limits{this};
    DataBoxes data{this};
    Menus menus{this};
    RunFlags runs;

    bool mbFormReady = false; ///< option clicks write their settings from here on
    bool mbMainShown = false; ///< set last at start
};
