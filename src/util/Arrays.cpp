#include "util/Arrays.h"

#include "util/AddressList.h"

#include <QSet>
#include <algorithm>

QStringList cUtility::FilterArray(const QStringList &items, const QStringList &filters)
{
    KeptTextSet kept;
    return FilterArray(items, filters, kept);
}

QStringList cUtility::FilterArray(const QStringList &items, const QStringList &filters, KeptTextSet &kept)
{
    if (items.isEmpty() || filters.isEmpty() || filters.constFirst().isEmpty())
        return orEmptyList(items);
    if (items.constFirst().isEmpty())
        return emptyList();
    const TextSet &unwanted = kept.of(filters, Qt::CaseInsensitive);
    QStringList wanted;
    std::copy_if(items.begin(), items.end(), std::back_inserter(wanted),
                 [&](const QString &item) { return !item.isEmpty() && !unwanted.anyIn(item); });
    return orEmptyList(wanted);
}

QStringList cUtility::RemoveRepeatsFromArray(const QStringList &items)
{
    QSet<QString> seen;
    seen.reserve(items.size());
    QStringList kept;
    for (const QString &item : items) {
        const qsizetype before = seen.size();
        seen.insert(item);
        if (seen.size() != before)
            kept += item;
    }
    return orEmptyList(kept);
}

QStringList cUtility::RemoveEmptyItemsFromArray(const QStringList &items)
{
    QStringList kept;
    std::copy_if(items.begin(), items.end(), std::back_inserter(kept),
                 [](const QString &item) { return !item.isEmpty(); });
    return orEmptyList(kept);
}

QList<QStringList> cUtility::RemoveEmptyItemsFrom2DArray(const QList<QStringList> &rows)
{
    QList<QStringList> kept;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(kept), [](const QStringList &row) {
        return std::any_of(row.begin(), row.end(), [](const QString &item) { return !item.isEmpty(); });
    });
    return kept;
}
