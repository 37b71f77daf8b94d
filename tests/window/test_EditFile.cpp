// A text is shown in the user's editor, by way of a file in the current folder.
#include "window/commands/EditFile.h"

#include "support/Fakes.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace {
class EditFileTest : public testing::Test
{
  protected:
    EditFileTest() { QDir::setCurrent(folder.path()); }
    ~EditFileTest() override { QDir::setCurrent(before); }

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
    [[nodiscard]] static QByteArray content(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    /// A program that notes what it was given.
    [[nodiscard]] QString makeEditor() const
    {
        QFile script(path(u"editor"_s));
        EXPECT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nprintf '%s' \"$1\" > \"" + path(u"noted"_s).toUtf8() + "\"\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return script.fileName();
    }
    [[nodiscard]] bool waitFor(const QString &name, const QByteArray &expected) const
    {
        QElapsedTimer clock;
        clock.start();
        while (content(path(name)) != expected && clock.elapsed() < 5000)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return content(path(name)) == expected;
    }

    QTemporaryDir folder;
    const QString before = QDir::currentPath();
    FakeDesktop desktop;
};
} // namespace

TEST_F(EditFileTest, TheEditorIsStartedOnTheFile)
{
    WriteEditFile(u"größer\r\n"_s, makeEditor(), desktop);
    const QString file = QDir::current().filePath(u"TXTempF.txt"_s);
    EXPECT_EQ(content(file), "gr\xc3\xb6\xc3\x9f\x65r\r\n");
    EXPECT_TRUE(waitFor(u"noted"_s, file.toUtf8()));
    EXPECT_TRUE(desktop.opened.isEmpty());
}

TEST_F(EditFileTest, WithoutAnEditorTheDesktopOpensIt)
{
    QFile text(path(u"readme"_s));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    for (const QString &editor : {QString(), u"/no/such/editor"_s, folder.path(), text.fileName()}) {
        desktop.opened.clear();
        WriteEditFile(u"a"_s, editor, desktop);
        EXPECT_EQ(desktop.opened, QStringList{QDir::current().filePath(u"TXTempF.txt"_s)}) << qPrintable(editor);
    }
}

TEST_F(EditFileTest, TheNextTextTakesTheLastOnesPlace)
{
    WriteEditFile(u"a long first text"_s, {}, desktop);
    WriteEditFile(u"b"_s, {}, desktop);
    EXPECT_EQ(content(path(u"TXTempF.txt"_s)), "b");
}

TEST_F(EditFileTest, AFileThatCannotBeWrittenIsAnErrorAndNothingIsOpened)
{
    ASSERT_TRUE(QDir().mkdir(path(u"TXTempF.txt"_s)));
    try {
        WriteEditFile(u"a"_s, {}, desktop);
        FAIL() << "no error";
    } catch (const RuntimeError &error) {
        EXPECT_EQ(error.number(), ErrorNumber::PathAccessError);
    }
    EXPECT_TRUE(desktop.opened.isEmpty());
}
