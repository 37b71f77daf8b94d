// Makes arguments of the bytes that a fuzzer gives, and ends the program where two answers differ.
#pragma once

#include "util/Errors.h"

#include <QString>
#include <QStringList>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

class FuzzInput
{
  public:
    FuzzInput(const uint8_t *data, size_t size) : mData(data), mSize(size) {}

    [[nodiscard]] int number(int low, int high) { return low + (mSize == 0 ? 0 : next() % (high - low + 1)); }
    [[nodiscard]] bool flag() { return number(0, 1) == 1; }

    /// A text of up to `most` units. Bytes are their own units, but those from 0xF8 on, which take the two bytes behind
    /// them as one unit, so that each unit can be made; 0xF7 ends the text, and 0xF6 repeats the unit before it as
    /// often as the byte behind it says, so that a short input can make a long text.
    [[nodiscard]] QString text(qsizetype most)
    {
        QString made;
        while (mSize > 0 && made.size() < most) {
            const uint8_t byte = next();
            if (byte == 0xF7)
                break;
            if (byte == 0xF6 && mSize > 0 && !made.isEmpty()) {
                made += QString(std::min<qsizetype>(next(), most - made.size()), made.back());
                continue;
            }
            const bool isWide = byte >= 0xF8 && mSize >= 2;
            const int high = isWide ? next() : 0;
            made += isWide ? QChar(char16_t(high << 8 | next())) : QChar(char16_t(byte));
        }
        return made;
    }

    [[nodiscard]] QString rest() { return text(qsizetype(mSize)); }

    [[nodiscard]] QStringList list(int mostItems, qsizetype mostUnits)
    {
        QStringList items;
        for (int left = number(1, mostItems); left > 0; --left)
            items += text(mostUnits);
        return items;
    }

  private:
    uint8_t next()
    {
        --mSize;
        return *mData++;
    }

    const uint8_t *mData;
    size_t mSize;
};

/// Counts what would be logged.
class RecordCounter : public ErrorReceiver
{
  public:
    void ErrorLogger(qint64, const QString &, const QString &, const QString &) override { ++count; }
    int count = 0;
};

/// Ends the program, for the fuzzer to keep the input, where the two answers of a routine differ.
template <class Answer> void demandEqual(const Answer &given, const Answer &expected, const char *routine)
{
    if (given == expected)
        return;
    std::fprintf(stderr, "%s differs from its plain version\n", routine);
    std::abort();
}
