// The Import page: what each control does, what it refuses, and the whole import.
#include "DataSideFixture.h"

using namespace Qt::StringLiterals;

namespace {
class DataImportTest : public DataSideTest
{
  protected:
    DataImportTest()
    {
        EXPECT_TRUE(QDir(folder.path()).mkdir(u"other"_s));
        makeDatabase(other, log, pathOf(u"other"_s));
        addRow(*other, u"SiteSummary"_s, {{u"Url"_s, u"http://a.com"_s}});
        addRow(*other, u"Block"_s, {{u"UrlsContent"_s, u"ads"_s}});
        for (const QStringList &row : LoadTblFldNames())
            page().cboSFITableExisting.addItem(row.constFirst());
    }
    [[nodiscard]] ImportPage &page() { return form.import; }
    void select(const QString &path)
    {
        dialogs.fileAnswer = path;
        page().cmdSFISelDatabase.click();
    }
    void selectOther() { select(other->DatabasePath()); }
    static void pick(ComboBox &box, const QString &item) { box.setListIndex(int(box.items().indexOf(item))); }
    void pickFields(const QString &tableIn, const QString &fieldIn, const QString &table, const QString &field)
    {
        pick(page().cboSFITableIn, tableIn);
        pick(page().cboSFIFieldIn, fieldIn);
        pick(page().cboSFITableExisting, table);
        pick(page().cboSFIFieldExisting, field);
    }
    DatabaseHolder other;
};
} // namespace

TEST_F(DataImportTest, AFileOfThisSystemAllowsAllKinds)
{
    selectOther();
    EXPECT_EQ(lastStatus(), u"Trawlex database selected"_s);
    EXPECT_EQ(dialogs.files[0].text, u"Access DB (*.mdb)|*.mdb|Access DB (*.accdb)|*.accdb|"_s);
    EXPECT_TRUE(page().chkSFIAllData.isEnabled() && page().chkSFIAllSettings.isEnabled() &&
                page().chkSFIImportTable.isEnabled());
    EXPECT_EQ(page().lblSFIImportDatabase.caption(), other->DatabasePath());
    EXPECT_EQ(settings.of("LastImportDir"), pathOf(u"other/"_s));
    EXPECT_TRUE(page().cboSFITableIn.items().contains(u"SiteSummary"_s));
    EXPECT_FALSE(page().cboSFITableIn.items().contains(QString()));
}

TEST_F(DataImportTest, AnyOtherFileAllowsTheFieldAlone)
{
    selectOther();
    page().chkSFIAllData.setValue(1);
    addEmail(u"x"_s);
    ASSERT_TRUE(
        side.exports.exportTable({u"EmailAddress"_s, {}, {}}, *ExportKinds::ofWord(u"sqlite"), pathOf(u"x.mdb"_s)));
    select(pathOf(u"x.mdb"_s));
    EXPECT_EQ(lastStatus(), u"Not an Trawlex database"_s);
    EXPECT_FALSE(page().chkSFIAllData.isOn() || page().chkSFIAllData.isEnabled());
    EXPECT_EQ(page().cboSFITableIn.items(), QStringList{u"EmailAddress"_s});
}

TEST_F(DataImportTest, PickingTheOpenDatabaseChangesNothing)
{
    selectOther();
    select(database->DatabasePath());
    EXPECT_EQ(lastStatus(), u"Can't import loaded database"_s);
    EXPECT_EQ(page().lblSFIImportDatabase.caption(), other->DatabasePath());
}

TEST_F(DataImportTest, AFileThatHasBeenOpenedSinceItWasSelectedIsNotImportedIntoItself)
{
    selectOther();
    page().chkSFIAllData.setValue(1);
    ASSERT_TRUE(QFile::link(other->DatabasePath(), pathOf(u"link.mdb"_s)));
    for (const QString &path : {other->DatabasePath(), pathOf(u"link.mdb"_s)}) {
        database->setDatabasePath(path);
        ASSERT_TRUE(database->TestDatabase(true));
        page().cmdSFIImport.click();
        EXPECT_EQ(lastStatus(), u"Can't import loaded database"_s);
        EXPECT_EQ(values(u"SiteSummary"_s, u"Url"_s), QStringList{u"http://a.com"_s});
        EXPECT_TRUE(page().cmdSFIImport.isEnabled() && page().cmdSFISelDatabase.isEnabled());
    }
}

TEST_F(DataImportTest, NothingChosenOrGoneChangesNothing)
{
    selectOther();
    for (const QString &path : {QString(), pathOf(u"gone.mdb"_s)}) {
        select(path);
        EXPECT_EQ(page().lblSFIImportDatabase.caption(), other->DatabasePath());
    }
}

