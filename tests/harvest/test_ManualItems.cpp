// One address of the Manual tab, taken as a file or as a site.
#include "harvest/ManualItems.h"

#include "support/FormFixture.h"
#include "transfer/RawServer.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {
enum What { File, Site };

class ManualItemsTest : public FormTest
{
  protected:
    ManualItemsTest()
    {
        form.places.txtSFMNDir.setText(folder.path() + u'/');
        QObject::connect(&items, &ManualItems::fileArrived, &form,
                         [this](const QString &name) { arrived.append(name); });
    }
    void take(What what) { form.manual.cboFilesSites.setListIndex(what); }
    [[nodiscard]] QByteArray content(const QString &name) const
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    QTemporaryDir folder;
    RawServer server;
    ManualDesk desk{form, status};
    Transfers transfers{[this](qint64 milliseconds) { pump.waitForEvents(milliseconds); }};
    cInetWS inet{transfers, log};
    Downloads downloads{context, form.places, form.limits, form.options, browser, transfers, inet};
    ManualItems items{context, form.manual, desk, downloads, navigation};
    QStringList arrived;
};
} // namespace

TEST_F(ManualItemsTest, NamesOfFilesAreThoseOfAListOfFiles)
{
    take(File);
    EXPECT_TRUE(items.areFiles());
    EXPECT_EQ(items.GetFileNameMNDL(u"http://www.pics.com/a/b.jpeg"_s), u"b.jpg"_s);
    EXPECT_EQ(items.GetFileNameMNDL(u"http://www.pics.com/"_s), QString());
    take(Site);
    EXPECT_FALSE(items.areFiles());
    EXPECT_EQ(items.GetFileNameMNDL(u"http://www.pics.com/a/b.jpeg"_s), QString());
}

TEST_F(ManualItemsTest, AFileIsFetchedAndTold)
{
    take(File);
    server.route("/b.jpg", okReply("picture"));
    EXPECT_EQ(items.NavFileOrSite(0, server.address(u"/b.jpg"_s), false), u"b.jpg"_s);
    EXPECT_TRUE(items.hasArrived());
    EXPECT_EQ(arrived, QStringList{u"b.jpg"_s});
    EXPECT_EQ(content(u"b.jpg"_s), "picture");
    EXPECT_TRUE(window().navigated.isEmpty());
}

TEST_F(ManualItemsTest, AFileThatIsRefusedStillHasItsName)
{
    take(File);
    form.limits.incSFMinGraphicSize.setText(u"000100"_s);
    server.route("/b.jpg", okReply("picture"));
    EXPECT_EQ(items.NavFileOrSite(0, server.address(u"/b.jpg"_s), false), u"b.jpg"_s);
    EXPECT_FALSE(items.hasArrived());
    EXPECT_EQ(items.leastSize(), 100);
    EXPECT_TRUE(arrived.isEmpty());
    EXPECT_EQ(content(u"b.jpg"_s), "(no file)");
}

TEST_F(ManualItemsTest, ASiteIsOpenedUnlessThatIsUnwanted)
{
    take(Site);
    EXPECT_EQ(items.NavFileOrSite(0, u"http://www.tea.com/x.jpg"_s, true), QString());
    EXPECT_TRUE(window().navigated.isEmpty());
    EXPECT_EQ(items.NavFileOrSite(0, u"http://www.tea.com/x.jpg"_s, false), QString());
    EXPECT_EQ(window().navigated, QStringList{u"http://www.tea.com/x.jpg"_s});
}

TEST_F(ManualItemsTest, WhatIsNoFileIsOpenedAsASite)
{
    take(File);
    EXPECT_EQ(items.NavFileOrSite(0, u"http://www.tea.com/"_s, false), QString());
    EXPECT_EQ(window().navigated, QStringList{u"http://www.tea.com/"_s});
}

TEST_F(ManualItemsTest, WithoutAnAddressTheItemInTurnIsMeant)
{
    take(Site);
    constexpr int itemOfList = 1;
    items.NavFileOrSite(itemOfList, {}, false);
    EXPECT_TRUE(window().navigated.isEmpty()) << "an empty list has none";
    form.lists.shown().setItems({u"http://www.tea.com/"_s, u"http://www.milk.com/"_s});
    items.NavFileOrSite(itemOfList, {}, false);
    form.lists.shown().setListIndex(1);
    items.NavFileOrSite(itemOfList, {}, false);
    EXPECT_EQ(window().navigated, (QStringList{u"http://www.tea.com/"_s, u"http://www.milk.com/"_s}));
}
