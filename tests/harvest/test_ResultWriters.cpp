// Rows and files of an accepted page, each new thing once.
#include "PageFixture.h"
#include "store/sqlite/Connection.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {
class WritersTest : public PageTest
{
  protected:
    WritersTest()
    {
        form.options.chkSMD(SMD::UniqueInSummary).setValue(0);
        form.places.txtSFMNDir.setText(folder.path() + u'/');
        show(u"http://www.site1.com/a/page.html"_s);
    }
    void show(const QString &address, const QString &html = u"<body>a page of no interest</body>"_s)
    {
        FakePage &page = window().pages[address];
        page.html = html;
        page.title = u"A title"_s;
        window().show(address);
    }
    PageReading page() { return PageReading(browser); }
    int saveSummary()
    {
        PageReading reading = page();
        return writers.SaveSummary(reading);
    }
    bool saveFile()
    {
        PageReading reading = page();
        return pageFiles.SaveFile(reading);
    }
    bool savePassUrl()
    {
        PageReading reading = page();
        return writers.SavePassUrl(reading);
    }
    bool saveEmail()
    {
        PageReading reading = page();
        return writers.SaveEmail(reading);
    }
    bool savePhone()
    {
        PageReading reading = page();
        return writers.SavePhone(reading);
    }
    QString index(const QString &url = {})
    {
        PageReading reading = page();
        return writers.GetSSIndex(reading, url);
    }
    QByteArray fileContent(const QString &name)
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    void savePagesToFile()
    {
        form.outputs.chkSavePages.setValue(1);
        form.outputs.chkSaveToFile.setValue(1);
    }
};

/// The file's text without the mark in front that tells its encoding.
QByteArray withoutMark(QByteArray bytes)
{
    return bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes;
}
} // namespace

// SiteSummary.

TEST_F(WritersTest, ASummaryIsTitleAndAddress)
{
    EXPECT_EQ(saveSummary(), ResultWriters::AddedWithoutPage);
    EXPECT_EQ(rows(u"SiteSummary"_s), QStringList{u"http://www.site1.com/a/page.html"_s});
    EXPECT_EQ(rows(u"SiteSummary"_s, u"Title"_s), QStringList{u"A title"_s});
    EXPECT_EQ(rows(u"SiteSummary"_s, u"FullPage"_s), QStringList{QString()});
}

TEST_F(WritersTest, WithPagesSavedToTheTableThePageIsInTheRow)
{
    form.outputs.chkSavePages.setValue(1);
    EXPECT_EQ(saveSummary(), ResultWriters::AddedWithPage);
    EXPECT_EQ(rows(u"SiteSummary"_s, u"FullPage"_s), QStringList{u"<body>a page of no interest</body>"_s});
}

TEST_F(WritersTest, WithPagesSavedToFilesAloneTheRowHasNone)
{
    savePagesToFile();
    form.outputs.chkSaveToSS.setValue(0);
    EXPECT_EQ(saveSummary(), ResultWriters::AddedWithoutPage);
    EXPECT_EQ(rows(u"SiteSummary"_s, u"FullPage"_s), QStringList{QString()});
}

TEST_F(WritersTest, ARowThatIsNotWrittenIsNotReported)
{
    show(u"http://www.site1.com/"_s,
         u"<body>Call us at 212-555-0100 or write to ann@tea.com, whenever you like to</body>"_s);
    database->connection()->refuseWrites();
    EXPECT_EQ(saveSummary(), ResultWriters::NothingSaved);
    EXPECT_FALSE(savePassUrl());
    EXPECT_FALSE(saveEmail());
    EXPECT_FALSE(savePhone());
    EXPECT_TRUE(writers.takeAdded().isEmpty());
    database->connection()->allowWrites();
    EXPECT_EQ(saveSummary(), ResultWriters::AddedWithoutPage);
    EXPECT_TRUE(savePassUrl() && saveEmail() && savePhone());
    EXPECT_EQ(writers.takeAdded(),
              (QMap<QString, int>{
                  {u"SiteSummary"_s, 1}, {u"PassUrlsA"_s, 1}, {u"EmailAddress"_s, 1}, {u"PhoneNumber"_s, 1}}));
}

