// Seeded random texts for the comparisons of plain and fast versions: mostly made of pieces that matter to the routine,
// with what real pages hold in between (accents, pairs and lone halves of surrogates, controls, odd case mappings).
#pragma once

#include <QString>
#include <QStringList>
#include <random>

/// How many inputs each comparison takes: TRAWLEX_RANDOM_ROUNDS, else 200,000.
inline int randomRounds()
{
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("TRAWLEX_RANDOM_ROUNDS", &isNumber);
    return isNumber && wanted > 0 ? wanted : 200000;
}

class RandomText
{
  public:
    explicit RandomText(unsigned seed) : mEngine(seed) {}

    /// A number from `low` to `high`, both included.
    int number(int low, int high) { return std::uniform_int_distribution<int>(low, high)(mEngine); }

    bool oneIn(int count) { return number(1, count) == 1; }

    /// One of the texts.
    const QString &oneOf(const QStringList &texts) { return texts[number(0, int(texts.size()) - 1)]; }

    /// Up to `most` pieces joined; about one in twelve is a character that no routine waits for.
    QString text(const QStringList &pieces, int most)
    {
        QString joined;
        for (int left = number(0, most); left > 0; --left) {
            if (oneIn(12))
                joined += oddUnit();
            else
                joined += oneOf(pieces);
        }
        return joined;
    }

    QStringList list(const QStringList &pieces, int mostItems, int mostPieces)
    {
        QStringList items;
        for (int left = number(1, mostItems); left > 0; --left)
            items += text(pieces, mostPieces);
        return items;
    }

  private:
    QChar oddUnit()
    {
        static const QString odd = QStringLiteral(u"\u0000\u0001\t\r\n \u007F\u0080\u0081\u00A0\u00C9\u00E9\u00DF\u0130"
                                                  u"\u0131\u017F\u212A\u212B\u20AC\u03A3\u03C2\u0663\uFF11\U0001F600"
                                                  u"\U00010400\uFFFF\uFEFF");
        if (oneIn(8))
            return QChar(char16_t(oneIn(2) ? 0xD83D : 0xDE00));
        return odd[number(0, int(odd.size()) - 1)];
    }

    std::mt19937 mEngine;
};
