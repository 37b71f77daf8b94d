// The colours of the Manual tab: each list its own, and what counts or collects at the moment.
#pragma once

#include "app/FormGroups.h"
#include "app/Menus.h"

class ManualColours
{
  public:
    ManualColours(ManualLists &lists, CollectLabels &labels, SeriesPanel &series, const BlockingLists &blocking,
                  const Menu &mnuPopUpMNStatus);

    void SetMNColors();

  private:
    [[nodiscard]] int checked(QLatin1StringView array, int first, int last, int none) const;
    void colourCollecting(int list);
    void colourPosition(int position);

    ManualLists &mLists;
    CollectLabels &mLabels;
    SeriesPanel &mSeries;
    const BlockingLists &mBlocking;
    const Menu &mMenu;
};
