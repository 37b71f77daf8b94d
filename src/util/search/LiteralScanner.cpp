#include "util/search/LiteralScanner.h"

#include "util/Text.h"
#include "util/search/CaseVariants.h"

#include <bit>
#include <numeric>
#include <tuple>

#if defined(__x86_64__) && defined(__GNUC__)
#define TRAWLEX_WITH_AVX2
#include <immintrin.h>
#endif

namespace {
constexpr qsizetype blockSize = 32;

/// The units of a block at which a window may end (bits), and the buckets of those windows.
struct BlockBuckets
{
    quint32 units = 0;
    alignas(32) LiteralScanner::Lanes buckets{};
};

/// What the scanner knows of a unit: its low byte without the bit in which the letters' cases differ.
constexpr quint16 knownBits = 0xDF;

/// What a block leaves to the next one, for windows that reach over the border.
struct Carry
{
    /// As if a block before `at` had let every window pass: those that begin before it are not ruled out.
    Carry(QStringView page, qsizetype at)
    {
        bytes.back() = at > 0 ? quint8(page[at - 1].unicode() & knownBits) : quint8(0);
        for (LiteralScanner::Lanes &pair : pairs)
            pair.fill(0xFF);
    }
    alignas(32) LiteralScanner::Lanes bytes{};                                          // what is known of its units
    alignas(32) std::array<LiteralScanner::Lanes, LiteralScanner::pairCount - 1> pairs; // buckets by pair
};

/// The hash of two neighbouring units: two nibbles. As Hashes has it for 32 units at once.
struct PairHash
{
    PairHash(quint8 first, quint8 second)
        : low((second ^ (first >> 1U)) & 0x0FU), high(((second >> 4U) ^ first) & 0x0FU)
    {
    }
    unsigned low, high;
};

/// The units of markup from the most common to the least; what is not listed is rare.
constexpr QStringView byFrequency = u" eationsrlcdhpum/=\"-<>.gfbvwy_:10;2k,3458769xj'&()q\n\tz#?";

int rarity(QChar unit)
{
    const qsizetype rank = byFrequency.indexOf(unit);
    return int(rank < 0 ? byFrequency.size() : rank);
}

/// The place of the window: the neighbouring units that are the rarest together.
qsizetype rarestWindow(QStringView text, qsizetype units)
{
    const auto rarityAt = [&](qsizetype begin) {
        const QStringView window = text.sliced(begin, units);
        return std::accumulate(window.begin(), window.end(), 0, [](int sum, QChar unit) { return sum + rarity(unit); });
    };
    qsizetype best = 0;
    int bestRarity = rarityAt(0);
    for (qsizetype begin = 1; begin + units <= text.size(); ++begin)
        if (const int found = rarityAt(begin); found > bestRarity)
            std::tie(best, bestRarity) = std::tuple(begin, found);
    return best;
}

#ifdef TRAWLEX_WITH_AVX2
#define TRAWLEX_AVX2 __attribute__((target("avx2"))) inline

TRAWLEX_AVX2 __m256i loaded(const LiteralScanner::Lanes &lanes)
{
    return _mm256_load_si256(reinterpret_cast<const __m256i *>(lanes.data()));
}

TRAWLEX_AVX2 void store(__m256i bytes, LiteralScanner::Lanes &lanes)
{
    _mm256_store_si256(reinterpret_cast<__m256i *>(lanes.data()), bytes);
}

/// What is known of 32 units, in order.
TRAWLEX_AVX2 __m256i knownBytes(const char16_t *units)
{
    const __m256i known = _mm256_set1_epi16(knownBits);
    const auto *from = reinterpret_cast<const __m256i *>(units);
    const __m256i left = _mm256_and_si256(_mm256_loadu_si256(from), known);
    const __m256i right = _mm256_and_si256(_mm256_loadu_si256(from + 1), known);
    return _mm256_permute4x64_epi64(_mm256_packus_epi16(left, right), 0xD8);
}

/// `now` moved up by `places` bytes, filled from the top of `before`.
template <int places> TRAWLEX_AVX2 __m256i movedUp(__m256i now, __m256i before)
{
    return _mm256_alignr_epi8(now, _mm256_permute2x128_si256(before, now, 0x21), 16 - places);
}

/// The PairHash of each unit and the one before it.
struct Hashes
{
    __m256i low, high;
};

TRAWLEX_AVX2 Hashes hashesOf(__m256i bytes, __m256i bytesBefore)
{
    const __m256i nibble = _mm256_set1_epi8(0x0F);
    const __m256i first = movedUp<1>(bytes, bytesBefore);
    return {_mm256_and_si256(_mm256_xor_si256(bytes, _mm256_srli_epi16(first, 1)), nibble),
            _mm256_and_si256(_mm256_xor_si256(_mm256_srli_epi16(bytes, 4), first), nibble)};
}

TRAWLEX_AVX2 __m256i lookUp(const LiteralScanner::Tables &tables, size_t pair, const Hashes &hashes)
{
    return _mm256_and_si256(_mm256_shuffle_epi8(loaded(tables.low[pair]), hashes.low),
                            _mm256_shuffle_epi8(loaded(tables.high[pair]), hashes.high));
}

/// The buckets that a pair lets pass, by the unit at which the window ends.
template <size_t pair>
TRAWLEX_AVX2 __m256i passing(const LiteralScanner::Tables &tables, const Hashes &hashes, __m256i &before)
{
    const __m256i here = lookUp(tables, pair, hashes);
    const __m256i buckets = movedUp<LiteralScanner::windowSize - 2 - 2 * int(pair)>(here, before);
    before = here;
    return buckets;
}

/// Goes on over whole blocks from `at` until one has a bucket. The index of that block, or of what is left behind the
/// last.
__attribute__((target("avx2"))) qsizetype
nextBlock(QStringView page, qsizetype at, const LiteralScanner::Tables &tables, Carry &carry, BlockBuckets &found)
{
    static_assert(LiteralScanner::pairCount == 4);
    __m256i bytesBefore = loaded(carry.bytes);
    __m256i before[] = {loaded(carry.pairs[0]), loaded(carry.pairs[1]), loaded(carry.pairs[2])};
    __m256i buckets = _mm256_setzero_si256();
    for (; at + blockSize <= page.size(); at += blockSize) {
        const __m256i bytes = knownBytes(page.utf16() + at);
        const Hashes hashes = hashesOf(bytes, bytesBefore);
        bytesBefore = bytes;
        const __m256i outer = _mm256_and_si256(passing<0>(tables, hashes, before[0]), lookUp(tables, 3, hashes));
        const __m256i inner =
            _mm256_and_si256(passing<1>(tables, hashes, before[1]), passing<2>(tables, hashes, before[2]));
        buckets = _mm256_and_si256(outer, inner);
        if (!_mm256_testz_si256(buckets, buckets))
            break;
    }
    store(bytesBefore, carry.bytes);
    for (size_t pair = 0; pair < carry.pairs.size(); ++pair)
        store(before[pair], carry.pairs[pair]);
    store(buckets, found.buckets);
    found.units = ~quint32(_mm256_movemask_epi8(_mm256_cmpeq_epi8(buckets, _mm256_setzero_si256())));
    return at;
}
#else
qsizetype nextBlock(QStringView, qsizetype at, const LiteralScanner::Tables &, Carry &, BlockBuckets &)
{
    return at;
}
#endif
} // namespace