TEST_F(WritersTest, AnAddressThatStandsThereIsNotAddedAgain)
{
    EXPECT_EQ(saveSummary(), ResultWriters::AddedWithoutPage);
    EXPECT_EQ(saveSummary(), ResultWriters::AlreadyThere);
    EXPECT_EQ(rows(u"SiteSummary"_s).size(), 1);
}

TEST_F(WritersTest, UniqueServersKeepOneRowForASite)
{
    form.options.chkSMD(SMD::UniqueInSummary).setValue(1);
    EXPECT_EQ(saveSummary(), ResultWriters::AddedWithoutPage);
    show(u"http://www.site1.com/other.html"_s);
    EXPECT_EQ(saveSummary(), ResultWriters::AlreadyThere);
    EXPECT_EQ(rows(u"SiteSummary"_s), QStringList{u"www.site1.com"_s});
}

TEST_F(WritersTest, AQuoteInAnAddressIsDroppedAndTheSecondVisitFindsThatForm)
{
    show(u"http://www.site1.com/o'hara's"_s);
    EXPECT_EQ(saveSummary(), ResultWriters::AddedWithoutPage);
    EXPECT_EQ(rows(u"SiteSummary"_s), QStringList{u"http://www.site1.com/oharas"_s});
    EXPECT_EQ(saveSummary(), ResultWriters::AlreadyThere);
}

TEST_F(WritersTest, APageWithoutAnAddressHasNoSummary)
{
    show({});
    EXPECT_EQ(saveSummary(), ResultWriters::NothingSaved);
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
}

TEST_F(WritersTest, UniqueServersOfAPageWithoutAServerSaveNothing)
{
    form.options.chkSMD(SMD::UniqueInSummary).setValue(1);
    show(u"file:///home/page"_s);
    EXPECT_EQ(saveSummary(), ResultWriters::NothingSaved);
}

// Files.

TEST_F(WritersTest, AFileHoldsThePageAndALineEnd)
{
    savePagesToFile();
    EXPECT_TRUE(saveFile());
    EXPECT_EQ(fileContent(u"Page-1.htm"_s), "\xEF\xBB\xBF<body>a page of no interest</body>\r\n");
}

TEST_F(WritersTest, OnlyTheUserMayReadAFile)
{
    savePagesToFile();
    EXPECT_TRUE(saveFile());
    EXPECT_EQ(QFile::permissions(folder.filePath(u"Page-1.htm"_s)) & ~(QFile::ReadUser | QFile::WriteUser),
              QFile::ReadOwner | QFile::WriteOwner);
}

TEST_F(WritersTest, FileNamesClimbAndNeverOverwrite)
{
    savePagesToFile();
    for (int i = 1; i <= 11; ++i) {
        show(u"http://www.site1.com/%1"_s.arg(i), u"<body>page number %1</body>"_s.arg(i));
        EXPECT_TRUE(saveFile());
    }
    for (int i = 1; i <= 11; ++i)
        EXPECT_EQ(withoutMark(fileContent(u"Page-%1.htm"_s.arg(i))),
                  u"<body>page number %1</body>\r\n"_s.arg(i).toUtf8());
}

TEST_F(WritersTest, AGapInTheNumbersIsUsed)
{
    savePagesToFile();
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(saveFile());
    ASSERT_TRUE(QFile::remove(folder.filePath(u"Page-2.htm"_s)));
    EXPECT_TRUE(saveFile());
    EXPECT_TRUE(QFile::exists(folder.filePath(u"Page-2.htm"_s)));
    EXPECT_FALSE(QFile::exists(folder.filePath(u"Page-4.htm"_s)));
}

TEST_F(WritersTest, DigitsInTheFoldersNameDoNotClimb)
{
    savePagesToFile();
    const QString sub = folder.path() + u"/2024-05/"_s;
    ASSERT_TRUE(QDir().mkpath(sub));
    form.places.txtSFMNDir.setText(sub);
    EXPECT_TRUE(saveFile());
    EXPECT_TRUE(saveFile());
    EXPECT_TRUE(QFile::exists(sub + u"Page-2.htm"_s));
}

TEST_F(WritersTest, BlanksAroundTheFolderDoNotCountAndOtherCharactersDo)
{
    savePagesToFile();
    form.places.txtSFMNDir.setText(u"  "_s + folder.path() + u"/ "_s);
    EXPECT_TRUE(saveFile());
    EXPECT_TRUE(QFile::exists(folder.filePath(u"Page-1.htm"_s)));
    form.places.txtSFMNDir.setText(folder.path() + u"/\t"_s);
    EXPECT_TRUE(saveFile());
    EXPECT_TRUE(QFile::exists(folder.filePath(u"\tPage-1.htm"_s)));
}

