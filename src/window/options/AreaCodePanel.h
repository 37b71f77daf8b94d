// The states and their area codes beside the box of the chosen ones.
#pragma once

#include "app/FormGroups.h"
#include "util/Errors.h"

class AreaCodePanel : public QObject
{
    Q_OBJECT

  public:
    AreaCodePanel(ErrorReceiver &log, AreaCodeBoxes &boxes);

    /// The names of the states, each once, into their list.
    void LoadStates();

  private:
    ErrorReceiver &mLog;
    AreaCodeBoxes &mBoxes;
};
