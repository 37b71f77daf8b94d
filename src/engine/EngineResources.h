// The files that the engines carry with them.
#pragma once

#include <QByteArray>
#include <QString>

/// Content of the file `name` ("js/reader.js").
[[nodiscard]] QByteArray engineResource(const QString &name);