TEST_F(DataImportTest, TablesListTheirFields)
{
    selectOther();
    pickFields(u"Block"_s, u"UrlsContent"_s, u"MNUrlsA"_s, u"LastUrl"_s);
    EXPECT_EQ(page().cboSFIFieldIn.items(), (QStringList{u"Index"_s, u"UrlsContent"_s, u"EmailContent"_s}));
    EXPECT_EQ(page().cboSFIFieldExisting.items(), (QStringList{u"Index"_s, u"Url"_s, u"LastUrl"_s}));
}

TEST_F(DataImportTest, TheBoxesOfAllGoTogetherAndPutTheOthersOut)
{
    selectOther();
    pickFields(u"Block"_s, u"UrlsContent"_s, u"MNUrlsA"_s, u"LastUrl"_s);
    page().chkSFIImportTable.setValue(1);
    page().chkSFIAllData.setValue(1);
    EXPECT_EQ(lastStatus(), u"Import all data ON"_s);
    page().chkSFIAllSettings.setValue(1);
    EXPECT_EQ(lastStatus(), u"Import all settings ON"_s);
    EXPECT_TRUE(page().chkSFIAllData.isOn() && !page().chkSFIImportTable.isOn());
    page().chkSFIImportField.setValue(1);
    EXPECT_TRUE(page().chkSFIImportField.isOn() && !page().chkSFIAllData.isOn() && !page().chkSFIAllSettings.isOn());
    page().chkSFIImportTable.setValue(1);
    EXPECT_TRUE(page().chkSFIImportTable.isOn() && !page().chkSFIImportField.isOn());
    page().chkSFIAllData.setValue(1);
    page().chkSFIAllData.setValue(0);
    EXPECT_EQ(lastStatus(), u"Import all data OFF"_s);
}

TEST_F(DataImportTest, ABoxThatMissesSomethingGoesOffAndSaysWhy)
{
    page().chkSFIAllData.setValue(1);
    EXPECT_EQ(lastStatus(), u"Import database not selected"_s);
    EXPECT_FALSE(page().chkSFIAllData.isOn());
    page().chkSFIImportTable.setValue(1);
    EXPECT_EQ(lastStatus(), u"Import table not select"_s);
    page().chkSFIImportField.setValue(1);
    EXPECT_EQ(lastStatus(), u"Existing field not selected"_s);
    pick(page().cboSFITableExisting, u"Block"_s);
    pick(page().cboSFIFieldExisting, u"UrlsContent"_s);
    page().chkSFIImportField.setValue(1);
    EXPECT_EQ(lastStatus(), u"Import field not selected"_s);
    EXPECT_FALSE(page().chkSFIImportTable.isOn() || page().chkSFIImportField.isOn());
}

TEST_F(DataImportTest, IndexFieldsClearTheBox)
{
    selectOther();
    pickFields(u"Block"_s, u"UrlsContent"_s, u"MNUrlsA"_s, u"Index"_s);
    page().chkSFIImportField.setValue(1);
    EXPECT_FALSE(page().chkSFIImportField.isOn());
    EXPECT_EQ(lastStatus(), u"Index fields can not be imported"_s);
}

TEST_F(DataImportTest, AFileThatHasGoneEmptiesTheLabel)
{
    const QString path = other->DatabasePath();
    selectOther();
    other.reset();
    QFile::remove(path);
    page().chkSFIAllSettings.setValue(1);
    EXPECT_EQ(lastStatus(), u"Import database doesn't exist"_s);
    EXPECT_TRUE(page().lblSFIImportDatabase.caption().isEmpty());
    EXPECT_FALSE(page().chkSFIAllSettings.isOn());
}

TEST_F(DataImportTest, WithBothBoxesOnTheLastMessageWins)
{
    selectOther();
    page().chkSFIAllData.setValue(1);
    page().chkSFIAllSettings.setValue(1);
    statuses.clear();
    page().cmdSFIImport.click();
    EXPECT_EQ(statuses.first(), u"Importing all settings"_s);
    EXPECT_TRUE(statuses.contains(u"Importing all data"_s));
    EXPECT_EQ(lastStatus(), u"Data Imported"_s);
    EXPECT_EQ(reloads, 1);
    EXPECT_TRUE(form.mbFormReady);
    EXPECT_TRUE(page().cmdSFIImport.isEnabled() && page().cmdSFISelDatabase.isEnabled());
    EXPECT_FALSE(page().chkSFIAllData.isOn() || page().chkSFIAllSettings.isOn());
    EXPECT_EQ(values(u"SiteSummary"_s, u"Url"_s), QStringList{u"http://a.com"_s});
    EXPECT_EQ(values(u"Block"_s, u"UrlsContent"_s), QStringList{u"ads"_s});
}

