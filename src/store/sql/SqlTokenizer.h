// Cuts the text of a statement into words, names in brackets, texts in quotes, numbers and signs.
#pragma once

#include <QString>

struct SqlToken
{
    enum class Kind { Word, Name, Text, Number, Sign, End };

    Kind kind = Kind::End;
    /// What it stands for: without brackets or quotes. A sign is one character.
    QStringView text;
};

class SqlTokenizer
{
  public:
    /// `text` must outlive the tokenizer and its tokens.
    explicit SqlTokenizer(QStringView text) : mText(text) {}

    /// The next token; of kind End behind the last one. Error AdoError::BadSql for what is no token.
    [[nodiscard]] SqlToken next();

  private:
    [[nodiscard]] SqlToken quoted(SqlToken::Kind kind, QChar end);
    [[nodiscard]] SqlToken run(SqlToken::Kind kind, qsizetype end);
    [[nodiscard]] QChar at(qsizetype place) const;
    [[nodiscard]] qsizetype endOfNumber() const;

    QStringView mText;
    qsizetype mPlace = 0;
};
