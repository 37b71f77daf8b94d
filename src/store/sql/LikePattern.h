// A pattern of LIKE: "%" stands for any text, "_" for one character, everything else for itself, brackets too. The case
// of all letters is ignored, unit by unit. Knows no engine.
#pragma once

#include <QStringList>
#include <string>
#include <string_view>
#include <vector>

class LikePattern
{
  public:
    explicit LikePattern(QStringView pattern);

    /// True if the whole text fits.
    [[nodiscard]] bool matches(QStringView text) const;
    /// The same for a text in UTF-8. Nearly all texts of a table are plain ASCII, and those cost no conversion.
    [[nodiscard]] bool matchesUtf8(std::string_view text) const;

  private:
    [[nodiscard]] bool matchesAscii(std::string_view text) const;

    // What stands between the signs for any text, in lower case: one piece where there is no such sign.
    QStringList mPieces;
    // The same in ASCII; none where one of them is not.
    std::vector<std::string> mAscii;
};
