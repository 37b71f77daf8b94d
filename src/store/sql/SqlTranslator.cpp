#include "store/sql/SqlTranslator.h"
#include "store/AdoErrors.h"
#include "store/sql/SqlTokenizer.h"

using namespace Qt::StringLiterals;

namespace {
// Reads by one token of sight ahead.
class Parser
{
  public:
    explicit Parser(const QString &text) : mTokens(text), mToken(mTokens.next()) {}

    SqlStatement statement()
    {
        SqlStatement parsed;
        if (takeWord("SELECT"_L1)) {
            select(parsed);
        } else {
            expectWord("DELETE"_L1);
            parsed.verb = SqlStatement::Verb::Delete;
            static_cast<void>(takeSign(u'*'));
        }
        expectWord("FROM"_L1);
        parsed.table = name();
        if (takeWord("WHERE"_L1))
            parsed.condition = condition();
        if (mToken.kind != SqlToken::Kind::End)
            refuse();
        return parsed;
    }

  private:
    [[noreturn]] static void refuse() { throw AdoError::error(AdoError::BadSql); }

    void step() { mToken = mTokens.next(); }

    [[nodiscard]] bool isWord(QLatin1StringView word) const
    {
        return mToken.kind == SqlToken::Kind::Word && mToken.text.compare(word, Qt::CaseInsensitive) == 0;
    }

    [[nodiscard]] bool takeWord(QLatin1StringView word)
    {
        const bool taken = isWord(word);
        if (taken)
            step();
        return taken;
    }

    void expectWord(QLatin1StringView word)
    {
        if (!takeWord(word))
            refuse();
    }

    [[nodiscard]] bool takeSign(QChar sign)
    {
        const bool taken = mToken.kind == SqlToken::Kind::Sign && mToken.text.front() == sign;
        if (taken)
            step();
        return taken;
    }

    QString name()
    {
        if ((mToken.kind != SqlToken::Kind::Word && mToken.kind != SqlToken::Kind::Name) || mToken.text.isEmpty())
            refuse();
        QString taken = mToken.text.toString();
        step();
        return taken;
    }

    void select(SqlStatement &parsed)
    {
        // "TOP" is the limit only where a number follows; else it is a column of that name.
        if (isWord("TOP"_L1)) {
            step();
            if (mToken.kind == SqlToken::Kind::Number)
                parsed.top = count();
            else
                parsed.fields.append(u"TOP"_s);
        }
        if (!parsed.fields.isEmpty()) {
            moreFields(parsed.fields);
        } else if (!takeSign(u'*')) {
            parsed.fields.append(name());
            moreFields(parsed.fields);
        }
    }

    void moreFields(QStringList &fields)
    {
        while (takeSign(u','))
            fields.append(name());
    }

    qint64 count()
    {
        bool good = false;
        const qint64 number = mToken.text.toLongLong(&good);
        if (!good || number < 0)
            refuse();
        step();
        return number;
    }

    SqlStatement::Condition condition()
    {
        SqlStatement::Condition parsed;
        parsed.field = name();
        const bool like = takeWord("LIKE"_L1);
        if (like)
            parsed.comparison = SqlStatement::Comparison::Like;
        else if (!takeSign(u'='))
            refuse();
        if (mToken.kind != SqlToken::Kind::Text && (like || mToken.kind != SqlToken::Kind::Number))
            refuse();
        parsed.value = mToken.text.toString();
        step();
        return parsed;
    }

    SqlTokenizer mTokens;
    SqlToken mToken;
};
} // namespace

SqlStatement parseStatement(const QString &text)
{
    return Parser(text).statement();
}

std::string bracketed(const QString &name)
{
    if (name.contains(u'[') || name.contains(u']') || name.contains(QChar(u'\0')))
        throw AdoError::error(AdoError::BadSql);
    std::string text("[");
    return text.append(name.toStdString()).append("]");
}
