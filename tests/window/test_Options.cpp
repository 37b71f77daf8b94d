// The options: what they start with, what is stored when, and what they report.
#include "support/ProgramFixture.h"
#include "window/options/OptionTable.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {
class OptionsTest : public ProgramTest
{
};

struct KeyCase
{
    const char *key;
    const char *control;
    const char *first; ///< its state at a first start
    const char *stored;
    const char *state; ///< its state when `stored` was stored
};

void PrintTo(const KeyCase &row, std::ostream *out)
{
    *out << row.key;
}

class Keys : public ProgramTest, public testing::WithParamInterface<KeyCase>
{
  protected:
    QString stateOf(const char *name) { return form().control(QString::fromLatin1(name))->stored(); }
};
} // namespace

TEST_P(Keys, AreReadAtTheStartAndHaveTheirDefaults)
{
    const KeyCase &row = GetParam();
    settings.preset("chkMCMNCStop", u"1"_s); // an output, without which the criteria go off
    if (std::string_view(row.key) == "chkMCMNCStop")
        settings.values.remove(u"SecFrmSearch/chkMCMNCStop"_s);
    load();
    EXPECT_EQ(stateOf(row.control), QString::fromLatin1(row.first));
    program.reset();
    settings.preset(row.key, QString::fromLatin1(row.stored));
    load();
    EXPECT_EQ(stateOf(row.control), QString::fromLatin1(row.state));
}

