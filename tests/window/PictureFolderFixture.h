// Two folders with picture files whose content tells their names.
#pragma once

#include "util/QtPrint.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

class PictureFolderTest : public testing::Test
{
  protected:
    PictureFolderTest() { EXPECT_TRUE(folder.isValid() && targetFolder.isValid()); }

    [[nodiscard]] QString source() const { return folder.path() + u'/'; }
    [[nodiscard]] QString target() const { return targetFolder.path() + u'/'; }
    /// Writes a file; its path.
    static QString make(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        return path;
    }
    QString make(const QString &name) { return make(source() + name, name.toUtf8()); }
    void makeAll(const QStringList &names)
    {
        for (const QString &name : names)
            make(name);
    }
    [[nodiscard]] static QByteArray content(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "(not there)";
    }
    /// All there is, hidden things too.
    [[nodiscard]] static QStringList names(const QString &directory)
    {
        return QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QTemporaryDir folder, targetFolder;
};
