#include "util/search/CaseVariants.h"

#include "util/Text.h"

#include <algorithm>
#include <vector>

namespace {
struct Mapping
{
    char16_t lower;
    char16_t unit;
};

bool isBefore(const Mapping &left, const Mapping &right)
{
    return left.lower < right.lower;
}

/// All units that are not their own lower case, ordered by that.
const std::vector<Mapping> &mappings()
{
    static const std::vector<Mapping> all = [] {
        constexpr int unitCount = 0x10000;
        std::vector<Mapping> list;
        for (int unit = 0; unit < unitCount; ++unit)
            if (const char16_t lower = cUtility::lowerUnit(char16_t(unit)); lower != unit)
                list.push_back({lower, char16_t(unit)});
        std::stable_sort(list.begin(), list.end(), isBefore);
        return list;
    }();
    return all;
}
} // namespace

cUtility::CaseVariants cUtility::caseVariants(char16_t unit)
{
    const char16_t lower = lowerUnit(unit);
    CaseVariants variants{lower};
    const auto [begin, end] = std::equal_range(mappings().begin(), mappings().end(), Mapping{lower, lower}, isBefore);
    for (auto mapping = begin; mapping != end; ++mapping)
        variants.append(mapping->unit);
    return variants;
}
