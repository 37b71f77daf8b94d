// A set of texts to be looked for at once: which of them stand in a page. Made once, used on any number of pages.
// The cost of a look is linear in the page, whatever the number of texts and whatever both hold. Knows nobody.
#pragma once

#include "util/search/LiteralScanner.h"
#include "util/search/WordAutomaton.h"

#include <QStringList>
#include <optional>

/// The texts, in their order. An empty text stands in every page but the empty one.
class TextSet
{
  public:
    TextSet(const QStringList &texts, Qt::CaseSensitivity sensitivity);

    [[nodiscard]] bool isEmpty() const { return mTexts.isEmpty(); }

    /// True when at least one of the texts stands in `page`.
    [[nodiscard]] bool anyIn(QStringView page) const;

    /// The index of the first text, in the order of the set, that stands in `page`; -1 when none does.
    [[nodiscard]] qsizetype firstFound(QStringView page) const;

    /// The index of the first text, in the order of the set, that does not stand in `page`; -1 when all do.
    [[nodiscard]] qsizetype firstMissing(QStringView page) const;

  private:
    [[nodiscard]] qsizetype look(QStringView page, Wanted wanted) const;
    [[nodiscard]] bool scan(QStringView page, OpenTexts &open) const;

    QStringList mTexts;
    Qt::CaseSensitivity mSensitivity;
    std::vector<LiteralScanner> mScanners;   // each for some of the texts
    std::optional<WordAutomaton> mAutomaton; // for more texts than scanners are worth
};
