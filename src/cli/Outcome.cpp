#include "cli/Outcome.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {
QJsonObject fileObject(const Downloads::Fetched &file)
{
    return {{u"name"_s, file.name}, {u"address"_s, file.address}, {u"size"_s, file.size}, {u"seconds"_s, file.seconds}};
}

/// What each list holds that holds anything.
QJsonObject listsObject(const ManualLists &lists)
{
    QJsonObject object;
    for (int i = lists.lstMN.first(); i <= lists.lstMN.last(); ++i) {
        if (lists.lstMN(i).listCount() > 0)
            object.insert(lists.cboMNList.list(i), QJsonArray::fromStringList(lists.lstMN(i).items()));
    }
    return object;
}
} // namespace

Outcome::Outcome(Program &program) : mLists(program.form.lists)
{
    mElapsed.start();
    connect(&program.status, &StatusLine::told, this, [this](const QString &text) { mStatus = text; });
    connect(&program.siteVisit, &SiteVisit::visiting, this, [this](const QString &url) { mLinks.append(url); });
    connect(&program.downloads, &Downloads::fetched, this, [this](const Downloads::Fetched &file) {
        QJsonObject object = fileObject(file);
        if (file.refusal.isEmpty())
            return mFiles.append(object);
        object.insert(u"reason"_s, file.refusal);
        mRefused.append(object);
    });
    connect(&program.keeping, &PageKeeping::rowsStored, this, [this](const QMap<QString, int> &rows) {
        for (auto row = rows.begin(); row != rows.end(); ++row)
            mRows[row.key()] += row.value();
    });
}

bool Outcome::isFinished() const
{
    return mStatus == "Stopped (FINISHED)"_L1;
}

QByteArray Outcome::json(bool list) const
{
    QJsonObject rows;
    for (auto row = mRows.begin(); row != mRows.end(); ++row)
        rows.insert(row.key(), row.value());
    QJsonObject object{{u"status"_s, mStatus},
                       {u"links"_s, QJsonArray::fromStringList(mLinks)},
                       {u"rows"_s, rows},
                       {u"files"_s, mFiles},
                       {u"refused"_s, mRefused},
                       {u"lists"_s, listsObject(mLists)},
                       {u"seconds"_s, static_cast<double>(mElapsed.elapsed()) / 1000.0}};
    if (list)
        object.insert(u"list"_s, QJsonArray::fromStringList(mLists.shown().items()));
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}
