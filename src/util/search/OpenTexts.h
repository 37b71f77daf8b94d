// The state of one look for a set of texts: which of them are still worth looking for. Knows nobody.
#pragma once

#include <QtGlobal>
#include <algorithm>
#include <vector>

/// What a look asks for.
enum class Wanted { Any, FirstFound, FirstMissing };

class OpenTexts
{
  public:
    OpenTexts(qsizetype count, Wanted wanted)
        : mWanted(wanted), mCount(count), mLimit(count), mClosed(wanted == Wanted::FirstMissing ? size_t(count) : 0)
    {
    }

    [[nodiscard]] bool isOpen(qsizetype index) const
    {
        return mWanted == Wanted::FirstMissing ? !mClosed[size_t(index)] : index < mLimit;
    }

    /// No further find can change the answer.
    [[nodiscard]] bool isDecided() const { return mWanted == Wanted::FirstMissing ? mCount == 0 : mLimit == 0; }

    /// Text `index`, an open one, stands in the page.
    void close(qsizetype index)
    {
        if (mWanted == Wanted::FirstMissing) {
            mClosed[size_t(index)] = true;
            --mCount;
            return;
        }
        mFound = index;
        mLimit = mWanted == Wanted::Any ? 0 : index;
    }

    /// The answer once the page is read or the look is decided: an index, or -1.
    [[nodiscard]] qsizetype answer() const
    {
        if (mWanted != Wanted::FirstMissing)
            return mFound;
        const auto open = std::find(mClosed.begin(), mClosed.end(), false);
        return open == mClosed.end() ? -1 : open - mClosed.begin();
    }

  private:
    Wanted mWanted;
    qsizetype mCount;
    qsizetype mLimit;
    qsizetype mFound = -1;
    std::vector<bool> mClosed;
};
