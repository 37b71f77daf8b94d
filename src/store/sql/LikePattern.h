// A pattern of LIKE: "%" stands for any text, "_" for one character, everything else for itself, brackets too. The case
// of all letters is ignored, unit by unit. Knows no engine.
#pragma once

#include <QStringList>

class LikePattern
{
  public:
    explicit LikePattern(QStringView pattern);

    /// True if the whole text fits.
    [[nodiscard]] bool matches(QStringView text) const;

  private:
    // What stands between the signs for any text, in lower case: one piece where there is no such sign.
    QStringList mPieces;
};