bool LiteralScanner::isSupported()
{
#ifdef TRAWLEX_WITH_AVX2
    return __builtin_cpu_supports("avx2") != 0;
#else
    return false;
#endif
}

LiteralScanner::LiteralScanner(const QStringList &texts, Qt::CaseSensitivity sensitivity, qsizetype firstIndex)
    : mFolds(sensitivity == Qt::CaseInsensitive)
{
    Q_ASSERT(texts.size() <= mostTexts);
    mLiterals.reserve(size_t(texts.size()));
    for (qsizetype index = 0; index < texts.size(); ++index)
        if (!texts[index].isEmpty())
            mLiterals.push_back(literalOf(texts[index], firstIndex + index));
    // Texts with like windows stand together: they share a bucket, which keeps its tables narrow.
    const auto key = [](const Literal &literal) {
        const PairNibbles last = literal.pairs.back();
        return std::tuple(literal.windowUnits, last.low, last.high, literal.index);
    };
    std::sort(mLiterals.begin(), mLiterals.end(),
              [&](const Literal &left, const Literal &right) { return key(left) < key(right); });
    mWholePlan = planFor(nullptr);
}

LiteralScanner::Literal LiteralScanner::literalOf(const QString &text, qsizetype index) const
{
    const qsizetype units = std::min<qsizetype>(text.size(), windowSize);
    Literal literal{text, index, rarestWindow(text, units), units, {}};
    for (qsizetype pair = 0; pair < pairCount; ++pair)
        literal.pairs[size_t(pair)] = nibblesOf(literal, pair);
    return literal;
}

/// A text shorter than the window leaves the first places of the window open.
LiteralScanner::PairNibbles LiteralScanner::nibblesOf(const Literal &literal, qsizetype pair) const
{
    constexpr int byteCount = 0x100;
    const qsizetype firstAt = literal.windowBegin + 2 * pair - (windowSize - literal.windowUnits);
    const auto variantsAt = [&](qsizetype at) {
        const char16_t unit = literal.text[at].unicode();
        return mFolds ? cUtility::caseVariants(unit) : cUtility::CaseVariants{unit};
    };
    PairNibbles nibbles;
    const auto enter = [&nibbles](quint8 first, quint8 second) {
        const PairHash hash(first & knownBits, second & knownBits);
        nibbles.low |= quint16(1U << hash.low);
        nibbles.high |= quint16(1U << hash.high);
    };
    if (firstAt + 1 < literal.windowBegin)
        return {0xFFFF, 0xFFFF};
    for (const char16_t second : variantsAt(firstAt + 1)) {
        if (firstAt < literal.windowBegin) {
            for (int first = 0; first < byteCount; ++first)
                enter(quint8(first), quint8(second));
            continue;
        }
        for (const char16_t first : variantsAt(firstAt))
            enter(quint8(first), quint8(second));
    }
    return nibbles;
}

