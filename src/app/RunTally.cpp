#include "app/RunTally.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {
struct Kind
{
    QLatin1StringView table; ///< how its name begins
    QLatin1StringView word, one;
};
constexpr Kind kinds[] = {{"SiteSummary"_L1, "pages"_L1, "page"_L1},
                          {"EmailAddress"_L1, "e-mail"_L1, "e-mail"_L1},
                          {"PhoneNumber"_L1, "numbers"_L1, "number"_L1},
                          {"PassUrls"_L1, "links"_L1, "link"_L1}};
constexpr qint64 second = 1000;
constexpr qint64 minute = 60 * second;
} // namespace

void RunTally::stored(const QMap<QString, int> &rows)
{
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        for (const Kind &kind : kinds) {
            if (row.key().startsWith(kind.table))
                mRows[kind.word] += row.value();
        }
    }
}

void RunTally::walk(const QString &anew)
{
    mAnew = anew;
    mWalkBegins = true;
}

void RunTally::progress(int number, int count, qint64 now)
{
    if (!std::exchange(mRunning, true))
        mRows.clear();
    if (std::exchange(mWalkBegins, false)) {
        mFirst = number;
        mBegan = now;
    }
    mNumber = number;
    mCount = count;
    mNow = now;
}

void RunTally::finished()
{
    mRunning = false;
    mWalkBegins = true;
}

QString RunTally::text() const
{
    if (mRunning && !mAnew.isEmpty() && mNumber == mFirst)
        return u"Resuming %1/%2, %3"_s.arg(QString::number(mNumber), QString::number(mCount), mAnew);
    QStringList parts;
    for (const Kind &kind : kinds) {
        const int count = mRows.value(kind.word);
        if (count > 0)
            parts.append(QString::number(count) + u' ' + (count == 1 ? kind.one : kind.word));
    }
    if (const QString left = timeLeft(); !left.isEmpty())
        parts.append(left);
    return parts.join(u", "_s);
}

/// As the items so far went; nothing before the second one.
QString RunTally::timeLeft() const
{
    const int done = mNumber - mFirst;
    if (!mRunning || done < 1)
        return {};
    const qint64 left = (mNow - mBegan) / done * (mCount - mNumber + 1);
    return left < minute ? u"%1 s left"_s.arg(left / second) : u"%1 min left"_s.arg((left + minute / 2) / minute);
}
