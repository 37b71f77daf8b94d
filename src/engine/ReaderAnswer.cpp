#include "engine/ReaderAnswer.h"
#include "engine/BrowserErrors.h"
#include "engine/EngineResources.h"

using namespace Qt::Literals::StringLiterals;

QString ReaderAnswer::readCall(QLatin1StringView what, int index)
{
    return pageReader() + u".read('%1', %2)"_s.arg(what, QString::number(index));
}

ReaderAnswer::ReaderAnswer(const QVariantMap &answer) : mTicket(answer[u"ticket"_s].toString())
{
    if (const auto error = answer.constFind(u"error"_s); error != answer.constEnd()) {
        const qint64 number = answer[u"number"_s].toLongLong();
        throw RuntimeError(number != 0 ? number : EngineError::CannotRead, error->toString());
    }
    mTexts = answer[u"texts"_s].toStringList();
    const QVariantList lengths = answer[u"lengths"_s].toList();
    for (const QVariant &length : lengths) {
        mLengths.append(length.toLongLong());
        mTotal += mLengths.constLast();
    }
    mJoined.reserve(mTotal);
}

QString ReaderAnswer::nextCall() const
{
    return pageReader() + u".piece(%1, %2)"_s.arg(mTicket, QString::number(mJoined.size()));
}

bool ReaderAnswer::add(const QString &piece)
{
    mJoined += piece;
    return !piece.isEmpty();
}

QStringList ReaderAnswer::texts() const
{
    if (mLengths.isEmpty())
        return mTexts;
    QStringList texts;
    qsizetype from = 0;
    for (const qsizetype length : mLengths) {
        texts.append(mJoined.mid(from, length));
        from += length;
    }
    return texts;
}
