// Brings every control into the state that the flags and values of the form ask for. Which state that is stands in the
// tables of StateRows; here they are only applied.
#pragma once

#include "app/Ports.h"
#include "util/Errors.h"
#include "window/states/StateRows.h"

#include <QHash>
#include <vector>

class StateOfControls : public QObject, public ControlStates
{
    Q_OBJECT

  public:
    StateOfControls(ErrorReceiver &log, frmSearch &form);

    /// Nothing before the form is ready; a call from within (a value that is set back here raises Click) is left to the
    /// one under way.
    void SetStateOfControls() override;

  Q_SIGNALS:
    // What other rooms decide, each asked at its place in the order.
    /// On the Manual tab: whether Auto Navigate can be used now.
    void autoNavigateAsked();
    /// On the Manual tab, with a series that could be counted but is not: the stored position comes back.
    void seriesPositionAsked();
    /// On the tab of search sites, where all of the editor is off: what of it may be used.
    void siteEditorAsked();

  private:
    template <class Row> struct Bound
    {
        const Row *row;
        std::vector<Control *> controls;
    };
    using Plan = QHash<Control *, bool>;

    template <class Row> [[nodiscard]] std::vector<Bound<Row>> bind(std::span<const Row> rows) const;
    void setBack();
    [[nodiscard]] Plan plan(const StateFacts &facts) const;
    void colour(const StateFacts &facts) const;
    void tellNextStep(const StateFacts &facts) const;

    ErrorReceiver &mLog;
    frmSearch &mForm;
    std::vector<Control *> mOffByDefault;
    std::vector<Bound<ResetRow>> mResets;
    std::vector<Bound<EnablingRow>> mEnabling;
    std::vector<Bound<ColourRow>> mColours;
    std::vector<Bound<EmptyTextRow>> mEmptyTexts;
    bool mUnderWay = false;
};
