// The files that the engines carry with them.
#pragma once

#include <QByteArray>
#include <QString>

/// Content of the file `name` ("js/reader.js").
[[nodiscard]] QByteArray engineResource(const QString &name);

/// An expression that gives the page reader (js/reader.js), for any document. It is put into the document when first
/// asked for and stays there under a symbol: a name could be that of an element, which would stand in its place.
[[nodiscard]] const QString &pageReader();
