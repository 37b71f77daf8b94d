// The part of the command line that is about exports and imports.
#pragma once

#include "data/ExportKinds.h"

struct DataArguments
{
    struct FieldOf
    {
        QString table, field;
    };

    std::optional<QString> exported; ///< a table
    const ExportKind *format = nullptr;
    struct Condition
    {
        QString field, text;
    };
    std::optional<Condition> where; ///< a field of it, and the text that it holds
    QString to;

    std::optional<QString> imported; ///< a file
    bool allData = false, allSettings = false;
    QString table;
    FieldOf from, into; ///< a field of the file, and of the database

    [[nodiscard]] bool isWanted() const { return exported || imported; }

    void takeExport(const QString &value);
    void takeFormat(const QString &value);
    void takeWhere(const QString &value);
    void takeTo(const QString &value);
    void takeImport(const QString &value);
    void takeField(const QString &value);
    /// Raises a RuntimeError with one clear line where something is missing or does not go together.
    void check() const;
};