TEST_F(WritersTest, InOneFilePagesFollowOneAnotherDividedByTheLineEnd)
{
    savePagesToFile();
    form.outputs.chkPutInOneFile.setValue(1);
    EXPECT_TRUE(saveFile());
    show(u"http://www.site2.com/"_s, u"<body>second</body>"_s);
    EXPECT_TRUE(saveFile());
    EXPECT_EQ(withoutMark(fileContent(u"Page-1.htm"_s)),
              "<body>a page of no interest</body>\r\n<body>second</body>\r\n");
    EXPECT_FALSE(QFile::exists(folder.filePath(u"Page-2.htm"_s)));
}

TEST_F(WritersTest, TextAndLinksAreTxtFiles)
{
    savePagesToFile();
    window().pages[u"http://www.site1.com/a/page.html"_s].text = u"the text"_s;
    window().show(u"http://www.site1.com/a/page.html"_s);
    form.outputs.cboANSaveType.setListIndex(1);
    EXPECT_TRUE(saveFile());
    form.outputs.cboANSaveType.setListIndex(2);
    EXPECT_TRUE(saveFile());
    EXPECT_EQ(fileContent(u"Page-1.txt"_s), "the text\r\n");
    EXPECT_EQ(fileContent(u"Page-2.txt"_s), "\r\n\r\n"); // no link: one line end, and the file's own
}

TEST_F(WritersTest, WithNothingToStoreNoFileIsMade)
{
    savePagesToFile();
    form.limits.incSFMinFileSize.setText(u"009999"_s);
    EXPECT_FALSE(saveFile());
    EXPECT_FALSE(QFile::exists(folder.filePath(u"Page-1.htm"_s)));
}

TEST_F(WritersTest, AFolderThatIsNotThereIsAFileNotSaved)
{
    savePagesToFile();
    form.places.txtSFMNDir.setText(folder.path() + u"/gone/"_s);
    EXPECT_FALSE(saveFile());
}

// PassUrls.

TEST_F(WritersTest, APassUrlGetsTheNextFreeName)
{
    EXPECT_TRUE(savePassUrl());
    show(u"http://www.site2.com/"_s);
    EXPECT_TRUE(savePassUrl());
    EXPECT_EQ(rows(u"PassUrlsA"_s, u"MaskName"_s), (QStringList{u"PassUrl-100"_s, u"PassUrl-101"_s}));
    EXPECT_EQ(rows(u"PassUrlsA"_s, u"SSIndex"_s), (QStringList{u"0"_s, u"0"_s}));
}

TEST_F(WritersTest, APassUrlGoesToTheListInForce)
{
    form.saved.cboANList.setListIndex(3);
    EXPECT_TRUE(savePassUrl());
    EXPECT_EQ(rows(u"PassUrlsD"_s), QStringList{u"http://www.site1.com/a/page.html"_s});
    EXPECT_TRUE(rows(u"PassUrlsA"_s).isEmpty());
}

TEST_F(WritersTest, APassUrlThatStandsThereIsNotAddedAgain)
{
    EXPECT_TRUE(savePassUrl());
    EXPECT_FALSE(savePassUrl());
    EXPECT_EQ(rows(u"PassUrlsA"_s).size(), 1);
}

TEST_F(WritersTest, APassUrlLosesItsQuotes)
{
    show(u"http://www.site1.com/it's"_s);
    EXPECT_TRUE(savePassUrl());
    EXPECT_EQ(rows(u"PassUrlsA"_s), QStringList{u"http://www.site1.com/its"_s});
    EXPECT_FALSE(savePassUrl());
}

TEST_F(WritersTest, WithSummariesOnAPassUrlCarriesTheIndexOfItsPage)
{
    form.outputs.chkSaveSummary.setValue(1);
    addRow(*database, u"SiteSummary"_s, {{u"Url"_s, u"http://www.other.com/"_s}});
    saveSummary();
    EXPECT_TRUE(savePassUrl());
    EXPECT_EQ(rows(u"PassUrlsA"_s, u"SSIndex"_s), QStringList{rows(u"SiteSummary"_s, u"Index"_s).constLast()});
}

