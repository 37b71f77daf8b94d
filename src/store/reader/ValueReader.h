// Turns a row's values into frames: texts in any code page, dates, exact decimals, long texts and bytes.
#pragma once

#include "store/reader/JetFile.h"

#include <string>

/// The kind under which the program knows a column of the file's type: 3, 7, 130 and the like.
[[nodiscard]] int columnKind(int fileType);

class ValueReader
{
  public:
    /// File and table outlive the reader.
    ValueReader(const JetFile &file, MdbTableDef &table);

    /// Writes the next row's frames; false behind the last row. Throws std::runtime_error for a damaged row.
    [[nodiscard]] bool writeNextRow();

  private:
    void writeCalculated(MdbColumn &column, const MdbField &field);
    void writeValue(MdbColumn &column, const MdbField &field);
    [[nodiscard]] std::string codePageText(MdbColumn &column, const MdbField &field) const;
    [[nodiscard]] std::string fieldBytes(const MdbField &field) const;
    [[nodiscard]] std::string longBytes(MdbColumn &column, const MdbField &field);
    void requireInside(const MdbField &field) const;

    MdbHandle *mHandle;
    MdbTableDef &mTable;
    std::vector<MdbColumn *> mColumns;
    std::vector<MdbField> mFields;
    std::string mPiece;
    bool mCodePage;
};
