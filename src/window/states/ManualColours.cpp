#include "window/states/ManualColours.h"

#include "util/AddressList.h"

using namespace Qt::StringLiterals;

namespace {
constexpr Colour listColours[] = {rgb(255, 255, 255), rgb(158, 255, 159), rgb(185, 228, 255), rgb(255, 184, 186),
                                  rgb(255, 255, 0)};
constexpr Colour cyan = rgb(0, 255, 255);

void paint(Label &label, Colour back, Colour fore)
{
    label.setBackColor(back);
    label.setForeColor(fore);
}

/// E-mail addresses are collected in these states, numbers in those; else "no".
enum class Finds { No, Email, Phones };

Finds found(int autoCollectState)
{
    switch (autoCollectState) {
    case 2:
    case 6:
    case 10:
        return Finds::Email;
    case 3:
    case 7:
    case 11:
        return Finds::Phones;
    default:
        return Finds::No;
    }
}
} // namespace

ManualColours::ManualColours(ManualLists &lists, CollectLabels &labels, SeriesPanel &series,
                             const BlockingLists &blocking, const Menu &mnuPopUpMNStatus)
    : mLists(lists), mLabels(labels), mSeries(series), mBlocking(blocking), mMenu(mnuPopUpMNStatus)
{
}

/// The member of an array of items that is checked.
int ManualColours::checked(QLatin1StringView array, int first, int last, int none) const
{
    for (int i = first; i <= last; ++i) {
        if (mMenu.item(array, i).isChecked())
            return i;
    }
    return none;
}

void ManualColours::SetMNColors()
{
    for (int list = mLists.lstMN.first(); list <= mLists.lstMN.last(); ++list)
        mLists.lstMN(list).setBackColor(listColours[list]);
    colourCollecting(checked("mnuMNStatusListCL"_L1, 0, 4, -1));
    colourPosition(checked("mnuMNStatusAutoIncrPos"_L1, 1, 9, 0));
}

/// The label of the list into which links go; it also tells that servers are blocked for the moment.
void ManualColours::colourCollecting(int list)
{
    Label &label = mLabels.lblAutoCollect;
    const bool blocks = !firstOf(mBlocking.mastrQB).isEmpty();
    label.setCaption(list < 0 ? QString() : mLists.cboMNList.list(list));
    if (list >= 0)
        paint(label, blocks ? Colours::Black : Colours::Blue, Colours::White);
    else if (blocks)
        paint(label, Colours::Yellow, Colours::Black);
    else
        paint(label, Colours::ButtonFace, Colours::WindowText);
}

/// The label of the number that counts; a list that a series stands for is not to be used by hand.
void ManualColours::colourPosition(int position)
{
    const bool counts = position >= 1;
    Label &label = mLabels.lblAutoIncrPos;
    mSeries.cboMNAutoUrl.setForeColor(counts ? Colours::Blue : Colours::WindowText);
    if (counts) {
        label.setCaption(QString::number(position));
        mLists.shown().setBackColor(Colours::ButtonFace);
    }
    const Finds finds = found(mLabels.mlngAutoCollectState);
    if (finds == Finds::No) {
        paint(label, counts ? Colours::Blue : Colours::ButtonFace, counts ? Colours::White : Colours::WindowText);
        return;
    }
    const Colour mark = finds == Finds::Email ? Colours::Yellow : cyan;
    paint(label, mark, Colours::Black);
    mLabels.lblAutoCollect.setForeColor(mark);
}