INSTANTIATE_TEST_SUITE_P(
    Options, Keys,
    testing::Values(
        KeyCase{"chkMCMNCStop", "chkMCMNCStop", "0", "1", "1"},
        KeyCase{"chkAutoNavToNextPassUrl", "chkSMA(4)", "1", "0", "0"},
        KeyCase{"chkOpenServersOnly", "chkSMA(0)", "0", "1", "1"}, KeyCase{"chkMNCnvHex", "chkSMA(1)", "0", "1", "1"},
        KeyCase{"chkSMReturnToSearchPg", "chkSMA(2)", "1", "0", "0"},
        KeyCase{"chkSMAMUseFTP", "chkSMA(3)", "0", "1", "1"},
        KeyCase{"chkSMAPassUrlAutoIncr", "chkSMA(5)", "1", "0", "0"},
        KeyCase{"chkSMASavedUrlAutoIncr", "chkSMA(6)", "0", "1", "1"},
        KeyCase{"chkShutDownPrompt", "chkSMA(7)", "1", "0", "0"}, KeyCase{"chkSTmrRCDir", "chkSMA(8)", "1", "0", "0"},
        KeyCase{"chkSMADownloadAsBrowser", "chkSMA(10)", "1", "0", "0"},
        KeyCase{"chkSMSUniqueServers", "chkSMA(9)", "0", "1", "1"},
        KeyCase{"chkOpenHtmlExports", "chkSMD(0)", "1", "0", "0"},
        KeyCase{"chkUniqueBaseUrls", "chkSMD(1)", "1", "0", "0"},
        KeyCase{"chkUniqueSelectUrls", "chkSMD(2)", "0", "1", "1"},
        KeyCase{"chkSMSaveUrlWithEmail", "chkSMD(3)", "1", "0", "0"},
        KeyCase{"chkSMSaveUrlWithPhone", "chkSMD(4)", "1", "0", "0"},
        KeyCase{"chkSUUseSiteTitle", "chkSMD(5)", "1", "0", "0"}, KeyCase{"chkSMFindFax", "chkSMD(6)", "0", "1", "1"},
        KeyCase{"chkSMAMUrlIfNoData", "chkSMD(7)", "1", "0", "0"},
        KeyCase{"chkSMAMAutoAddAutoUrl", "chkSMD(8)", "1", "0", "0"},
        KeyCase{"chkShowToolTips", "chkSMV(0)", "1", "0", "0"},
        KeyCase{"chkSMVTurnOffErrorMsg", "chkSMV(1)", "0", "1", "1"},
        KeyCase{"chkSMVBlockPopUpWindows", "chkSMV(2)", "1", "0", "0"},
        KeyCase{"chkSMAAllignmagnify", "chkSMV(3)", "0", "1", "1"}, KeyCase{"chkSaveUrl", "chkSaveUrl", "0", "1", "1"},
        KeyCase{"chkSaveToSS", "chkSaveToSS", "1", "0", "0"}, KeyCase{"chkSaveToFile", "chkSaveToFile", "0", "1", "1"},
        KeyCase{"chkPutInOneFile", "chkPutInOneFile", "0", "1", "1"},
        KeyCase{"chkSaveSummary", "chkSaveSummary", "0", "1", "1"},
        KeyCase{"chkSavePhone", "chkSavePhone", "0", "1", "1"},
        KeyCase{"SearchKeyChkGetEmail Value", "chkSaveEmail", "0", "1", "1"},
        KeyCase{"SearchKeyChkSavePages Value", "chkSavePages", "0", "1", "1"},
        KeyCase{"SearchKeyChkMustContain Value", "chkMustContain", "0", "1", "1"},
        KeyCase{"SearchKeyChkMustNotContain Value", "chkMustNotContain", "0", "1", "1"},
        KeyCase{"chkMCCS", "chkMCCS", "0", "1", "1"}, KeyCase{"chkMNCCS", "chkMNCCS", "0", "1", "1"},
        KeyCase{"optMCAllAny", "lstANMCAllAny", "0", "1", "1"},
        KeyCase{"optMNCAllAny", "lstANMNCAllAny", "0", "1", "1"},
        KeyCase{"SearchKeyCboSaveItem ListIndex", "cboANSaveType", "0", "2", "2"},
        KeyCase{"lstDCoTmr", "cboANWBSelect", "1", "0", "0"}, KeyCase{"cboANList", "cboANList", "0", "4", "4"},
        KeyCase{"optFilesSites", "cboFilesSites", "1", "0", "0"},
        KeyCase{"SearchKeyTxtStartTag Text", "txtANStartTag", "", "<b>", "<b>"},
        KeyCase{"SearchKeyTxtStopTag Text", "txtANStopTag", "", "</b>", "</b>"},
        KeyCase{"txtSBSelAreaCodes", "txtSBSelAreaCodes", "", "212,415", "212,415"},
        KeyCase{"udcMNTimin", "incMNTiming", "030", "012", "012"},
        KeyCase{"npTimimg", "incANTiming", "030", "7", "007"},
        KeyCase{"udMNGenUrlOne", "incMNAutoUrl", "0000000001", "42", "0000000042"},
        KeyCase{"udcNotFoundMinSize", "incNotFoundMinSize", "000000", "5000", "005000"},
        KeyCase{"incSMAIEHeight", "incSMAIEHeight", "0440", "0600", "0600"},
        KeyCase{"incSMAIEWidth", "incSMAIEWidth", "0380", "0800", "0800"},
        KeyCase{"udcSFMinFileS", "incSFMinFileSize", "000000", "000100", "000100"},
        KeyCase{"incMNStep", "incMNStep", "001", "010", "010"},
        KeyCase{"incSFMinGraphicSize", "incSFMinGraphicSize", "000000", "000009", "000009"},
        KeyCase{"incSMAMAutoTxtElng", "incSMAMAutoTxtElng", "2000", "3000", "3000"},
        KeyCase{"incSMDMinHtmlSize", "incSMDMinHtmlSize", "000000", "000500", "000500"},
        KeyCase{"incSmRPPause", "incSmRPPause", "010", "000", "000"},
        KeyCase{"incMNDLTiming", "incMNDLTiming", "004", "009", "009"},
        KeyCase{"chkSMOpenDlGraphics", "chkSMOpenDownloadedGraphics", "1", "0", "0"},
        KeyCase{"chkMNUseFotoB", "chkMNUseFotoBrwse", "0", "1", "1"},
        KeyCase{"cboMNMCMNC", "cboMNMCMNC", "0", "2", "2"}, KeyCase{"cboMNList", "cboMNList", "0", "3", "3"},
        KeyCase{"mnuMNLoadLinksIEUnique", "mnuMNUseSiteData", "False", "True", "True"},
        KeyCase{"npTimimg", "incANTiming", "030", "not digits", "030"}),
    [](const auto &row) { return "row" + std::to_string(row.index); });

TEST_F(OptionsTest, LoadingWritesNothingBack)
{
    settings.preset("chkSaveSummary", u"1"_s);
    settings.preset("cboANList", u"2"_s);
    load();
    for (const QString &key : settings.written)
        EXPECT_EQ(key, u"mStartUp/DatabaseName"_s);
    EXPECT_EQ(statuses, QStringList{u"Initialized"_s});
}

TEST_F(OptionsTest, AValueThatDoesNotConvertEndsTheLoadingThereAndWhatIsBehindItKeepsItsDefault)
{
    settings.preset("chkSaveToFile", u"abc"_s);
    settings.preset("SearchKeyChkSavePages Value", u"1"_s); // behind it
    settings.preset("npTimimg", u"007"_s);
    settings.preset("chkMCMNCStop", u"1"_s); // in front of it
    settings.preset("chkSMSUniqueServers", u"1"_s);
    load();
    EXPECT_TRUE(loaded);
    EXPECT_EQ(form().outputs.chkMCMNCStop.value(), 1);
    EXPECT_EQ(form().outputs.chkSavePages.value(), 0);
    EXPECT_EQ(form().options.chkSMA(SMA::UniqueServers).value(), 0);
    EXPECT_EQ(form().options.chkSMA(SMA::PromptBeforeEnd).value(), 1);
    EXPECT_EQ(form().options.chkSMD(SMD::UrlWithEmail).value(), 1);
    EXPECT_EQ(form().autoRun.incANTiming.text(), u"030"_s);
    EXPECT_EQ(form().limits.incSMAIEWidth.text(), u"0380"_s);
}

