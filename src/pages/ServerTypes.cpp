#include "pages/ServerTypes.h"

namespace {
constexpr int letterCount = 26;

constexpr bool isLetter(char16_t unit)
{
    return unit >= u'a' && unit <= u'z';
}

constexpr int pairIndex(char16_t first, char16_t second)
{
    return (first - u'a') * letterCount + (second - u'a');
}

/// What may begin with a pair of letters behind the dot.
struct PairTypes
{
    qint8 twoLetters = -1;
    qint8 threeLetters = -1; // no two types of three letters share their first two but ".gov" and ".god"
    qint8 otherThreeLetters = -1;
};

constexpr std::array<PairTypes, size_t(letterCount *letterCount)> typesByPair = [] {
    std::array<PairTypes, size_t(letterCount * letterCount)> table;
    table.fill(PairTypes());
    for (size_t index = 0; index < serverTypes.size(); ++index) {
        const QStringView type = serverTypes[index];
        PairTypes &entry = table[size_t(pairIndex(type[1].unicode(), type[2].unicode()))];
        qint8 &place = type.size() == 3         ? entry.twoLetters
                       : entry.threeLetters < 0 ? entry.threeLetters
                                                : entry.otherThreeLetters;
        if (place < 0)
            place = qint8(index);
    }
    return table;
}();
} // namespace

TypesAtDot typesAtDot(QStringView text)
{
    if (text.size() < 3 || text[0] != u'.' || !isLetter(text[1].unicode()) || !isLetter(text[2].unicode()))
        return {};
    const PairTypes &entry = typesByPair[size_t(pairIndex(text[1].unicode(), text[2].unicode()))];
    TypesAtDot types{entry.twoLetters, -1};
    for (const int index : {int(entry.threeLetters), int(entry.otherThreeLetters)})
        if (index >= 0 && text.size() >= 4 && text[3] == serverTypes[size_t(index)][3])
            types.threeLetters = index;
    return types;
}
