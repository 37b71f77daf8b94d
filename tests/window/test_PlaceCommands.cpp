// Folders, database and editor: what the page's buttons choose, assign and store.
#include "support/ProgramFixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {
class PlacesTest : public ProgramTest
{
  protected:
    PlacesTest()
    {
        load();
        QObject::connect(&program->placeCommands, &PlaceCommands::editorTestWanted, &form(),
                         [this](const QString &text) { tested.append(text); });
        form().frame.sstSearch.setTab(Tab::Settings);
        form().frame.sstSettings.setTab(Tab::Files);
        statuses.clear();
        QDir::setCurrent(folder.path()); // the editor's text is written there
    }
    ~PlacesTest() override { QDir::setCurrent(startedIn); }
    FilePlaces &places() { return form().places; }
    QString makeFolder(const QString &name)
    {
        EXPECT_TRUE(QDir(folder.path()).mkpath(name));
        return folder.filePath(name);
    }
    /// Drops `path` on a box and lets what follows happen.
    static void drop(TextBox &box, const QString &path)
    {
        box.dropText(path);
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QString storedName() const { return settings.values.value(u"mStartUp/DatabaseName"_s); }

    QStringList tested;
    const QString startedIn = QDir::currentPath();
};
} // namespace

TEST_F(PlacesTest, CancelInTheFolderWindowChangesNothing)
{
    const QString before = places().txtSFDBDir.text();
    places().cmdSFDBDirBrowse.click();
    EXPECT_EQ(side.asked, QStringList{before});
    side.choose({});
    EXPECT_EQ(lastStatus(), u"Canceled"_s);
    EXPECT_EQ(places().txtSFDBDir.text(), before);
    EXPECT_EQ(settings.of("SearchKeyTxtSaveLocation Text"), u"(none)"_s);
}

TEST_F(PlacesTest, TheFolderWindowCannotBeOpenedTwice)
{
    places().cmdSFDBDirBrowse.click();
    places().cmdSFMNDirBrowse.click();
    places().cmdSFDBDirBrowse.click();
    EXPECT_EQ(side.asked.size(), 1);
    side.choose({});
    places().cmdSFMNDirBrowse.click();
    EXPECT_EQ(side.asked, (QStringList{places().txtSFDBDir.text(), places().txtSFMNDir.text()}));
}

TEST_F(PlacesTest, ANewDatabaseFolderIsStoredAndItsDatabaseLoaded)
{
    const QString target = makeFolder(u"data"_s);
    places().cmdSFDBDirBrowse.click();
    side.choose(target);
    EXPECT_EQ(places().txtSFDBDir.text(), target + u'/');
    EXPECT_EQ(settings.of("SearchKeyTxtSaveLocation Text"), target + u'/');
    EXPECT_TRUE(QFile::exists(target + u"/Trawlex-0.mdb"_s));
    EXPECT_EQ(database().DatabasePath(), target + u"/Trawlex-0.mdb"_s);
    EXPECT_TRUE(statuses.contains(u"New directory assigned"_s));
    EXPECT_EQ(lastStatus(), u"Directory set"_s);
}

TEST_F(PlacesTest, ANewFileFolderIsStored)
{
    const QString target = makeFolder(u"files"_s);
    places().cmdSFMNDirBrowse.click();
    side.choose(target + u'/');
    EXPECT_EQ(places().txtSFMNDir.text(), target + u'/');
    EXPECT_EQ(settings.of("txtFNSaveLocation"), target + u'/');
    EXPECT_EQ(lastStatus(), u"Directory set"_s);
}

TEST_F(PlacesTest, ARunThatWasBegunMeanwhileKeepsItsDatabase)
{
    const QString before = database().DatabasePath();
    places().cmdSFDBDirBrowse.click();
    form().runs.mbANRunning = true;
    side.choose(makeFolder(u"data"_s));
    EXPECT_EQ(database().DatabasePath(), before);
    EXPECT_EQ(lastStatus(), u"Canceled"_s);
    form().runs.mbANRunning = false;
}

