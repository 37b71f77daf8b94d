#include "window/states/StateOfControls.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {
std::vector<Control *> controlsOf(const frmSearch &form, QLatin1StringView names)
{
    std::vector<Control *> found;
    for (const QString &name : QString(names).split(u' ')) {
        Control *control = form.control(name);
        if (!control)
            throw RuntimeError(ErrorNumber::ObjectNotSet, "No such control: "_L1 + name);
        found.push_back(control);
    }
    return found;
}
} // namespace

StateOfControls::StateOfControls(ErrorReceiver &log, frmSearch &form)
    : mLog(log), mForm(form), mResets(bind(resetRows())), mEnabling(bind(enablingRows())), mColours(bind(colourRows())),
      mEmptyTexts(bind(emptyTextRows()))
{
    for (Control *control : form.findChildren<Control *>(Qt::FindDirectChildrenOnly)) {
        if (isOffByDefault(control->name()))
            mOffByDefault.push_back(control);
    }
}

/// The rows with the controls that they name, found once.
template <class Row> std::vector<StateOfControls::Bound<Row>> StateOfControls::bind(std::span<const Row> rows) const
{
    std::vector<Bound<Row>> bound;
    for (const Row &row : rows)
        bound.push_back({&row, controlsOf(mForm, row.controls)});
    return bound;
}

void StateOfControls::SetStateOfControls()
{
    if (!mForm.mbFormReady || mUnderWay)
        return;
    const QScopedValueRollback<bool> underWay(mUnderWay, true);
    guarded(mLog, {"frmSearch"_L1, "Sub SetStateOfControls"_L1}, [&] {
        setBack();
        if (mForm.browser.mbInitialized && mForm.frame.sstSearch.tab() == Tab::Manual)
            Q_EMIT autoNavigateAsked();
        const StateFacts facts = readFacts(mForm);
        const Plan states = plan(facts);
        for (auto state = states.begin(); state != states.end(); ++state)
            state.key()->setEnabled(state.value());
        colour(facts);
        tellNextStep(facts);
        if (facts.initialized && facts.onManual && facts.canBeginSeries())
            Q_EMIT seriesPositionAsked();
        if (facts.initialized && facts.onSites)
            Q_EMIT siteEditorAsked();
    });
}

/// One box that goes off may be the reason for the next, so each row sees what those before it have left.
void StateOfControls::setBack()
{
    for (const Bound<ResetRow> &reset : mResets) {
        if (!reset.row->rule(readFacts(mForm)))
            continue;
        for (Control *box : reset.controls)
            static_cast<CheckBox *>(box)->setValue(0);
    }
}

StateOfControls::Plan StateOfControls::plan(const StateFacts &facts) const
{
    Plan states;
    for (Control *control : mOffByDefault)
        states.insert(control, false);
    for (const Bound<EnablingRow> &rule : mEnabling) {
        if (!rule.row->inForce(facts))
            continue;
        const bool enabled = rule.row->enabled(facts);
        for (Control *control : rule.controls)
            states.insert(control, enabled);
    }
    return states;
}

void StateOfControls::colour(const StateFacts &facts) const
{
    for (const Bound<ColourRow> &colour : mColours) {
        if (!colour.row->rule(facts))
            continue;
        for (Control *control : colour.controls) {
            control->setBackColor(colour.row->back);
            if (colour.row->fore)
                control->setForeColor(*colour.row->fore);
        }
    }
}

void StateOfControls::tellNextStep(const StateFacts &facts) const
{
    QHash<Control *, QString> texts;
    for (const Bound<EmptyTextRow> &row : mEmptyTexts) {
        for (Control *list : row.controls) {
            if (row.row->rule(facts))
                texts.insert(list, row.row->text);
        }
    }
    for (auto text = texts.begin(); text != texts.end(); ++text)
        static_cast<ListControl *>(text.key())->setEmptyText(text.value());
}