TEST_F(WritersTest, WithSummariesOnAndNoRowOfThePageTheIndexIsMinusOne)
{
    form.outputs.chkSaveSummary.setValue(1);
    EXPECT_TRUE(savePassUrl());
    EXPECT_EQ(rows(u"PassUrlsA"_s, u"SSIndex"_s), QStringList{u"-1"_s});
}

// E-mail addresses.

TEST_F(WritersTest, AddressesAreStoredOnceAcrossAllPages)
{
    show(u"http://www.site1.com/"_s, u"<body> ann@tea.com bob@tea.com ann@tea.com, and that is all of it</body>"_s);
    EXPECT_TRUE(saveEmail());
    show(u"http://www.site2.com/"_s, u"<body> ann@tea.com cal@tea.com, and that is all there is of it</body>"_s);
    EXPECT_TRUE(saveEmail());
    EXPECT_FALSE(saveEmail());
    EXPECT_EQ(rows(u"EmailAddress"_s, u"Address"_s),
              (QStringList{u"ann@tea.com"_s, u"bob@tea.com"_s, u"cal@tea.com"_s}));
    EXPECT_EQ(rows(u"EmailAddress"_s),
              (QStringList{u"http://www.site1.com/"_s, u"http://www.site1.com/"_s, u"http://www.site2.com/"_s}));
}

TEST_F(WritersTest, AddressesThatDifferInCaseAreOne)
{
    show(u"http://www.site1.com/"_s, u"<body> Ann@tea.com ann@TEA.com, and that is all there is of it</body>"_s);
    EXPECT_TRUE(saveEmail());
    EXPECT_EQ(rows(u"EmailAddress"_s, u"Address"_s), QStringList{u"Ann@tea.com"_s});
}

TEST_F(WritersTest, AnAddressWithAQuoteEndsItsWriterAndTheOthersGoOn)
{
    form.runs.mbANRunning = true;
    for (CheckBox *box : {&form.outputs.chkSaveEmail, &form.outputs.chkSaveSummary, &form.outputs.chkSaveUrl})
        box->setValue(1);
    form.options.chkSMD(SMD::PassUrlIfNoData).setValue(0);
    // What stands at the very beginning of a page is taken into an address whatever it is.
    show(u"http://www.site1.com/"_s, u"'ann@tea.com and bob@tea.com are what is to be found here"_s);
    PageReading reading = page();
    screening.CollectData(reading);
    EXPECT_TRUE(rows(u"EmailAddress"_s, u"Address"_s).isEmpty());
    EXPECT_EQ(form.outputs.lblEmailSaved.backColor(), Colours::Red);
    EXPECT_EQ(rows(u"SiteSummary"_s).size(), 1);
    EXPECT_EQ(rows(u"PassUrlsA"_s).size(), 1);
    show(u"http://www.site2.com/"_s, u" ann@tea.com and bob@tea.com are what is to be found here"_s);
    EXPECT_TRUE(saveEmail()) << "without the quote both are taken";
    EXPECT_EQ(rows(u"EmailAddress"_s, u"Address"_s).size(), 2);
}

TEST_F(WritersTest, APageWithoutAddressesSavesNone)
{
    EXPECT_FALSE(saveEmail());
    show(u"http://www.site1.com/"_s, u"short"_s);
    EXPECT_FALSE(saveEmail());
}

TEST_F(WritersTest, WithoutTheOptionTheRowsUrlIsEmpty)
{
    form.options.chkSMD(SMD::UrlWithEmail).setValue(0);
    show(u"http://www.site1.com/"_s, u"<body> ann@tea.com is the one and only address here</body>"_s);
    EXPECT_TRUE(saveEmail());
    EXPECT_EQ(rows(u"EmailAddress"_s), QStringList{QString()});
}

TEST_F(WritersTest, BlockedTextsKeepAddressesOutWithoutRegardToCase)
{
    form.blocking.email.items.addItem(u"@SPAM"_s);
    form.blocking.email.on.setValue(1);
    show(u"http://www.site1.com/"_s, u"<body> ann@tea.com and bob@spam.com are what is here</body>"_s);
    EXPECT_TRUE(saveEmail());
    EXPECT_EQ(rows(u"EmailAddress"_s, u"Address"_s), QStringList{u"ann@tea.com"_s});
    show(u"http://www.site2.com/"_s, u"<body> bob@spam.com is all that there is to be found here</body>"_s);
    EXPECT_FALSE(saveEmail());
}

