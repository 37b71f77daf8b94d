// The keys of a query's rows in an order of its own. A large table is sorted in a thread and through a connection of
// their own, so that nobody waits for it who does not want to; it ends with the object. Inside store/ only.
#pragma once

#include "store/rows/Query.h"

#include <atomic>
#include <future>

class SortedKeys
{
  public:
    /// Begins. `lastKey` is the table's highest; few rows are sorted at once.
    SortedKeys(const Query &query, qint64 lastKey);
    ~SortedKeys() { mStop = true; }
    Q_DISABLE_COPY_MOVE(SortedKeys)

    /// Waits at most so many milliseconds.
    [[nodiscard]] bool isReady(int milliseconds) const;
    /// Waits for them. To be called once. Errors: AdoError::Engine.
    [[nodiscard]] std::vector<qint64> take() { return mKeys.get(); }

  private:
    // Declared first: whoever sorts asks it until the future's end.
    std::atomic<bool> mStop = false;
    std::future<std::vector<qint64>> mKeys;
};
