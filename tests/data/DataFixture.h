// The Data tab's state with a real database, fake time and a fake user.
#pragma once

#include "data/Exports.h"
#include "data/Imports.h"
#include "support/FormWithDatabase.h"
#include "support/FullDisk.h"

#include <QDir>

class DataTest : public FormDatabaseTest
{
  protected:
    DataTest() { form.places.txtSFDBDir.setText(folder.path() + QLatin1StringView("/")); }

    [[nodiscard]] static QByteArray bytes(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
        return file.readAll();
    }
    /// The files of the folder but the database.
    [[nodiscard]] QStringList files() const
    {
        QStringList names = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
        names.removeIf([](const QString &name) { return name.startsWith(QLatin1StringView("Trawlex-0")); });
        return names;
    }
    void writeFile(const QString &name, const QByteArray &content) { file(name, content); }
    [[nodiscard]] QStringList values(const QString &table, const QString &field) { return rows(table, field); }
    void addEmail(const QString &address, const QString &ssIndex = QStringLiteral("1"),
                  const QString &url = QStringLiteral("http://a.com"))
    {
        addRow(*database, QStringLiteral("EmailAddress"),
               {{QStringLiteral("Date"), QStringLiteral("2024-05-01")},
                {QStringLiteral("SSIndex"), ssIndex},
                {QStringLiteral("Address"), address},
                {QStringLiteral("Url"), url}});
    }
    void choose(const QString &table, const QStringList &fields = {}, int field = -1, const QString &filter = {})
    {
        form.data.cboDBTables.setItems({table});
        form.data.cboDBTables.setListIndex(0);
        form.data.cboDBFields.setItems(fields);
        form.data.cboDBFields.setListIndex(field);
        form.data.txtDBQuery.setText(filter);
    }

    Exports exports{context, form.data, form.places, form.options.chkSMD(SMD::OpenExports), database, navigation, work};
    Imports imports{log, database, work};
};
