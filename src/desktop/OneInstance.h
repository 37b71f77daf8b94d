// Tells a second start of the same program by the same user.
#pragma once

#include <QLockFile>
#include <QString>

class OneInstance
{
  public:
    /// `appName` tells users and copies of the program apart.
    explicit OneInstance(const QString &appName);
    /// True for the first instance alone, as long as this object lives.
    [[nodiscard]] bool isFirst() const { return mFirst; }

  private:
    QLockFile mLock;
    bool mFirst;
};
