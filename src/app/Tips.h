// Tool tips that say what a control holds at the moment. Empty while the user wants none. Knows controls.
#pragma once

#include "controls/SimpleControls.h"
#include "util/Text.h"

class Tips
{
  public:
    /// `shown` is the switch "Show tool tip text.".
    explicit Tips(const CheckBox &shown) : mShown(shown) {}

    [[nodiscard]] bool areShown() const { return mShown.value() == 1; }
    /// `text` with signs in the place of control characters, or "" while tool tips are off.
    [[nodiscard]] QString ifShown(const QString &text) const { return areShown() ? cUtility::shown(text) : QString(); }

  private:
    const CheckBox &mShown;
};