TEST_F(WritersTest, WithBlockingOffNothingIsKeptOut)
{
    form.blocking.email.items.addItem(u"@spam"_s);
    show(u"http://www.site1.com/"_s, u"<body> bob@spam.com is all that there is to be found here</body>"_s);
    EXPECT_TRUE(saveEmail());
}

TEST_F(WritersTest, AddressesCarryTheIndexOfTheirPagesSummary)
{
    form.outputs.chkSaveSummary.setValue(1);
    show(u"http://www.site1.com/"_s, u"<body> ann@tea.com is the one and only address here</body>"_s);
    EXPECT_TRUE(saveEmail());
    EXPECT_EQ(rows(u"EmailAddress"_s, u"SSIndex"_s), QStringList{u"-1"_s});
    saveSummary();
    show(u"http://www.site1.com/"_s, u"<body> bob@tea.com is the one and only address here</body>"_s);
    EXPECT_TRUE(saveEmail());
    EXPECT_EQ(rows(u"EmailAddress"_s, u"SSIndex"_s).constLast(), rows(u"SiteSummary"_s, u"Index"_s).constFirst());
}

TEST_F(WritersTest, AQueryThatFailsEndsItsWriterAndTheOthersGoOn)
{
    form.runs.mbANRunning = true;
    for (CheckBox *box : {&form.outputs.chkSaveEmail, &form.outputs.chkSaveSummary, &form.outputs.chkSaveUrl})
        box->setValue(1);
    form.options.chkSMD(SMD::PassUrlIfNoData).setValue(0);
    ASSERT_TRUE(database->RemoveTable(u"EmailAddress"_s));
    show(u"http://www.site1.com/"_s, u"<body> ann@tea.com is the one and only address here</body>"_s);
    PageReading reading = page();
    screening.CollectData(reading);
    EXPECT_EQ(form.outputs.lblEmailSaved.backColor(), Colours::Red);
    EXPECT_EQ(form.outputs.lblSummarySaved.backColor(), Colours::Green);
    EXPECT_EQ(rows(u"SiteSummary"_s).size(), 1);
    EXPECT_EQ(rows(u"PassUrlsA"_s).size(), 1);
}

// Telephone numbers.

TEST_F(WritersTest, NumbersAreStoredOnceAsAnyOrFax)
{
    const QString html =
        u"<body>Call us at 212-555-0100 or 212-555-0101, and again at 212-555-0100, whenever you like</body>"_s;
    show(u"http://www.site1.com/"_s, html);
    EXPECT_TRUE(savePhone());
    EXPECT_FALSE(savePhone());
    EXPECT_EQ(rows(u"PhoneNumber"_s, u"Number"_s), (QStringList{u"2125550100"_s, u"2125550101"_s}));
    EXPECT_EQ(rows(u"PhoneNumber"_s, u"Type"_s), (QStringList{u"Any"_s, u"Any"_s}));
    EXPECT_EQ(rows(u"PhoneNumber"_s), (QStringList{u"http://www.site1.com/"_s, u"http://www.site1.com/"_s}));
}

TEST_F(WritersTest, FaxNumbersOnly)
{
    form.options.chkSMD(SMD::FaxOnly).setValue(1);
    form.options.chkSMD(SMD::UrlWithPhone).setValue(0);
    show(
        u"http://www.site1.com/"_s,
        u"<body>Call us at 212-555-0100 at any time of the day that suits you. Fax: 212-555-0101, day and night, always</body>"_s);
    EXPECT_TRUE(savePhone());
    EXPECT_EQ(rows(u"PhoneNumber"_s, u"Number"_s), QStringList{u"2125550101"_s});
    EXPECT_EQ(rows(u"PhoneNumber"_s, u"Type"_s), QStringList{u"Fax"_s});
    EXPECT_EQ(rows(u"PhoneNumber"_s), QStringList{QString()});
}

