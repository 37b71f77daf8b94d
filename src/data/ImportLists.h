// What "all data" and "all settings" copy, in this order: tables, and the field by which a row is known that is there
// already. Every column goes but "Index", which is given anew, and "Picture". Knows store's schema.
#pragma once

#include <QStringList>
#include <span>
#include <vector>

struct ImportedTable
{
    QString name;
    QStringList columns;
    QString testField; ///< "" where every row is copied
};

namespace ImportLists {
[[nodiscard]] std::vector<ImportedTable> data();
[[nodiscard]] std::vector<ImportedTable> settings();
} // namespace ImportLists
