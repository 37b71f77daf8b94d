// Decides which controls may be used in which state: named facts, then one row a control, then one loop that applies
// them.
#pragma once

#include "app/Ports.h"
#include "app/frmSearch.h"
#include "util/Errors.h"

#include <QHash>

class StateOfControls : public ControlStates
{
  public:
    StateOfControls(ErrorReceiver &log, frmSearch &form) : mLog(log), mForm(form) {}

    /// Brings every control into the state that the flags and values of the form ask for. Nothing before the form is
    /// ready; a call from within (a value that is changed here raises Click) is left to the one under way.
    void SetStateOfControls() override;

  private:
    struct Facts
    {
        bool autoRun, manualRun, idle;
    };
    using Plan = QHash<Control *, bool>;

    [[nodiscard]] Plan allOff() const;
    void anyTab(Plan &plan, const Facts &facts);
    void withoutOutput(Plan &plan);
    void autoTab(Plan &plan, const Facts &facts);
    void blocking(Plan &plan, const Facts &facts);
    void criteria(Plan &plan);
    void saving(Plan &plan, const Facts &facts);
    void savedUrls(Plan &plan, const Facts &facts);
    static void apply(const Plan &plan);

    ErrorReceiver &mLog;
    frmSearch &mForm;
    bool mUnderWay = false;
};
