// The schema of the database: the one place where its tables and fields stand, and the form of the texts that make a
// record. A file is ours if it has exactly these tables and columns.
#pragma once

#include <QLatin1StringView>
#include <QList>
#include <QStringList>
#include <array>

class cAdoMdb;

/// Parts a field's name and its value in the elements that `AddRecord` takes. It never reaches the database.
inline constexpr QLatin1StringView rowMarker{"<~+-Trawlex-+~>"};

/// The letters of the lists; a lettered table's name is the family's name and a letter.
inline constexpr std::array listLetters{u'A', u'B', u'C', u'D', u'E'};

/// The name of the file that is made where none is named; its number is raised until the name is vacant.
inline constexpr QLatin1StringView firstDatabaseName{"Trawlex-0.mdb"};

/// An element of a record: field, marker, value.
[[nodiscard]] QString recordElement(QLatin1StringView field, const QString &value);

/// The names of all tables and fields: tables 0 to 30, in each column 0 the table's name and the fields from 1, "Index"
/// first, to column 43. Unused places are empty.
[[nodiscard]] QList<QStringList> LoadTblFldNames();

/// Enters the names into the object's matrix.
void declareSchema(cAdoMdb &database);
