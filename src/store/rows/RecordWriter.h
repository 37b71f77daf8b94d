// Writes one record that comes as texts "field<delimiter>value". Inside store/ only.
#pragma once

#include "store/RecordDelimiter.h"
#include "store/rows/RowBuffer.h"

class RecordWriter
{
  public:
    /// `fields` are the fields that the table is expected to have: texts among them start empty, dates today.
    /// Error AdoError::NoSuchTable.
    RecordWriter(Connection &connection, const QString &table, const QStringList &fields);

    /// Takes one element, which must stay as it is until `write`; an empty one is passed over. A value that the column
    /// refuses, and a field that the table lacks, lose that value alone. Error 9 for an element without the delimiter,
    /// 53 for a picture that is not there.
    void take(const QString &element, const RecordDelimiter &delimiter);

    /// Writes the record.
    void write() { mRow.insert(); }

  private:
    void setDefaults(const QStringList &fields);
    void setValue(const QString &field, const QString &value);
    [[nodiscard]] QVariant valueFor(int kind, const QString &field, const QString &value) const;

    RowBuffer mRow;
};