TEST_F(OptionsTest, DirectoriesAndTheDatabasesNameAreReadInAnyCase)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"data"_s));
    settings.preset("chkMCMNCStop", u"abc"_s);
    settings.preset("SearchKeyTxtSaveLocation Text", folder.path() + u"/data/"_s);
    settings.preset("txtFNSaveLocation", folder.path() + u"/"_s);
    settings.values.insert(u"mStartUp/DatabaseName"_s, u"Mine.mdb"_s);
    program = std::make_unique<Program>(ports());
    program->options.GetSettings();
    EXPECT_EQ(form().places.txtSFDBDir.text(), folder.path() + u"/data/"_s);
    EXPECT_EQ(form().places.txtSFMNDir.text(), folder.path() + u'/');
    EXPECT_EQ(form().places.txtSFDBFile.text(), u"Mine.mdb"_s);
}

TEST_F(OptionsTest, AValueThatWasNeverLoadedIsNeverStored)
{
    for (const auto *bad : {"chkSaveUrl", "chkMCCS"}) {
        settings.preset("chkSaveUrl", u"0"_s);
        settings.preset("chkMCCS", u"0"_s);
        settings.preset(bad, std::string_view(bad) == "chkMCCS" ? QString() : u"yes"_s);
        settings.preset("udcMNTimin", u"011"_s);
        settings.preset("npTimimg", u"012"_s);
        settings.preset("incSmRPPause", u"013"_s);
        load();
        form().limits.incSmRPPause.setText(u"014"_s); // changed by the user
        program->lifeCycle.end();
        program.reset();
        EXPECT_EQ(settings.of("npTimimg"), u"012"_s) << bad;
        EXPECT_EQ(settings.of("incSmRPPause"), u"014"_s) << bad;
        EXPECT_EQ(settings.of("udcMNTimin"), u"011"_s) << bad;
    }
}

TEST_F(OptionsTest, AnIndexBeyondItsListIsSuchAValueToo)
{
    settings.preset("SearchKeyCboSaveItem ListIndex", u"9"_s);
    settings.preset("chkSMSUniqueServers", u"1"_s);
    load();
    EXPECT_EQ(form().outputs.cboANSaveType.listIndex(), 0);
    EXPECT_EQ(form().options.chkSMA(SMA::UniqueServers).value(), 0);
    EXPECT_TRUE(loaded);
}

TEST_F(OptionsTest, AValueOfTheDatabasesPartThatDoesNotConvertHarmsNoOther)
{
    settings.preset("cboMCMNCMask", u"abc"_s);
    settings.preset("chkMCMNCStop", u"1"_s);
    settings.preset("SearchKeyChkMustContain Value", u"1"_s);
    load();
    EXPECT_EQ(form().criteria.mustContain.on.value(), 1);
    program->lifeCycle.end();
    EXPECT_EQ(settings.of("cboMCMNCMask"), u"abc"_s);
}

TEST_F(OptionsTest, EveryOptionComesBackAsItWasLeft)
{
    settings.preset("chkSMSUniqueServers", u"0"_s);
    settings.preset("chkMCMNCStop", u"1"_s); // an output, without which the criteria go off
    load();
    program->startUp.settle();
    QMap<QString, QString> left;
    // Blocking and start addresses have nothing to act on, the Manual list holds nothing to open.
    const QStringList kept{u"chkUrlBlocking"_s, u"chkEmailBlocking"_s, u"chkUseSavedUrls"_s,
                           u"cboANSavedUrls"_s, u"cboANMCMNCMask"_s,   u"cboANWBSelect"_s,
                           u"lstANMCAllAny"_s,  u"lstANMNCAllAny"_s,   u"chkMCMNCStop"_s};
    for (const OptionRow &row : optionRows()) {
        Control *control = form().control(row.control);
        if (kept.contains(control->name()))
            continue;
        control->restore(control->stored() == u"1"_s || control->stored() == u"True"_s ? u"0"_s : u"1"_s);
        if (auto *box = qobject_cast<TextBox *>(control))
            box->validate();
    }
    for (const OptionRow &row : optionRows())
        left.insert(row.control, form().control(row.control)->stored());
    program->lifeCycle.end();
    program.reset();
    load();
    program->startUp.settle();
    for (auto option = left.begin(); option != left.end(); ++option)
        EXPECT_EQ(form().control(option.key())->stored(), option.value()) << option.key().toStdString();
}

