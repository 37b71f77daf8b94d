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
    std::array<quint8, size_t(blockSize)> buckets{};
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

/// The table results of the block before, for windows that reach over the border; by the place in the window.
struct Carry
{
    __m256i places[LiteralScanner::windowSize - 1];
};

/// The low bytes of 32 units, in order.
TRAWLEX_AVX2 __m256i lowBytes(const char16_t *units)
{
    const __m256i byteMask = _mm256_set1_epi16(0x00FF);
    const auto *from = reinterpret_cast<const __m256i *>(units);
    const __m256i left = _mm256_and_si256(_mm256_loadu_si256(from), byteMask);
    const __m256i right = _mm256_and_si256(_mm256_loadu_si256(from + 1), byteMask);
    return _mm256_permute4x64_epi64(_mm256_packus_epi16(left, right), 0xD8);
}

TRAWLEX_AVX2 __m256i lookUp(const LiteralScanner::Tables &tables, size_t place, __m256i low, __m256i high)
{
    const __m256i lowTable = _mm256_load_si256(reinterpret_cast<const __m256i *>(tables.low[place].data()));
    const __m256i highTable = _mm256_load_si256(reinterpret_cast<const __m256i *>(tables.high[place].data()));
    return _mm256_and_si256(_mm256_shuffle_epi8(lowTable, low), _mm256_shuffle_epi8(highTable, high));
}

/// `now` moved up by `places` bytes, filled from the top of `before`.
template <int places> TRAWLEX_AVX2 __m256i movedUp(__m256i now, __m256i before)
{
    return _mm256_alignr_epi8(now, _mm256_permute2x128_si256(before, now, 0x21), 16 - places);
}

/// The buckets whose windows pass at all places from the first to `place`, by the unit at which the window ends.
template <size_t place>
TRAWLEX_AVX2 __m256i passing(const LiteralScanner::Tables &tables, __m256i low, __m256i high, Carry &carry)
{
    constexpr int back = LiteralScanner::windowSize - 1 - int(place);
    const __m256i here = lookUp(tables, place, low, high);
    __m256i buckets = here;
    if constexpr (back > 0) {
        buckets = movedUp<back>(here, carry.places[place]);
        carry.places[place] = here;
    }
    if constexpr (place > 0)
        buckets = _mm256_and_si256(buckets, passing<place - 1>(tables, low, high, carry));
    return buckets;
}

/// Goes on over whole blocks from `at` until one has a bucket. The index of that block, or of what is left behind the
/// last.
__attribute__((target("avx2"))) qsizetype nextBlock(QStringView page, qsizetype at,
                                                    const LiteralScanner::Tables &tables, BlockBuckets &found)
{
    const __m256i nibbleMask = _mm256_set1_epi8(0x0F);
    Carry carry;
    for (__m256i &place : carry.places)
        place = _mm256_set1_epi8(-1); // windows that begin before `at` are not ruled out
    for (; at + blockSize <= page.size(); at += blockSize) {
        const __m256i bytes = lowBytes(page.utf16() + at);
        const __m256i low = _mm256_and_si256(bytes, nibbleMask);
        const __m256i high = _mm256_and_si256(_mm256_srli_epi16(bytes, 4), nibbleMask);
        const __m256i buckets = passing<LiteralScanner::windowSize - 1>(tables, low, high, carry);
        if (!_mm256_testz_si256(buckets, buckets)) {
            _mm256_storeu_si256(reinterpret_cast<__m256i *>(found.buckets.data()), buckets);
            const __m256i isNone = _mm256_cmpeq_epi8(buckets, _mm256_setzero_si256());
            found.units = ~quint32(_mm256_movemask_epi8(isNone));
            return at;
        }
    }
    return at;
}
#else
qsizetype nextBlock(QStringView, qsizetype at, const LiteralScanner::Tables &, BlockBuckets &)
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
    for (qsizetype index = 0; index < texts.size(); ++index) {
        const QString &text = texts[index];
        const qsizetype units = std::min<qsizetype>(text.size(), windowSize);
        if (units > 0)
            mLiterals.push_back({text, firstIndex + index, rarestWindow(text, units), units});
    }
    mWholePlan = planFor(nullptr);
}

/// The plan for the open texts, or for all. Texts with like windows share a bucket, which keeps its tables narrow.
LiteralScanner::Plan LiteralScanner::planFor(const OpenTexts *open) const
{
    Plan plan;
    size_t count = 0;
    for (size_t place = 0; place < mLiterals.size(); ++place)
        if (open == nullptr || open->isOpen(mLiterals[place].index))
            plan.order[count++] = quint8(place);
    const auto key = [&](quint8 place) {
        const Literal &literal = mLiterals[place];
        const char16_t first = literal.text[literal.windowBegin].unicode();
        return std::tuple(literal.windowUnits, first & 0x0F, first & 0xF0, place);
    };
    std::sort(plan.order.begin(), plan.order.begin() + qsizetype(count),
              [&](quint8 left, quint8 right) { return key(left) < key(right); });
    for (size_t bucket = 0; bucket < bucketCount; ++bucket) {
        plan.bounds[bucket + 1] = quint8(count * (bucket + 1) / bucketCount);
        for (size_t at = plan.bounds[bucket]; at < plan.bounds[bucket + 1]; ++at)
            enter(plan.tables, quint8(1U << bucket), mLiterals[plan.order[at]]);
    }
    return plan;
}

/// Enters the window of a text; a short one leaves the first places of the window open.
void LiteralScanner::enter(Tables &tables, quint8 bucket, const Literal &literal) const
{
    constexpr size_t laneSize = 16;
    const auto set = [&](std::array<quint8, 2 * laneSize> &table, size_t nibble) {
        table[nibble] |= bucket;
        table[nibble + laneSize] |= bucket;
    };
    const qsizetype openPlaces = windowSize - literal.windowUnits;
    for (qsizetype place = 0; place < openPlaces; ++place)
        for (size_t nibble = 0; nibble < laneSize; ++nibble) {
            set(tables.low[size_t(place)], nibble);
            set(tables.high[size_t(place)], nibble);
        }
    for (qsizetype place = openPlaces; place < windowSize; ++place) {
        const char16_t unit = literal.text[literal.windowBegin + place - openPlaces].unicode();
        const cUtility::CaseVariants units = mFolds ? cUtility::caseVariants(unit) : cUtility::CaseVariants{unit};
        for (const char16_t variant : units) {
            set(tables.low[size_t(place)], variant & 0x0FU);
            set(tables.high[size_t(place)], (variant >> 4) & 0x0FU);
        }
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
    while (true) {
        progress.at = nextBlock(page, progress.at, plan.tables, found);
        const qsizetype units = std::min(blockSize, page.size() - progress.at);
        if (units <= 0)
            return Pause::AtEnd;
        if (units < blockSize) { // what is left behind the last whole block, with zeros behind it
            std::array<char16_t, size_t(blockSize)> rest{};
            std::copy_n(page.utf16() + progress.at, units, rest.begin());
            if (nextBlock(QStringView(rest.data(), blockSize), 0, plan.tables, found) != 0)
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