TEST_F(WritersTest, NumbersCarryTheIndexOfTheirPagesSummary)
{
    form.outputs.chkSaveSummary.setValue(1);
    addRow(*database, u"SiteSummary"_s, {{u"Url"_s, u"http://www.other.com/"_s}});
    show(u"http://www.site1.com/"_s, u"<body>Call us at 212-555-0100, whenever you like to call us</body>"_s);
    EXPECT_TRUE(savePhone());
    EXPECT_EQ(rows(u"PhoneNumber"_s, u"SSIndex"_s), QStringList{u"-1"_s});
    saveSummary();
    show(u"http://www.site1.com/"_s, u"<body>Call us at 212-555-0101, whenever you like to call us</body>"_s);
    EXPECT_TRUE(savePhone());
    EXPECT_EQ(rows(u"PhoneNumber"_s, u"SSIndex"_s).constLast(), rows(u"SiteSummary"_s, u"Index"_s).constLast());
}

TEST_F(WritersTest, OnlyTheChosenAreaCodesCount)
{
    form.areaCodes.txtSBSelAreaCodes.setText(u" 415 "_s);
    show(u"http://www.site1.com/"_s,
         u"<body>Call us at 212-555-0100 or at 415-555-0101, whenever you like to call us</body>"_s);
    EXPECT_TRUE(savePhone());
    EXPECT_EQ(rows(u"PhoneNumber"_s, u"Number"_s), QStringList{u"4155550101"_s});
}

TEST_F(WritersTest, APageWithoutNumbersSavesNone)
{
    EXPECT_FALSE(savePhone());
}

// The row of SiteSummary that a page belongs to.

namespace {
struct IndexCase
{
    const char *tag;
    QStringList summaryUrls;
    QString page;
    QString url;
    int row; ///< the matching row, from 1; 0 for none
};

void PrintTo(const IndexCase &row, std::ostream *out)
{
    *out << row.tag;
}

class SummaryIndex : public WritersTest, public testing::WithParamInterface<IndexCase>
{
};
} // namespace

TEST_P(SummaryIndex, FindsTheFirstRowInTableOrder)
{
    const IndexCase &row = GetParam();
    for (const QString &url : row.summaryUrls)
        addRow(*database, u"SiteSummary"_s, {{u"Url"_s, url}});
    show(row.page);
    const QStringList indexes = rows(u"SiteSummary"_s, u"Index"_s);
    EXPECT_EQ(index(row.url), row.row == 0 ? u"-1"_s : indexes.at(row.row - 1));
}

INSTANTIATE_TEST_SUITE_P(
    Writers, SummaryIndex,
    testing::Values(
        IndexCase{"an empty table", {}, u"http://www.a.com/x"_s, {}, 0},
        IndexCase{"the page's own address",
                  {u"http://www.b.com/"_s, u"http://www.a.com/x"_s},
                  u"http://www.a.com/x"_s,
                  {},
                  2},
        IndexCase{"case does not count", {u"HTTP://WWW.A.COM/X"_s}, u"http://www.a.com/x"_s, {}, 1},
        IndexCase{"a row written as server", {u"www.b.com"_s, u"www.a.com"_s}, u"http://www.a.com/x"_s, {}, 2},
        IndexCase{"another page of the same server", {u"http://www.a.com/y"_s}, u"http://www.a.com/x"_s, {}, 1},
        IndexCase{
            "the first of several", {u"http://www.a.com/y"_s, u"http://www.a.com/x"_s}, u"http://www.a.com/x"_s, {}, 1},
        IndexCase{"none", {u"http://www.b.com/"_s}, u"http://www.a.com/x"_s, {}, 0},
        IndexCase{"an address given: its server does not count",
                  {u"http://www.a.com/y"_s, u"http://www.a.com/x"_s},
                  u"http://www.b.com/"_s,
                  u"http://www.a.com/x"_s,
                  2},
        IndexCase{"an address given that is a server matches that server's rows",
                  {u"http://www.a.com/y"_s},
                  u"http://www.b.com/"_s,
                  u"www.a.com"_s,
                  1},
        IndexCase{"an address given: a row without a server is as empty as its own",
                  {u"nonsense"_s},
                  u"http://www.b.com/"_s,
                  u"http://www.a.com/x"_s,
                  1},
        IndexCase{"a page without a server and a row without one",
                  {u"http://www.b.com/"_s, u"nonsense"_s},
                  u"file:///home/page"_s,
                  {},
                  2}),
    [](const auto &row) { return "row" + std::to_string(row.index); });
