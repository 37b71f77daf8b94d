#include "cli/ControlSetter.h"

#include "util/Errors.h"

#include <QHash>
#include <QScopedValueRollback>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
/// When a control takes its value.
enum class Turn {
    Leader,   ///< what it chooses fills other controls
    Value,    ///< silently: no value changes another
    Command,  ///< menu items work on what has been set
    Follower, ///< it changes what a command has made of the others
};

constexpr QLatin1StringView leaders[] = {
    "cboANList"_L1,   "cboANMCMNCMask"_L1, "cboMNList"_L1,           "cboSD(1)"_L1,
    "cboDBTables"_L1, "cboSFITableIn"_L1,  "cboSFITableExisting"_L1, "cboSBSelectState"_L1,
};
constexpr auto seriesNumber = "incMNAutoUrl"_L1;

Turn turnOf(const QString &name)
{
    if (std::find(std::begin(leaders), std::end(leaders), name) != std::end(leaders))
        return Turn::Leader;
    if (name == seriesNumber)
        return Turn::Follower;
    return name.startsWith("mnu"_L1) ? Turn::Command : Turn::Value;
}

[[noreturn]] void refuse(const QString &name, const QString &reason)
{
    throw RuntimeError(ErrorNumber::InvalidPropertyValue, u"--set %1: %2"_s.arg(name, reason));
}

void set(const frmSearch &form, const Arguments::Setting &setting)
{
    try {
        form.control(setting.control)->enter(setting.value);
    } catch (const RuntimeError &error) {
        refuse(setting.control, error.description());
    }
}
} // namespace

QList<Arguments::Setting> inOrderOfSetting(const frmSearch &form, QList<Arguments::Setting> settings)
{
    const QList<Control *> controls = form.findChildren<Control *>(Qt::FindDirectChildrenOnly);
    QHash<QString, std::pair<Turn, qsizetype>> places;
    for (const Arguments::Setting &setting : settings) {
        Control *control = form.control(setting.control);
        if (!control)
            refuse(setting.control, u"there is no such control"_s);
        places.insert(setting.control, {turnOf(setting.control), controls.indexOf(control)});
    }
    std::stable_sort(settings.begin(), settings.end(),
                     [&](const auto &one, const auto &other) { return places[one.control] < places[other.control]; });
    return settings;
}

void setControls(frmSearch &form, ControlStates &states, const QList<Arguments::Setting> &settings)
{
    for (const Arguments::Setting &setting : inOrderOfSetting(form, settings)) {
        const Turn turn = turnOf(setting.control);
        if (turn == Turn::Command)
            states.SetStateOfControls();
        const QScopedValueRollback<bool> ready(form.mbFormReady, turn != Turn::Value && form.mbFormReady);
        set(form, setting);
    }
    // "Select" is not for a list in which nothing is selected: the choice is made once more, with the items in place.
    for (Criterion *criterion : {&form.criteria.mustContain, &form.criteria.mustNotContain})
        criterion->demand.choose(criterion->demand.listIndex());
    states.SetStateOfControls();
}
