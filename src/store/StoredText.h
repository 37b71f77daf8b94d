// A text as it lies in a file. Knows no file.
#pragma once

#include <QString>

/// All characters of a text in UTF-8. Qt takes a first U+FEFF for a mark of the byte order and leaves it out.
[[nodiscard]] inline QString storedText(QByteArrayView bytes)
{
    QString text = QString::fromUtf8(bytes);
    if (bytes.startsWith("\xEF\xBB\xBF"))
        text.prepend(QChar(QChar::ByteOrderMark));
    return text;
}