TEST_F(OptionsTest, EveryKeyAndEveryControlOfTheTableStandsOnce)
{
    QSet<QString> keys;
    QSet<QString> controls;
    const frmSearch form;
    for (const OptionRow &row : optionRows()) {
        EXPECT_NE(form.control(row.control), nullptr) << row.control.data();
        EXPECT_FALSE(keys.contains(row.key)) << row.key.data();
        EXPECT_TRUE(!controls.contains(row.control) || row.control == "cboANSavedUrls"_L1) << row.control.data();
        keys.insert(row.key);
        controls.insert(row.control);
    }
}

TEST_F(OptionsTest, OptionsAreLoadedInTheirOrder)
{
    // Later keys use what earlier ones have set, so the order is part of the store's meaning.
    const QStringList wanted = uR"(chkMCMNCStop|chkAutoNavToNextPassUrl|chkSaveUrl|chkSMOpenDlGraphics|chkUniqueBaseUrls
        |optFilesSites|udcMNTimin|chkUrlBlocking|chkEmailBlocking|SearchKeyChkGetEmail Value|chkSaveToSS|chkSaveToFile
        |SearchKeyChkSavePages Value|chkMCCS|chkMNCCS|SearchKeyCboSaveItem ListIndex|lstDCoTmr|optMCAllAny|optMNCAllAny
        |npTimimg|SearchKeyTxtStartTag Text|SearchKeyTxtStopTag Text
        |udcSFMinFileS|chkSUUseSiteTitle|udMNGenUrlOne|udcNotFoundMinSize|chkUniqueSelectUrls|chkOpenHtmlExports
        |chkOpenServersOnly|chkPutInOneFile|chkMNUseFotoB|cboMNList|mnuMNLoadLinksIEUnique|cboMNMCMNC|chkMNCnvHex
        |cboANSavedUrls|chkSMSaveUrlWithEmail|chkSMAAllignmagnify|chkSavePhone|txtSBSelAreaCodes|chkSMFindFax
        |incSMAIEWidth|incSMAIEHeight|chkSMReturnToSearchPg|chkSaveSummary|chkShowToolTips|incMNStep
        |chkSMVTurnOffErrorMsg|incSFMinGraphicSize|chkSMAMAutoAddAutoUrl|chkSMSaveUrlWithPhone|chkSMVBlockPopUpWindows
        |incSMAMAutoTxtElng|chkSMAMUseFTP|chkShutDownPrompt|incSMDMinHtmlSize|chkSMAMUrlIfNoData|chkSMAPassUrlAutoIncr
        |chkSTmrRCDir|incSmRPPause|chkSMASavedUrlAutoIncr|chkSMSUniqueServers|incMNDLTiming)"_s.split(u'|');
    QStringList order;
    for (const OptionRow &row : optionRows()) {
        const QString key = row.key;
        const auto isTold = [&](const QString &told) { return told.trimmed() == key; };
        if (row.loaded == OptionRow::Loaded::WithSettings && std::any_of(wanted.begin(), wanted.end(), isTold))
            order.append(key);
    }
    ASSERT_EQ(order.size(), wanted.size());
    for (qsizetype i = 0; i < wanted.size(); ++i)
        EXPECT_EQ(order[i], wanted[i].trimmed());
}

TEST_F(OptionsTest, ATagOfMinusOneIsStoredAChoiceOfNothingIsNot)
{
    load();
    form().outputs.txtANStartTag.setText(u"-1"_s);
    EXPECT_EQ(settings.of("SearchKeyTxtStartTag Text"), u"-1"_s);
    form().outputs.cboANSaveType.setListIndex(2);
    form().outputs.cboANSaveType.setListIndex(-1);
    EXPECT_EQ(settings.of("SearchKeyCboSaveItem ListIndex"), u"2"_s);
}

TEST_F(OptionsTest, FoldersThatAreGoneGiveWayToTheProgramsAndTheStoreSaysSo)
{
    settings.preset("SearchKeyTxtSaveLocation Text", u"/gone/away/"_s);
    settings.preset("txtFNSaveLocation", u"/gone/too/"_s);
    load();
    EXPECT_EQ(form().places.txtSFDBDir.text(), folder.path() + u'/');
    EXPECT_EQ(form().places.txtSFMNDir.text(), folder.path() + u'/');
    EXPECT_EQ(settings.of("SearchKeyTxtSaveLocation Text"), folder.path() + u'/');
    EXPECT_EQ(settings.of("txtFNSaveLocation"), folder.path() + u'/');
}

