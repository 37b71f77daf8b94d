// Rows as XML: the columns with their kinds, then the rows. A text that XML cannot hold goes in as Base64.
// Inside store/ only.
#pragma once

#include "store/rows/TableFiller.h"

#include <QXmlStreamWriter>

class QIODevice;

class RecordsetXmlWriter
{
  public:
    /// The device is open for writing and outlives the writer.
    RecordsetXmlWriter(QIODevice &device, const std::vector<TableFiller::Column> &columns);
    void addRow(const std::vector<QVariant> &values);
    /// Ends the document. False if anything could not be written.
    [[nodiscard]] bool finish();

  private:
    void addValue(const QVariant &value);

    QXmlStreamWriter mXml;
};

/// Reads such a document into a new table of the connection. False for any other document; what was read is then gone.
[[nodiscard]] bool readRecordsetXml(QIODevice &device, Connection &connection, const QString &table);
