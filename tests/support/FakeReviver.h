// Whoever starts dead browsers again, as the test says.
#pragma once

#include "driver/BrowserReviver.h"

#include <functional>

class FakeReviver : public BrowserReviver
{
  public:
    [[nodiscard]] bool hasDied() const override { return died; }
    bool revive() override
    {
        ++revivals;
        died = false;
        return onRevival && onRevival();
    }
    void leaveDead() override { ++leftDead; }

    bool died = false;
    int revivals = 0, leftDead = 0;
    std::function<bool()> onRevival;
};