TEST_F(OptionsTest, TheFileSaveFolderDefaultsToThatOfTheDatabase)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"data"_s));
    settings.preset("SearchKeyTxtSaveLocation Text", folder.path() + u"/data/"_s);
    load();
    EXPECT_EQ(form().places.txtSFDBDir.text(), folder.path() + u"/data/"_s);
    EXPECT_EQ(form().places.txtSFMNDir.text(), folder.path() + u"/data/"_s);
    EXPECT_TRUE(QFile::exists(folder.path() + u"/data/Trawlex-0.mdb"_s));
}

TEST_F(OptionsTest, AnEmptyFolderCountsAsTheProgramsOwn)
{
    settings.preset("SearchKeyTxtSaveLocation Text", {});
    load();
    EXPECT_EQ(form().places.txtSFDBDir.text(), folder.path() + u'/');
}

// What a click stores and tells.

TEST_F(OptionsTest, EverySwitchStoresItsValueAndTellsItsStatus)
{
    load();
    program->startUp.settle();
    form().options.chkSMV(1).setValue(0);
    // Outputs first, so that the criteria stay on; blocking and Saved Urls have nothing to act on and go off at once.
    const QStringList kept{u"chkUrlBlocking"_s, u"chkEmailBlocking"_s, u"chkUseSavedUrls"_s};
    for (const OptionRow &row : optionRows()) {
        if (row.on.isEmpty())
            continue;
        auto *box = qobject_cast<CheckBox *>(form().control(row.control));
        ASSERT_NE(box, nullptr) << row.control.data();
        if (kept.contains(QString(row.control)))
            continue;
        form().outputs.chkSavePages.setValue(1);
        const int before = box->value();
        statuses.clear();
        box->click();
        EXPECT_EQ(lastStatus(), before == 1 ? QString(row.off) : QString(row.on)) << row.control.data();
        box->click();
        EXPECT_EQ(lastStatus(), before == 1 ? QString(row.on) : QString(row.off)) << row.control.data();
        box->setValue(before);
    }
    for (const OptionRow &row : optionRows()) {
        auto *box = qobject_cast<CheckBox *>(form().control(row.control));
        if (!box || kept.contains(QString(row.control)))
            continue;
        form().outputs.chkSavePages.setValue(1);
        box->click();
        EXPECT_EQ(settings.of(row.key.data()), QString::number(box->value())) << row.key.data();
    }
}

namespace {
struct PagesCase
{
    int on, toTable, toFile, oneFile;
    const char *status;
};
class SavePagesStatus : public ProgramTest, public testing::WithParamInterface<PagesCase>
{
};
} // namespace

TEST_P(SavePagesStatus, NamesTheTarget)
{
    load();
    form().outputs.chkSavePages.setValue(1 - GetParam().on);
    form().outputs.chkSaveToSS.setValue(GetParam().toTable);
    form().outputs.chkSaveToFile.setValue(GetParam().toFile);
    form().outputs.chkPutInOneFile.setValue(GetParam().oneFile);
    form().outputs.chkSavePages.click();
    EXPECT_EQ(lastStatus(), QString::fromLatin1(GetParam().status));
}

INSTANTIATE_TEST_SUITE_P(Options, SavePagesStatus,
                         testing::Values(PagesCase{1, 1, 1, 1, "Save Pages to SiteSummary ON"},
                                         PagesCase{1, 0, 1, 1, "Save Pages to 1 file ON"},
                                         PagesCase{1, 0, 1, 0, "Save Pages to files ON"},
                                         PagesCase{1, 0, 0, 1, "Save Pages ON"},
                                         PagesCase{0, 1, 1, 1, "Save Pages OFF"}));

TEST_F(OptionsTest, SavingNumbersTellsTheAreaCodes)
{
    load();
    form().outputs.chkSavePhone.click();
    EXPECT_EQ(lastStatus(), u"Save all phone #s ON"_s);
    form().areaCodes.txtSBSelAreaCodes.setText(u"212,415"_s);
    form().outputs.chkSavePhone.click();
    EXPECT_EQ(lastStatus(), u"Save[212,415]phone #s OFF"_s);
}

TEST_F(OptionsTest, SavingLinksTellsWhetherOnlyWithoutData)
{
    load();
    form().outputs.chkSaveUrl.click();
    EXPECT_EQ(lastStatus(), u"Save links if no data ON"_s);
    form().options.chkSMD(7).setValue(0);
    form().outputs.chkSaveUrl.click();
    EXPECT_EQ(lastStatus(), u"Save links OFF"_s);
}

