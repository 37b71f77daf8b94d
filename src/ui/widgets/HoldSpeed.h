// How fast a number box runs while its button is held, and the colour that shows it: nothing for the first second,
// slowly from then on, faster from the ninth, at full speed from the twenty-fifth.
#pragma once

#include "controls/NumberBox.h"

namespace HoldSpeed {
enum class Stage { None, One, Two, Three };

/// The stage after that many seconds.
[[nodiscard]] constexpr Stage stageAt(int seconds)
{
    if (seconds < 1)
        return Stage::None;
    if (seconds < 9)
        return Stage::One;
    return seconds < 25 ? Stage::Two : Stage::Three;
}

/// One step is due after so many turns of a waiting loop; here a turn is a fixed time, so that every machine is alike.
constexpr int turnsPerSecond = 50000;
[[nodiscard]] constexpr int stepsPerSecond(Stage stage)
{
    constexpr int turns[] = {0, 10000, 500, 5};
    const int needed = turns[static_cast<int>(stage)];
    return needed == 0 ? 0 : turnsPerSecond / needed;
}

/// The back colour of the digits; the neutral colour without a stage.
[[nodiscard]] constexpr Colour colour(Stage stage, NumberBox::Direction direction)
{
    constexpr Colour cyan = rgb(0, 255, 255);
    constexpr Colour magenta = rgb(255, 0, 255);
    constexpr Colour red = rgb(255, 0, 0);
    constexpr Colour up[] = {Colours::Window, cyan, magenta, red};
    constexpr Colour down[] = {Colours::Window, red, magenta, cyan};
    const int index = static_cast<int>(stage);
    return direction == NumberBox::Direction::Up ? up[index] : down[index];
}
} // namespace HoldSpeed
