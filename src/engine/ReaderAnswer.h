// What the page reader (js/reader.js) has answered: the call that asks it, its refusals as errors, and the joining of
// an answer that comes in pieces. For both engines; knows neither.
#pragma once

#include "util/Errors.h"

#include <QStringList>
#include <QVariantMap>

class ReaderAnswer
{
  public:
    /// The call that reads `what` of frame `index` (-1: the top document).
    [[nodiscard]] static QString readCall(QLatin1StringView what, int index);

    /// Takes the answer to a read. Raises a RuntimeError where that is a refusal.
    explicit ReaderAnswer(const QVariantMap &answer);

    /// True when nothing is missing: texts() may be taken.
    [[nodiscard]] bool isWhole() const { return mJoined.size() >= mTotal; }
    /// The call that fetches the next piece.
    [[nodiscard]] QString nextCall() const;
    /// Takes the next piece. False when there is none: the page changed while it was read, and must be read anew.
    [[nodiscard]] bool add(const QString &piece);
    [[nodiscard]] QStringList texts() const;

  private:
    QStringList mTexts;        // of an answer that came whole
    QList<qsizetype> mLengths; // of the texts of one that comes in pieces
    qsizetype mTotal = 0;
    QString mTicket;
    QString mJoined;
};