TEST_F(OptionsTest, LinksCannotBeSavedWhileTheListThatTheyWouldGoToIsOpen)
{
    load();
    form().saved.mbPassUrlsLoaded = true;
    form().outputs.chkSaveUrl.click();
    EXPECT_EQ(form().outputs.chkSaveUrl.value(), 0);
    EXPECT_EQ(lastStatus(), u"PassUrlsA loaded"_s);
    EXPECT_EQ(settings.of("chkSaveUrl"), u"0"_s);
}

TEST_F(OptionsTest, UniqueServersMakeTheStatusBarYellow)
{
    settings.preset("chkSMSUniqueServers", u"1"_s);
    load();
    EXPECT_EQ(form().frame.picStatus.backColor(), Colours::Yellow);
    form().options.chkSMA(9).click();
    EXPECT_EQ(form().frame.picStatus.backColor(), Colours::ButtonFace);
}

TEST_F(OptionsTest, ErrorMessagesFollowTheirOptionAtOnceAndFromTheStart)
{
    settings.preset("chkSMVTurnOffErrorMsg", u"1"_s);
    load();
    EXPECT_TRUE(program->log.isShowing());
    form().options.chkSMV(1).click();
    EXPECT_FALSE(program->log.isShowing());
}

TEST_F(OptionsTest, OrientAtStartIsStoredOnlyOnceTheWindowIsShown)
{
    load();
    form().options.chkSMV(4).setValue(1);
    EXPECT_EQ(settings.of("chkSAMoveToTopLeft"), u"0"_s);
    program->startUp.settle();
    form().options.chkSMV(4).setValue(0);
    form().options.chkSMV(4).setValue(1);
    EXPECT_EQ(settings.of("chkSAMoveToTopLeft"), u"1"_s);
    EXPECT_EQ(lastStatus(), u"Orient Trawlex at start ON"_s);
}

TEST_F(OptionsTest, TagsAreStoredAtEachChangeAndShownAsToolTips)
{
    load();
    form().outputs.txtANStartTag.setText(u"<h1>"_s);
    EXPECT_EQ(settings.of("SearchKeyTxtStartTag Text"), u"<h1>"_s);
    EXPECT_EQ(form().outputs.txtANStartTag.toolTipText(), u"<h1>"_s);
    form().options.chkSMV(0).setValue(0);
    form().outputs.txtANStopTag.setText(u"</h1>"_s);
    EXPECT_EQ(form().outputs.txtANStopTag.toolTipText(), QString());
}

TEST_F(OptionsTest, CaseSensitivityIsToldInTheBoxesTip)
{
    load();
    form().outputs.chkSavePages.setValue(1);
    form().criteria.mustContain.caseSensitive.click();
    EXPECT_EQ(form().criteria.mustContain.caseSensitive.toolTipText(), u"Must Contain items Are case sensitive! ON"_s);
    form().criteria.mustContain.caseSensitive.click();
    EXPECT_EQ(form().criteria.mustContain.caseSensitive.toolTipText(),
              u"Must Contain items are Not case sensitive! OFF"_s);
    form().criteria.mustNotContain.caseSensitive.click();
    EXPECT_EQ(form().criteria.mustNotContain.caseSensitive.toolTipText(),
              u"Must Not Contain items Are case sensitive! ON"_s);
    form().options.chkSMV(0).setValue(0);
    form().criteria.mustNotContain.caseSensitive.click();
    EXPECT_EQ(form().criteria.mustNotContain.caseSensitive.toolTipText(), QString());
}

TEST_F(OptionsTest, PathBoxesShowTheirTextAndTwoOfThemAreNeverWithoutATip)
{
    load();
    form().places.txtSFDBFile.setText(u"x.mdb"_s);
    form().places.txtSFDBDir.setText(u"/data/"_s);
    EXPECT_EQ(form().places.txtSFDBFile.toolTipText(), u"x.mdb"_s);
    EXPECT_EQ(form().places.txtSFDBDir.toolTipText(), u"/data/"_s);
    form().options.chkSMV(0).setValue(0);
    form().places.txtSFDBFile.setText(u"y.mdb"_s);
    form().places.txtSFDBDir.setText(u"/other/"_s);
    form().places.txtSFMNDir.setText(u"/files/"_s);
    EXPECT_EQ(form().places.txtSFDBFile.toolTipText(), QString());
    EXPECT_EQ(form().places.txtSFDBDir.toolTipText(), u"Database directory"_s);
    EXPECT_EQ(form().places.txtSFMNDir.toolTipText(), u"File save directory"_s);
}

