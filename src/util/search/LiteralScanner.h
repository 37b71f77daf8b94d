// Looks for a handful of texts in a page 32 units at a time: each text is known by up to eight of its rarest
// neighbouring units, two of which make one hash; the hashes of all texts are tested at once by table look-ups within
// the vector unit, and only the places that pass are compared. Ignoring case costs nothing: the tables hold all cases
// of a unit. Knows nobody.
#pragma once

#include "util/search/OpenTexts.h"

#include <QStringList>
#include <array>

class LiteralScanner
{
  public:
    static constexpr qsizetype mostTexts = 40;

    /// False on processors without the instructions that it needs.
    [[nodiscard]] static bool isSupported();

    /// At most `mostTexts`; with case ignored they are lower-cased already. Empty texts are left out.
    /// `firstIndex` is the index that the first of them has in the look.
    LiteralScanner(const QStringList &texts, Qt::CaseSensitivity sensitivity, qsizetype firstIndex = 0);

    /// Reads `page` and closes each open text that it comes upon, until the look is decided. False when the page has so
    /// many places to compare that another method is better; the texts closed until then are right.
    [[nodiscard]] bool scan(QStringView page, OpenTexts &open) const;

    static constexpr int pairCount = 4;
    static constexpr int windowSize = 2 * pairCount;
    static constexpr int bucketCount = 8;
    using Lanes = std::array<quint8, 32>;

    /// The look-up tables: for each pair of the window the buckets (bits) that hold a nibble of its hash, twice for the
    /// two lanes.
    struct Tables
    {
        alignas(32) std::array<Lanes, pairCount> low{};
        alignas(32) std::array<Lanes, pairCount> high{};
    };

  private:
    /// The nibbles (bits) that the hash of a pair may have.
    struct PairNibbles
    {
        quint16 low = 0;
        quint16 high = 0;
    };

    struct Literal
    {
        QString text;
        qsizetype index;       // in the look
        qsizetype windowBegin; // the place in the text of the units that the tables know
        qsizetype windowUnits;
        std::array<PairNibbles, pairCount> pairs;
    };

    /// The tables for some of the literals, and which of them are in which bucket.
    struct Plan
    {
        Tables tables;
        std::array<quint8, mostTexts> order;          // places in mLiterals
        std::array<quint8, bucketCount + 1> bounds{}; // of the buckets in `order`
    };

    struct Progress
    {
        qsizetype at = 0;    // where the next block begins
        qsizetype steps = 0; // units compared
    };

    enum class Pause { AtEnd, Closed, TooManySteps };

    [[nodiscard]] Literal literalOf(const QString &text, qsizetype index) const;
    [[nodiscard]] PairNibbles nibblesOf(const Literal &literal, qsizetype pair) const;
    [[nodiscard]] Plan planFor(const OpenTexts *open) const;
    static void enter(Tables &tables, quint8 bucket, const Literal &literal);
    [[nodiscard]] bool standsAt(QStringView page, qsizetype begin, const Literal &literal, qsizetype &steps) const;
    bool closeFoundAt(QStringView page, qsizetype windowEnd, quint8 buckets, const Plan &plan, OpenTexts &open,
                      qsizetype &steps) const;
    [[nodiscard]] Pause scanWith(const Plan &plan, QStringView page, OpenTexts &open, Progress &progress) const;

    bool mFolds;
    std::vector<Literal> mLiterals;
    Plan mWholePlan;
};
