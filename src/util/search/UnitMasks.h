// Which of 64 neighbouring units of a text are of a kind, as bits: bit n stands for unit n. Knows nobody.
#pragma once

#include <QtGlobal>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace UnitMasks {
constexpr qsizetype unitCount = 64;

#if defined(__SSE2__)
/// One bit for each of 64 units; `test` turns 8 units into 8 words of ones or zeros.
template <class Test> [[nodiscard]] inline quint64 collect(const char16_t *units, Test test)
{
    constexpr qsizetype unitsAtOnce = 16;
    const auto *from = reinterpret_cast<const __m128i *>(units);
    quint64 mask = 0;
    for (qsizetype at = 0; at < unitCount; at += unitsAtOnce, from += 2) {
        const __m128i bytes = _mm_packs_epi16(test(_mm_loadu_si128(from)), test(_mm_loadu_si128(from + 1)));
        mask |= quint64(quint16(_mm_movemask_epi8(bytes))) << at;
    }
    return mask;
}

/// The ASCII digits among the 64 units at `units`.
[[nodiscard]] inline quint64 digits(const char16_t *units)
{
    return collect(units, [](__m128i eight) {
        const __m128i place = _mm_sub_epi16(eight, _mm_set1_epi16(u'0'));
        return _mm_cmpeq_epi16(_mm_subs_epu16(place, _mm_set1_epi16(9)), _mm_setzero_si128()); // 0 to 9, unsigned
    });
}

/// The units that are `first` or `second`.
[[nodiscard]] inline quint64 either(const char16_t *units, char16_t first, char16_t second)
{
    return collect(units, [&](__m128i eight) {
        return _mm_or_si128(_mm_cmpeq_epi16(eight, _mm_set1_epi16(short(first))),
                            _mm_cmpeq_epi16(eight, _mm_set1_epi16(short(second))));
    });
}
#else
template <class Test> [[nodiscard]] inline quint64 collect(const char16_t *units, Test test)
{
    quint64 mask = 0;
    for (qsizetype at = 0; at < unitCount; ++at)
        mask |= quint64(test(units[at]) ? 1 : 0) << at;
    return mask;
}

[[nodiscard]] inline quint64 digits(const char16_t *units)
{
    return collect(units, [](char16_t unit) { return unit >= u'0' && unit <= u'9'; });
}

[[nodiscard]] inline quint64 either(const char16_t *units, char16_t first, char16_t second)
{
    return collect(units, [&](char16_t unit) { return unit == first || unit == second; });
}
#endif
} // namespace UnitMasks
