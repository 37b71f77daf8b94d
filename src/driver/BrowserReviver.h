// What a run needs of whoever connects browsers: one that has died in the middle of a run is started again. Knows
// nobody.
#pragma once

class BrowserReviver
{
  public:
    virtual ~BrowserReviver() = default;
    /// The browser has ended by itself in a run, and none has taken its place.
    [[nodiscard]] virtual bool hasDied() const = 0;
    /// Starts it again and connects it. False when that is not possible.
    virtual bool revive() = 0;
    /// It stays dead, as if the user had closed it.
    virtual void leaveDead() = 0;
};
