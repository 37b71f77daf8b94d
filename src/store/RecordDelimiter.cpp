#include "store/RecordDelimiter.h"

#include <cstring>

namespace {
int commonness(QChar character)
{
    const char16_t unit = character.unicode();
    if (character.isLetterOrNumber() || unit <= u' ')
        return 2;
    return QStringView(u"<>\"'=/.,:;-_&()#").contains(character) ? 1 : 0;
}

qsizetype rarestIn(QStringView text)
{
    qsizetype rarest = 0;
    int least = 3;
    for (qsizetype place = 0; place < text.size() && least > 0; ++place) {
        const int common = commonness(text[place]);
        if (common < least) {
            least = common;
            rarest = place;
        }
    }
    return rarest;
}

// The place of the unit at or behind `from`, or -1. Bytes are looked for, which the C library does fastest.
qsizetype indexOfUnit(QStringView text, char16_t unit, qsizetype from)
{
    const auto *const bytes = reinterpret_cast<const unsigned char *>(text.utf16());
    const qsizetype end = text.size() * 2;
    unsigned char sought[2];
    std::memcpy(sought, &unit, sizeof(unit));
    for (qsizetype at = from * 2; at < end; ++at) {
        const void *const found = std::memchr(bytes + at, sought[0], static_cast<std::size_t>(end - at));
        if (found == nullptr)
            return -1;
        at = static_cast<const unsigned char *>(found) - bytes;
        if (at % 2 == 0 && bytes[at + 1] == sought[1])
            return at / 2;
    }
    return -1;
}
} // namespace

RecordDelimiter::RecordDelimiter(const QString &text) : mText(text), mRarest(rarestIn(text)) {}

qsizetype RecordDelimiter::find(QStringView element, qsizetype from) const
{
    if (mText.isEmpty())
        return -1;
    const char16_t unit = mText[mRarest].unicode();
    qsizetype place = indexOfUnit(element, unit, from + mRarest);
    while (place >= 0 && !element.sliced(place - mRarest).startsWith(mText))
        place = indexOfUnit(element, unit, place + 1);
    return place < 0 ? -1 : place - mRarest;
}
