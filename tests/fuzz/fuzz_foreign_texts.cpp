// The forms in which other programs' files hold texts, dates and numbers, out of any bytes.
#include "FuzzInput.h"
#include "store/StoredText.h"
#include "store/foreign/TextForms.h"

#include <QDateTime>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {
/// Two bytes a character, where a half that stands alone is replaced; by Qt.
QString plainText(std::string_view bytes)
{
    QString text(qsizetype(bytes.size()) / 2, Qt::Uninitialized);
    std::memcpy(text.data(), bytes.data(), size_t(text.size()) * 2);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (pair)
            ++i;
        else if (text[i].isSurrogate())
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

template <class Number> Number numberIn(std::string_view bytes)
{
    Number number{};
    std::memcpy(&number, bytes.data(), std::min(bytes.size(), sizeof(number)));
    return number;
}

/// The amount that a decimal stands for.
int64_t tenThousandths(const QString &decimal)
{
    const QString digits = decimal.section(u'.', 0, 0) + decimal.section(u'.', 1).leftJustified(4, u'0');
    return digits.toLongLong();
}

void demandDate(const std::string &text, const char *routine)
{
    const QString date = storedText(text);
    demandEqual(date.isEmpty() || QDateTime::fromString(date, Qt::ISODate).isValid(), true, routine);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char *>(data), size);
    const std::string text = textFromUnits(bytes);
    const QString read = storedText(text);
    demandEqual(read.toStdString(), text, "the encoding of a text");
    if (bytes.substr(0, 2) != "\xFF\xFE")
        demandEqual(read, plainText(bytes), "a text");

    demandDate(dateFromDays(numberIn<double>(bytes)), "a date");
    demandDate(extendedDate(bytes), "an extended date");
    const auto amount = numberIn<int64_t>(bytes);
    demandEqual(tenThousandths(QString::fromStdString(amountText(amount))), amount, "an amount");
    demandEqual(guidText(bytes).size(), size_t(size < 16 ? 0 : 38), "a number of sixteen bytes");
    if (const auto inner = calculatedValue(bytes))
        demandEqual(inner->start <= size && inner->length <= size - inner->start, true, "a calculated value");
    return 0;
}
