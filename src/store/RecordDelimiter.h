// The text that parts field and value in an element of a record, made ready to be found fast: elements can be whole
// pages, and nearly all of them hold it once, near their beginning. Knows nobody.
#pragma once

#include <QString>

class RecordDelimiter
{
  public:
    explicit RecordDelimiter(const QString &text);

    [[nodiscard]] const QString &text() const { return mText; }

    /// The place of the first delimiter at or behind `from`, with regard to case, or -1. An empty one is nowhere.
    [[nodiscard]] qsizetype find(QStringView element, qsizetype from) const;

  private:
    QString mText;
    // The place of the character in the delimiter that is rarest in texts: it is looked for, not the whole.
    qsizetype mRarest = 0;
};