TEST_F(PlacesTest, AChosenDatabaseIsAssignedAndStored)
{
    addSaved(u"Results-100"_s, u"http://www.a.com/"_s);
    database().CloseConnection();
    const QString other = makeFolder(u"other"_s);
    ASSERT_TRUE(QFile::copy(folder.filePath(u"Trawlex-0.mdb"_s), other + u"/Mine.mdb"_s));
    dialogs.fileAnswer = other + u"/Mine.mdb"_s;
    places().cmdSFDBFileBrowse.click();
    EXPECT_EQ(dialogs.files.constLast().title, u"Select File"_s);
    EXPECT_EQ(dialogs.files.constLast().text, u"Access DB (*.mdb)|*.mdb|"_s);
    EXPECT_EQ(places().txtSFDBFile.text(), u"Mine.mdb"_s);
    EXPECT_EQ(places().txtSFDBDir.text(), other + u'/');
    EXPECT_EQ(storedName(), u"Mine.mdb"_s);
    EXPECT_EQ(settings.of("SearchKeyTxtSaveLocation Text"), other + u'/');
    EXPECT_EQ(form().saved.cboANSavedUrls.items(), QStringList{u"Results-100"_s});
    EXPECT_EQ(lastStatus(), u"Database assigned"_s);
}

TEST_F(PlacesTest, ADatabaseThatCannotBeOpenedEndsTheProgram)
{
    QFile bad(folder.filePath(u"Bad.mdb"_s));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write("x");
    bad.close();
    dialogs.fileAnswer = bad.fileName();
    places().cmdSFDBFileBrowse.click();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(storedName(), u"Trawlex-0.mdb"_s);
}

TEST_F(PlacesTest, NoChoiceOfADatabaseIsCanceled)
{
    places().cmdSFDBFileBrowse.click();
    EXPECT_EQ(lastStatus(), u"Canceled"_s);
    EXPECT_EQ(ends, 0);
}

TEST_F(PlacesTest, TheNextFreeNameMakesANewDatabase)
{
    places().cmdSFAutoDBFile.click();
    EXPECT_EQ(places().txtSFDBFile.text(), u"Trawlex-1.mdb"_s);
    EXPECT_EQ(storedName(), u"Trawlex-1.mdb"_s);
    EXPECT_TRUE(QFile::exists(folder.filePath(u"Trawlex-1.mdb"_s)));
    EXPECT_EQ(database().DatabasePath(), folder.filePath(u"Trawlex-1.mdb"_s));
    EXPECT_EQ(lastStatus(), u"New database assigned"_s);
    EXPECT_TRUE(places().cmdSFAutoDBFile.isEnabled());
}

TEST_F(PlacesTest, AnEditorThatWasSeenAtWorkIsStored)
{
    dialogs.fileAnswer = u" /usr/bin/gedit "_s;
    places().cmdSFEditorSel.click();
    EXPECT_EQ(tested, QStringList{u"Testing"_s});
    ASSERT_EQ(dialogs.asked.size(), 1);
    EXPECT_EQ(dialogs.asked[0].title, u"Editor test"_s);
    EXPECT_EQ(dialogs.asked[0].text, u"Did editor open with Testing?"_s);
    EXPECT_EQ(settings.of("txtSFEditor"), u"/usr/bin/gedit"_s);
    EXPECT_EQ(lastStatus(), u"Editor set"_s);
}

TEST_F(PlacesTest, NoInTheEditorTestLeavesTheStoredOneInForce)
{
    dialogs.fileAnswer = u"/usr/bin/gedit"_s;
    dialogs.answer = UserDialogs::Answer::No;
    places().cmdSFEditorSel.click();
    EXPECT_EQ(places().txtSFEditor.text(), u"/usr/bin/gedit"_s);
    EXPECT_EQ(settings.of("txtSFEditor"), u"(none)"_s);
    EXPECT_EQ(lastStatus(), u"Editor not set"_s);
    program->lifeCycle.end();
    program.reset();
    load();
    EXPECT_TRUE(form().places.txtSFEditor.text().endsWith(u"/editor.exe"_s));
}

