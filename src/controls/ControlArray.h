// An array of like controls addressed by index, as chkSMA(9); first and last index are fixed by the array.
#pragma once

#include "util/Errors.h"

#include <QObject>
#include <memory>
#include <vector>

template <class Member> class ControlArray
{
  public:
    /// Members "name(first)" to "name(first + count - 1)".
    ControlArray(const QString &name, int count, QObject *parent, int first = 0) : mFirst(first)
    {
        for (int i = first; i < first + count; ++i)
            mMembers.push_back(std::make_unique<Member>(QStringLiteral("%1(%2)").arg(name).arg(i), parent));
    }
    /// Error 340 for an index that the array has not.
    [[nodiscard]] Member &operator()(int index) const
    {
        if (index < mFirst || index - mFirst >= static_cast<int>(mMembers.size()))
            throw RuntimeError(340, QStringLiteral("Control array element '%1' doesn't exist").arg(index));
        return *mMembers[static_cast<std::size_t>(index - mFirst)];
    }
    [[nodiscard]] int first() const { return mFirst; }
    [[nodiscard]] int last() const { return mFirst + static_cast<int>(mMembers.size()) - 1; }

  private:
    std::vector<std::unique_ptr<Member>> mMembers;
    int mFirst;
};
