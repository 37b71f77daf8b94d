// The state of the main window with a real database in a folder of its own.
#pragma once

#include "support/Database.h"
#include "support/FormFixture.h"

#include <QFile>

class FormDatabaseTest : public FormTest
{
  protected:
    FormDatabaseTest() { makeDatabase(database, log, folder.path()); }

    [[nodiscard]] QStringList rows(const QString &table, const QString &field = QStringLiteral("Url"))
    {
        return column(*database, table, field);
    }
    [[nodiscard]] QString pathOf(const QString &name) const { return folder.filePath(name); }
    /// Writes a file into the test's folder; its path.
    QString file(const QString &name, const QByteArray &bytes)
    {
        QFile written(pathOf(name));
        EXPECT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(bytes);
        return written.fileName();
    }

    QTemporaryDir folder;
    DatabaseHolder database;
};