TEST_F(DataImportTest, ATableAndAFieldTellWhatTheyImported)
{
    selectOther();
    pickFields(u"Block"_s, u"UrlsContent"_s, u"MNUrlsA"_s, u"LastUrl"_s);
    page().chkSFIImportTable.setValue(1);
    page().cmdSFIImport.click();
    EXPECT_EQ(lastStatus(), u"Block Imported"_s);
    page().chkSFIImportField.setValue(1);
    page().cmdSFIImport.click();
    EXPECT_EQ(lastStatus(), u"Data imported"_s);
    EXPECT_EQ(values(u"MNUrlsA"_s, u"LastUrl"_s), QStringList{u"ads"_s});
    pickFields(u"Block"_s, u"UrlsContent"_s, u"EmailAddress"_s, u"SSIndex"_s);
    page().chkSFIImportField.setValue(1);
    page().cmdSFIImport.click();
    EXPECT_EQ(lastStatus(), u"Field data types do not match"_s);
    EXPECT_FALSE(page().chkSFIImportField.isOn());
}

TEST_F(DataImportTest, EscapeCancelsAndNothingOfItStays)
{
    selectOther();
    page().chkSFIAllData.setValue(1);
    cancelSoon();
    page().cmdSFIImport.click();
    EXPECT_EQ(lastStatus(), u"Import cancelled, nothing imported"_s);
    EXPECT_TRUE(values(u"SiteSummary"_s, u"Url"_s).isEmpty());
}

TEST_F(DataImportTest, CancelledWhenTheSettingsAreAboutToStandTheDataDoesNotFollowAndThatIsTold)
{
    selectOther();
    page().chkSFIAllData.setValue(1);
    page().chkSFIAllSettings.setValue(1);
    // Events are let in before the first row, and then while the disk is waited for.
    int events = 0;
    const QMetaObject::Connection cancelling =
        QObject::connect(&status, &StatusLine::told, &form, [&](const QString &text) {
            if (text == u"Importing all settings"_s)
                pump.after(0, [&] {
                    pump.after(0, [&] {
                        ++events;
                        work.cancel();
                    });
                });
        });
    page().cmdSFIImport.click();
    QObject::disconnect(cancelling);
    EXPECT_EQ(events, 1);
    EXPECT_EQ(lastStatus(), u"Settings Imported; Data: Import cancelled, nothing imported"_s);
    EXPECT_FALSE(statuses.contains(u"Importing all data"_s));
    EXPECT_EQ(values(u"Block"_s, u"UrlsContent"_s), QStringList{u"ads"_s});
    EXPECT_TRUE(values(u"SiteSummary"_s, u"Url"_s).isEmpty());
}

TEST_F(DataImportTest, CancelledInTheDataTheSettingsStandAndBothAreTold)
{
    selectOther();
    page().chkSFIAllData.setValue(1);
    page().chkSFIAllSettings.setValue(1);
    QObject::connect(&status, &StatusLine::told, &form, [this](const QString &text) {
        if (text == u"Importing all data"_s)
            cancelSoon();
    });
    page().cmdSFIImport.click();
    EXPECT_EQ(lastStatus(), u"Settings Imported; Data: Import cancelled, nothing imported"_s);
    EXPECT_EQ(values(u"Block"_s, u"UrlsContent"_s), QStringList{u"ads"_s});
}

TEST_F(DataImportTest, WhileItIsUnderWayTheUserCanDoNothingElseButEnd)
{
    selectOther();
    page().chkSFIAllData.setValue(1);
    page().cmdSFIImport.setEnabled(true);
    form.places.cmdSFDBDirBrowse.setEnabled(false);
    const QList<Control *> others{&form.autoRun.cmdANStart, &form.manual.cmdMNStart,  &form.places.cmdSFAutoDBFile,
                                  &form.data.fxgTrawlex,    &form.saved.cboANList,    &form.frame.picStatus,
                                  &page().cmdSFIImport,     &page().chkSFIAllSettings};
    int looks = 0;
    pump.after(0, [&] {
        ++looks;
        EXPECT_TRUE(side.isImporting());
        EXPECT_TRUE(form.browser.picANEnd.isEnabled());
        for (const Control *const control : others)
            EXPECT_FALSE(control->isEnabled()) << qPrintable(control->name());
    });
    page().cmdSFIImport.click();
    EXPECT_EQ(looks, 1);
    EXPECT_FALSE(side.isImporting());
    for (const Control *const control : others)
        EXPECT_TRUE(control->isEnabled()) << qPrintable(control->name());
    EXPECT_FALSE(form.places.cmdSFDBDirBrowse.isEnabled()) << "as it was";
    EXPECT_EQ(lastStatus(), u"Data Imported"_s);
}

TEST_F(DataImportTest, WithoutAFileTheButtonDoesNothing)
{
    page().cmdSFIImport.click();
    EXPECT_EQ(reloads, 0);
    EXPECT_TRUE(page().cmdSFIImport.isEnabled());
}
