#include "store/sql/SqlTokenizer.h"
#include "store/AdoErrors.h"

using namespace Qt::StringLiterals;

namespace {
bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t' || character == u'\r' || character == u'\n';
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool startsWord(QChar character)
{
    return character.isLetter() || character == u'_';
}
} // namespace

QChar SqlTokenizer::at(qsizetype place) const
{
    return place < mText.size() ? mText[place] : QChar(u'\0');
}

SqlToken SqlTokenizer::run(SqlToken::Kind kind, qsizetype end)
{
    const SqlToken token{kind, mText.sliced(mPlace, end - mPlace)};
    mPlace = end;
    return token;
}

SqlToken SqlTokenizer::quoted(SqlToken::Kind kind, QChar end)
{
    const qsizetype close = mText.indexOf(end, mPlace + 1);
    if (close < 0)
        throw AdoError::error(AdoError::BadSql);
    const SqlToken token{kind, mText.sliced(mPlace + 1, close - mPlace - 1)};
    mPlace = close + 1;
    return token;
}

// A sign, digits, a fraction and an exponent; the place of the first character behind them.
qsizetype SqlTokenizer::endOfNumber() const
{
    qsizetype place = mPlace;
    const auto digits = [&] {
        const qsizetype start = place;
        while (isDigit(at(place)))
            ++place;
        return place - start;
    };
    if (at(place) == u'-' || at(place) == u'+')
        ++place;
    qsizetype count = digits();
    if (at(place) == u'.') {
        ++place;
        count += digits();
    }
    if (count == 0)
        throw AdoError::error(AdoError::BadSql);
    if (at(place) == u'e' || at(place) == u'E') {
        ++place;
        if (at(place) == u'-' || at(place) == u'+')
            ++place;
        if (digits() == 0)
            throw AdoError::error(AdoError::BadSql);
    }
    if (startsWord(at(place)) || at(place) == u'.')
        throw AdoError::error(AdoError::BadSql);
    return place;
}

SqlToken SqlTokenizer::next()
{
    while (mPlace < mText.size() && isBlank(mText[mPlace]))
        ++mPlace;
    if (mPlace == mText.size())
        return {};
    const QChar first = mText[mPlace];
    if (first == u'[')
        return quoted(SqlToken::Kind::Name, u']');
    if (first == u'\'')
        return quoted(SqlToken::Kind::Text, u'\'');
    if (startsWord(first)) {
        qsizetype end = mPlace + 1;
        while (end < mText.size() && (startsWord(mText[end]) || mText[end].isDigit()))
            ++end;
        return run(SqlToken::Kind::Word, end);
    }
    if (isDigit(first) || first == u'-' || first == u'+' || first == u'.')
        return run(SqlToken::Kind::Number, endOfNumber());
    if (QStringView(u"*,=").contains(first))
        return run(SqlToken::Kind::Sign, mPlace + 1);
    throw AdoError::error(AdoError::BadSql);
}