/// The plan for the open texts, or for all.
LiteralScanner::Plan LiteralScanner::planFor(const OpenTexts *open) const
{
    Plan plan;
    size_t count = 0;
    for (size_t place = 0; place < mLiterals.size(); ++place)
        if (open == nullptr || open->isOpen(mLiterals[place].index))
            plan.order[count++] = quint8(place);
    for (size_t bucket = 0; bucket < bucketCount; ++bucket) {
        plan.bounds[bucket + 1] = quint8(count * (bucket + 1) / bucketCount);
        for (size_t at = plan.bounds[bucket]; at < plan.bounds[bucket + 1]; ++at)
            enter(plan.tables, quint8(1U << bucket), mLiterals[plan.order[at]]);
    }
    return plan;
}

void LiteralScanner::enter(Tables &tables, quint8 bucket, const Literal &literal)
{
    constexpr size_t laneSize = 16;
    const auto set = [&](Lanes &table, quint16 nibbles) {
        for (; nibbles != 0; nibbles = quint16(nibbles & (nibbles - 1U))) {
            const size_t nibble = size_t(std::countr_zero(nibbles));
            table[nibble] |= bucket;
            table[nibble + laneSize] |= bucket;
        }
    };
    for (size_t pair = 0; pair < pairCount; ++pair) {
        set(tables.low[pair], literal.pairs[pair].low);
        set(tables.high[pair], literal.pairs[pair].high);
    }
}

bool LiteralScanner::standsAt(QStringView page, qsizetype begin, const Literal &literal, qsizetype &steps) const
{
    ++steps;
    if (begin < 0 || begin + literal.text.size() > page.size())
        return false;
    for (qsizetype at = 0; at < literal.text.size(); ++at, ++steps) {
        const char16_t unit = page[begin + at].unicode();
        if ((mFolds ? cUtility::lowerUnit(unit) : unit) != literal.text[at].unicode())
            return false;
    }
    return true;
}

/// Closes the open texts of `buckets` that stand at a window's end; true when there was one.
bool LiteralScanner::closeFoundAt(QStringView page, qsizetype windowEnd, quint8 buckets, const Plan &plan,
                                  OpenTexts &open, qsizetype &steps) const
{
    bool hasClosed = false;
    for (; buckets != 0; buckets = quint8(buckets & (buckets - 1U))) {
        const size_t bucket = size_t(std::countr_zero(buckets));
        for (size_t at = plan.bounds[bucket]; at < plan.bounds[bucket + 1]; ++at) {
            const Literal &literal = mLiterals[plan.order[at]];
            const qsizetype begin = windowEnd - (literal.windowBegin + literal.windowUnits - 1);
            if (!open.isOpen(literal.index) || !standsAt(page, begin, literal, steps))
                continue;
            open.close(literal.index);
            hasClosed = true;
        }
    }
    return hasClosed;
}

LiteralScanner::Pause LiteralScanner::scanWith(const Plan &plan, QStringView page, OpenTexts &open,
                                               Progress &progress) const
{
    constexpr qsizetype freeSteps = 4096;
    BlockBuckets found;
    Carry carry(page, progress.at);
    while (true) {
        progress.at = nextBlock(page, progress.at, plan.tables, carry, found);
        const qsizetype units = std::min(blockSize, page.size() - progress.at);
        if (units <= 0)
            return Pause::AtEnd;
        if (units < blockSize) { // what is left behind the last whole block, with zeros behind it
            std::array<char16_t, size_t(blockSize)> rest{};
            std::copy_n(page.utf16() + progress.at, units, rest.begin());
            if (nextBlock(QStringView(rest.data(), blockSize), 0, plan.tables, carry, found) != 0)
                return Pause::AtEnd;
        }
        for (; found.units != 0; found.units &= found.units - 1) {
            const auto unit = std::countr_zero(found.units);
            if (closeFoundAt(page, progress.at + unit, found.buckets[size_t(unit)], plan, open, progress.steps))
                return Pause::Closed;
        }
        progress.at += blockSize;
        if (progress.steps > freeSteps + progress.at)
            return Pause::TooManySteps;
    }
}

bool LiteralScanner::scan(QStringView page, OpenTexts &open) const
{
    if (std::none_of(mLiterals.begin(), mLiterals.end(), [&](const Literal &l) { return open.isOpen(l.index); }))
        return true;
    Progress progress;
    Pause pause = scanWith(mWholePlan, page, open, progress);
    while (pause == Pause::Closed && !open.isDecided())
        pause = scanWith(planFor(&open), page, open, progress); // the same block again, with fewer texts
    return pause != Pause::TooManySteps;
}
