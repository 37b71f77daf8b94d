#include "window/options/AreaCodePanel.h"

#include "pages/PhoneFinder.h"
#include "util/Arrays.h"

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 byName = -1;

/// The first letter of each word upper, the rest lower.
QString properCase(const QString &name)
{
    QString proper = name.toLower();
    for (qsizetype i = 0; i < proper.size(); ++i) {
        if (i == 0 || proper[i - 1] == u' ')
            proper[i] = proper[i].toUpper();
    }
    return proper;
}
} // namespace

AreaCodePanel::AreaCodePanel(ErrorReceiver &log, AreaCodeBoxes &boxes) : mLog(log), mBoxes(boxes)
{
    connect(&mBoxes.cboSBSelectState, &ComboBox::Click, this, [this] {
        mBoxes.txtSBStateACs.setText(cAreaCode::AreaCode_ListItem(mBoxes.cboSBSelectState.text(), byName));
    });
}

void AreaCodePanel::LoadStates()
{
    guarded(mLog, {"frmSearch"_L1, "Sub LoadStates"_L1}, [&] {
        QStringList names;
        for (qint64 row = 0; row <= cAreaCode::AreaCode_Count(); ++row) {
            if (const QString name = cAreaCode::AreaCode_ListItem({}, row); !name.isEmpty())
                names.append(properCase(name));
        }
        mBoxes.cboSBSelectState.setItems(cUtility::RemoveRepeatsFromArray(names));
    });
}