TEST_F(PlacesTest, TheRightButtonOnALabelOpensItsFolder)
{
    places().lblSaveDir.mouseDown(MouseButton::Left);
    EXPECT_TRUE(desktop.opened.isEmpty());
    places().txtSFMNDir.setText(u"/files/"_s);
    places().lblSaveDir.mouseDown(MouseButton::Right);
    places().lblMNSaveDir.mouseDown(MouseButton::Right);
    EXPECT_EQ(desktop.opened, (QStringList{places().txtSFDBDir.text(), u"/files/"_s}));
}

// What is dropped on the boxes.

TEST_F(PlacesTest, AFolderThatIsDroppedIsAssignedAsIfItHadBeenChosen)
{
    const QString data = makeFolder(u"data"_s);
    drop(places().txtSFDBDir, data);
    EXPECT_EQ(database().DatabasePath(), data + u"/Trawlex-0.mdb"_s);
    EXPECT_EQ(settings.of("SearchKeyTxtSaveLocation Text"), data + u'/');
    const QString files = makeFolder(u"my files"_s);
    drop(places().txtSFMNDir, files);
    EXPECT_EQ(places().txtSFMNDir.text(), files + u'/');
    EXPECT_EQ(settings.of("txtFNSaveLocation"), files + u'/');
    EXPECT_EQ(lastStatus(), u"Directory set"_s);
}

TEST_F(PlacesTest, WhatIsNoFolderIsNotTakenForOne)
{
    const QString before = places().txtSFDBDir.text();
    const QString file = folder.filePath(u"Trawlex-0.mdb"_s);
    const QStringList wrong{file, folder.filePath(u"gone"_s), makeFolder(u"a"_s) + u'\n' + makeFolder(u"b"_s)};
    for (const QString &path : wrong) {
        for (TextBox *box : {&places().txtSFDBDir, &places().txtSFMNDir}) {
            drop(*box, path);
            EXPECT_TRUE(lastStatus().startsWith(u"Not a directory: "_s)) << path.toStdString();
        }
    }
    EXPECT_EQ(places().txtSFDBDir.text(), before);
    EXPECT_EQ(settings.of("txtFNSaveLocation"), u"(none)"_s);
}

TEST_F(PlacesTest, ADatabaseThatIsDroppedIsAssigned)
{
    const QString other = makeFolder(u"other"_s) + u"/Mine.MDB"_s;
    database().CloseConnection();
    ASSERT_TRUE(QFile::copy(folder.filePath(u"Trawlex-0.mdb"_s), other));
    drop(places().txtSFDBFile, other);
    EXPECT_EQ(database().DatabasePath(), other);
    EXPECT_EQ(storedName(), u"Mine.MDB"_s);
    EXPECT_EQ(lastStatus(), u"Database assigned"_s);
}

TEST_F(PlacesTest, AFileThatIsNamedLikeNoDatabaseIsPassedOverAndTheProgramStays)
{
    QFile text(folder.filePath(u"notes.txt"_s));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.close();
    const QString before = database().DatabasePath();
    for (const QString &path : {text.fileName(), folder.path(), folder.filePath(u"gone.mdb"_s)}) {
        drop(places().txtSFDBFile, path);
        EXPECT_EQ(lastStatus(), u"Not a database: "_s + path);
    }
    EXPECT_EQ(database().DatabasePath(), before);
    EXPECT_EQ(ends, 0);
}

TEST_F(PlacesTest, AProgramThatIsDroppedIsTriedAsEditor)
{
    QFile editor(folder.filePath(u"editor"_s));
    ASSERT_TRUE(editor.open(QIODevice::WriteOnly));
    editor.close();
    drop(places().txtSFEditor, editor.fileName());
    EXPECT_EQ(lastStatus(), u"Not a program: "_s + editor.fileName());
    EXPECT_TRUE(dialogs.asked.isEmpty());
    ASSERT_TRUE(editor.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    drop(places().txtSFEditor, editor.fileName());
    EXPECT_EQ(settings.of("txtSFEditor"), editor.fileName());
    EXPECT_EQ(lastStatus(), u"Editor set"_s);
}