TEST_F(OptionsTest, AreaCodesAreTidiedAndStoredWhenTheBoxIsLeft)
{
    load();
    const QString before = settings.of("txtSBSelAreaCodes");
    form().areaCodes.txtSBSelAreaCodes.setText(u" 212;415;650, "_s);
    EXPECT_EQ(settings.of("txtSBSelAreaCodes"), before);
    form().areaCodes.txtSBSelAreaCodes.setText(u" 212; 415 "_s);
    form().areaCodes.txtSBSelAreaCodes.validate();
    EXPECT_EQ(form().areaCodes.txtSBSelAreaCodes.text(), u"212,415"_s);
    EXPECT_EQ(settings.of("txtSBSelAreaCodes"), u"212,415"_s);
    form().areaCodes.txtSBSelAreaCodes.setText(u" none "_s);
    form().areaCodes.txtSBSelAreaCodes.validate();
    EXPECT_EQ(form().areaCodes.txtSBSelAreaCodes.text(), u" none "_s);
    EXPECT_EQ(settings.of("txtSBSelAreaCodes"), u"none"_s);
}

namespace {
/// Every control that has a text of its own, in the order in which they are told.
const QStringList controlsWithTips =
    u"lblMNDLTiming chkSMA(9) chkSMA(0) chkSMD(7) chkSMD(5) chkSMV(2) lblNotFoundMinSize lblMinHtmlSize "
    u"lblSummarySaved "
    "lblPageSaved lblEmailSaved lblPhoneSaved lblUrlSaved picANEnd lblTrawlexTimer lblAutoIncrPos lblAutoPgUrls "
    "lblAutoCollect cmdANStart cmdMNStart cmdANInitialize lstANMCAllAny lstANMNCAllAny cboSDGroup cboSD(2) "
    "cmdSFEditorSel lstANMC lstANMNC txtSFEditor cmdSDDefault cboSDLen chkSDHex cboSD(1) cboSD(3) cboSD(4) cboSD(5) "
    "cboSD(6) cboSD(7) cboSD(8) chkSMA(1) chkSMA(2) chkSMA(3) chkSMA(4) chkSMA(5) chkSMA(6) chkSMA(7) chkSMA(8) "
    "chkSMD(0) chkSMD(1) chkSMD(2) chkSMD(3) chkSMD(4) chkSMD(6) chkSMD(8) chkSMV(0) chkSMV(1) chkSMV(3) chkSMV(4) "
    "cboANList lblSMRPPauseTime lblMNFileDLMinSize lblSFMinPageSize lblAutoTxtBoxElongate chkSaveSummary chkSavePages "
    "chkSaveEmail chkSavePhone chkSaveUrl chkMCMNCStop cboSFITableIn cboSFITableExisting cboSFIFieldIn "
    "cboSFIFieldExisting chkSFIImportTable chkSFIImportField chkSFIAllSettings chkSFIAllData lblSFIImportDatabase "
    "cmdSFIImport cmdSFISelDatabase txtSBStateACs txtSBSelAreaCodes cboSBSelectState cboMNMCMNC cboMNMCMNCFilter "
    "cboMNList chkSMOpenDownloadedGraphics chkMNUseFotoBrwse picMNStartStop cboMNAutoUrl incMNAutoUrl cboDBFields "
    "txtDBQuery chkSaveToFile chkSaveToSS cboFilesSites cboDBTables lstMN(0) lstMN(1) lstMN(2) lstMN(3) lstMN(4) "
    "cmdSFAutoDBFile cmdSFDBDirBrowse txtSFDBDir txtSFDBFile cmdSFDBFileBrowse txtSFMNDir cmdSFMNDirBrowse "
    "lstBlockedEmailC lstBlockedUrlC cmdBlockedEC(0) cmdBlockedEC(1) cmdBlockedUrlC(0) cmdBlockedUrlC(1) "
    "chkEmailBlocking chkUrlBlocking cmdANMCMaskAdd cmdANMCMaskMinus cboANMCMNCMask chkMustContain chkMustNotContain "
    "cmdANAddMC cmdANAddMNC txtANStartTag txtANStopTag cboANSaveType cmdANSavedAdd cboANSavedUrls cmdANSavedGo "
    "cmdANSavedMinus chkMCCS chkMNCCS cboANWBSelect chkUseSavedUrls incANTiming lblMCColor lblMNCColor"_s.split(u' ');
} // namespace

TEST_F(OptionsTest, EveryControlThatIsToldHasItsTip)
{
    load();
    program->toolTips.ShowTootTips(true);
    for (const QString &name : controlsWithTips) {
        const Control *control = form().control(name);
        ASSERT_NE(control, nullptr) << name.toStdString();
        EXPECT_FALSE(control->toolTipText().isEmpty()) << name.toStdString();
    }
    for (int i = 1; i <= 16; ++i)
        EXPECT_EQ(form().siteEditor.cmdSD(i).toolTipText(), i % 2 ? u"Add item"_s : u"Delete item"_s);
    program->toolTips.ShowTootTips(false);
    for (const QString &name : controlsWithTips)
        EXPECT_EQ(form().control(name)->toolTipText(), QString()) << name.toStdString();
}

