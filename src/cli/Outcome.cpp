#include "cli/Outcome.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

Outcome::Outcome(Program &program)
{
    mElapsed.start();
    connect(&program.status, &StatusLine::told, this, [this](const QString &text) { mStatus = text; });
    connect(&program.siteVisit, &SiteVisit::visiting, this, [this](const QString &url) { mLinks.append(url); });
    connect(&program.keeping, &PageKeeping::rowsStored, this, [this](const QMap<QString, int> &rows) {
        for (auto row = rows.begin(); row != rows.end(); ++row)
            mRows[row.key()] += row.value();
    });
}

bool Outcome::isFinished() const
{
    return mStatus == "Stopped (FINISHED)"_L1;
}

QByteArray Outcome::json(const QStringList *list) const
{
    QJsonObject rows;
    for (auto row = mRows.begin(); row != mRows.end(); ++row)
        rows.insert(row.key(), row.value());
    QJsonObject object{{u"status"_s, mStatus},
                       {u"links"_s, QJsonArray::fromStringList(mLinks)},
                       {u"rows"_s, rows},
                       {u"seconds"_s, static_cast<double>(mElapsed.elapsed()) / 1000.0}};
    if (list != nullptr)
        object.insert(u"list"_s, QJsonArray::fromStringList(*list));
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}