TEST_F(OptionsTest, TipsThatTellABehaviourAreToTheLetter)
{
    const std::pair<const char *, const char *> tips[] = {
        {"lblMNDLTiming", "Set constant File Download (DL) time value for Manual"},
        {"chkSMA(9)", "(If Checked) All Urls loaded (Auto [all links screened], Manual [Doesn't work on auto page url "
                      "collect]) will be screened for second instances of the same server and second instances will be "
                      "removed from the list"},
        {"chkSMA(0)", "(If Checked) Search result page links will be stripped to server. Only the servers of search "
                      "results will be opened. (Auto tab)"},
        {"chkSMD(7)", "(If checked) If Save links (Pass Urls) is checked urls will be saved only for pages for which "
                      "(page, email, phone) were not saved, after passing MC-MNC"},
        {"chkSMD(5)", "(If Checked) Use site title as note, if unchecked prompt for note, on status bar double click "
                      "(Auto & Manual) to save a Select Url."},
        {"chkSMV(2)", "Toggle blocking all popup windows (Links that open new windows will not respond)"},
        {"lblNotFoundMinSize",
         "Pages with sizes less than this will be checked for File Not Found (0 checks all pages)"},
        {"lblMinHtmlSize", "Set minimum web page size of sought pages. Smaller html sizes will not be searched. (set "
                           "to 0 to bypass)"},
        {"lblSummarySaved", "Summary saved indicator - (Left click to open. Right click to close)"},
        {"lblUrlSaved", "Pass Url saved indicator - (Left click to open. Right click for menu)"},
        {"picANEnd", "Left click To End (Right click orients Trawlex & IE)"},
        {"lblTrawlexTimer", "Trawlex Timer (Sec). Left click cancels timer"},
        {"lblAutoIncrPos", "(Manual) Left click Toggle Auto Increment number, If Auto Text Url is saved. (Auto) Right "
                           "click for PassUrl menu"},
        {"lblAutoPgUrls", "Left click toggle collect urls of sites. Right click selects list to collect in"},
        {"lblAutoCollect", "Left click toggle collect urls on sites. Right click selects list to collect in"},
        {"cmdANStart", "Go = Start, X = Stop (Right click for search site menu)"},
        {"cmdMNStart", "Go = Start, X = Stop (Right click for search site menu)"},
        {"cmdANInitialize", "Initialize web browser. (Can't do anything without it)"},
        {"lstANMCAllAny", "Must Contain (All, Any, or Selected)"},
        {"lstANMNCAllAny", "Must Not Contain (Any, or Selected)"},
        {"cboSDGroup", "Select which menu group A, B, this item will appear in  - (Go button popup menu). Requires "
                       "restart before visible."},
        {"cboSD(2)", "Select a url, or type a new url. - (urls must be unique in relation to every other site's urls)"},
        {"cmdSFEditorSel", "Select new editor. Must support command line arguments. (Notepad, Word, support command "
                           "line aruments)"}};
    load();
    for (const auto &[control, text] : tips)
        EXPECT_EQ(form().control(QString::fromLatin1(control))->toolTipText(), QString::fromLatin1(text)) << control;
}

TEST_F(OptionsTest, StatesShowTheirAreaCodes)
{
    load();
    const ComboBox &states = form().areaCodes.cboSBSelectState;
    EXPECT_EQ(states.listCount(), 52);
    EXPECT_TRUE(states.items().contains(u"New York"_s));
    form().areaCodes.cboSBSelectState.setText(u"Alaska"_s);
    EXPECT_EQ(form().areaCodes.txtSBStateACs.text(), u"907"_s);
    EXPECT_EQ(form().areaCodes.txtSBStateACs.toolTipText(), u"907"_s);
    form().areaCodes.txtSBStateACs.setText({});
    EXPECT_EQ(form().areaCodes.txtSBStateACs.toolTipText(), u"Drag area codes to list (add commas manually)"_s);
}

TEST_F(OptionsTest, ToolTipsGoOnAndOffWithTheirOption)
{
    load();
    EXPECT_EQ(form().autoRun.cmdANStart.toolTipText(), u"Go = Start, X = Stop (Right click for search site menu)"_s);
    form().options.chkSMV(0).setValue(0);
    EXPECT_EQ(form().autoRun.cmdANStart.toolTipText(), QString());
}
