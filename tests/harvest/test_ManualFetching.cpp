// The Manual run over a list and over a series of files, from a real server: what lies in the folder, what the server
// gets of the browser, stops, and where Go resumes.
#include "ManualRunFixture.h"
#include "transfer/RawServer.h"

#include <QDir>
#include <QThread>
#include <QUrl>

namespace {
class Fetching : public ManualRunTest
{
  protected:
    Fetching()
    {
        form.manual.cboFilesSites.setListIndex(File);
        QObject::connect(&downloads, &Downloads::fetched, &form,
                         [this](const Downloads::Fetched &file) { files.append(file); });
    }
    /// Only what says something of items and ends; states of a transfer are between them.
    [[nodiscard]] QStringList told() const
    {
        QStringList all;
        for (const QString &text : statuses) {
            if (text.contains(u'/') || text.startsWith("Size"_L1) || text.startsWith("Stopped"_L1))
                all.append(text);
        }
        return all;
    }

    RawServer server;
    QList<Downloads::Fetched> files;
};
} // namespace

TEST_F(Fetching, FilesOfAListLieInTheFolderByteForByte)
{
    server.route("/a.jpg", okReply("first\r\n\x00\xff"_ba));
    server.route("/b.jpeg", okReply("second"_ba));
    fill({server.address(u"/a.jpg"_s), server.address(u"/b.jpeg"_s)});
    clickGo();
    EXPECT_EQ(content(u"a.jpg"_s), "first\r\n\x00\xff"_ba);
    EXPECT_EQ(content(u"b.jpg"_s), "second");
    EXPECT_EQ(told(), (QStringList{u"1/1 a.jpg"_s, u"2/1 b.jpg"_s, u"Stopped (FINISHED)"_s}));
    ASSERT_EQ(files.size(), 2);
    EXPECT_EQ(files[0].size, 9);
    EXPECT_TRUE(window().navigated.isEmpty());
    EXPECT_TRUE(statuses.contains(u"Connecting..."_s));
}

TEST_F(Fetching, ATakenNameGetsANumberAndNothingIsOverwritten)
{
    server.route("/a.jpg", okReply("new"_ba));
    QFile old(folder.filePath(u"a.jpg"_s));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    fill({server.address(u"/a.jpg"_s)});
    clickGo();
    EXPECT_EQ(content(u"a.jpg"_s), "old");
    EXPECT_EQ(content(files.value(0).name), "new");
    EXPECT_TRUE(files.value(0).name.startsWith("a-"_L1)) << files.value(0).name.toStdString();
}

TEST_F(Fetching, AFileThatIsTooSmallIsToldAndNotLeftBehind)
{
    form.limits.incSFMinGraphicSize.setText(u"000100"_s);
    server.route("/a.jpg", okReply("small"_ba));
    fill({server.address(u"/a.jpg"_s)});
    clickGo();
    EXPECT_EQ(told(), (QStringList{u"Size < 100"_s, u"Stopped (FINISHED)"_s}));
    EXPECT_FALSE(QFile::exists(folder.filePath(u"a.jpg"_s)));
    ASSERT_EQ(files.size(), 1);
    EXPECT_FALSE(files[0].refusal.isEmpty());
}

TEST_F(Fetching, WhatIsNoFileIsPassedOver)
{
    fill({server.address(u"/page"_s), u"http://www.site1.com/"_s});
    clickGo();
    EXPECT_EQ(told(), QStringList{u"Stopped (FINISHED)"_s});
    EXPECT_TRUE(files.isEmpty());
    EXPECT_TRUE(window().navigated.isEmpty());
}

TEST_F(Fetching, TheFirstWaySpeaksForTheBrowser)
{
    server.route("/a.jpg", okReply("x"_ba + "yz"_ba));
    const QString address = server.address(u"/a.jpg"_s);
    window().cookies[address] = u"visitor=7"_s;
    window().agent = u"Fake/2.0"_s;
    fill({address});
    clickGo();
    ASSERT_EQ(server.requests.size(), 1);
    EXPECT_EQ(server.requests[0].header("Cookie"), "visitor=7");
    EXPECT_EQ(server.requests[0].header("User-Agent"), "Fake/2.0");
    EXPECT_EQ(server.requests[0].header("Referer"), "http://www.start.com/");
}

TEST_F(Fetching, TheFileOnShowIsNotThePageThatTheNextOneIsAskedFrom)
{
    server.route("/a.jpg", okReply("xyz"_ba));
    server.route("/b.jpg", okReply("xyz"_ba));
    QObject::connect(&downloads, &Downloads::fetched, &form, [this] { window().show(u"file:///tmp/a.jpg"_s); });
    fill({server.address(u"/a.jpg"_s), server.address(u"/b.jpg"_s)});
    clickGo();
    ASSERT_EQ(server.requests.size(), 2);
    EXPECT_EQ(server.requests[1].header("Referer"), "http://www.start.com/");
}

TEST_F(Fetching, CookiesAreFoundForAnAddressWithoutProtocol)
{
    server.route("/a.com/p-9.jpg", okReply("xyz"_ba));
    const QString address = server.address(u"/a.com/p-9.jpg"_s);
    window().cookies[address] = u"visitor=7"_s;
    fill({address.sliced(u"http://"_s.size())});
    clickGo();
    ASSERT_EQ(server.requests.size(), 1);
    EXPECT_EQ(server.requests[0].header("Cookie"), "visitor=7");
}

namespace {
class FetchingWithCookies : public Fetching
{
  protected:
    /// The values that the server gets with the files. `then` is called behind each.
    std::string sentFor(
        const QStringList &addresses, const std::function<void()> &then = [] {})
    {
        for (const QString &address : addresses)
            server.route(QUrl(address).toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority), okReply("xyz"_ba));
        QObject::connect(&downloads, &Downloads::fetched, &form, then);
        fill(addresses);
        clickGo();
        QByteArrayList sent;
        for (const RawRequest &request : server.requests)
            sent.append(request.header("Cookie"));
        return sent.join(" | ").toStdString();
    }
    /// The browser has the same cookies for a folder and for the files in it.
    void give(const QString &path, const QStringList &names, const QString &cookies)
    {
        window().cookies[server.address(path)] = cookies;
        for (const QString &name : names)
            window().cookies[server.address(path + name)] = cookies;
    }
};
} // namespace

TEST_F(FetchingWithCookies, FilesOfAFolderThatFollowAtOnceShareThem)
{
    const auto giveAll = [this](const QString &cookies) {
        give(u"/a/"_s, {u"1.jpg"_s, u"2.jpg"_s, u"3.jpg"_s}, cookies);
        give(u"/b/"_s, {u"4.jpg"_s, u"5.jpg"_s}, cookies);
    };
    giveAll(u"n=0"_s);
    const std::string sent =
        sentFor({server.address(u"/a/1.jpg"_s), server.address(u"/a/2.jpg"_s), server.address(u"/a/3.jpg"_s),
                 server.address(u"/b/4.jpg"_s), server.address(u"/b/5.jpg"_s)},
                [&] {
                    giveAll(u"n=%1"_s.arg(files.size()));
                    if (files.size() == 2)
                        QThread::msleep(1100);
                    if (files.size() == 4)
                        window().show(u"http://www.site1.com/"_s);
                });
    EXPECT_EQ(sent, "n=0 | n=0 | n=2 | n=3 | n=4")
        << "asked for anew after a second, for another folder, and with another page on show";
}

TEST_F(FetchingWithCookies, NoServerGetsThoseOfAnother)
{
    // Without a path all that stands in front of the last "/" is the protocol.
    for (const QString &query : {u"?x=1.jpg"_s, u"/?x=1.jpg"_s}) {
        server.requests.clear();
        const QString one = server.address({}) + query;
        const QString other = server.address({}, u"localhost"_s) + query;
        for (const QString &address : {one, server.address(u"/"_s), server.address(u"/?x=1.jpg"_s)})
            window().cookies[address] = u"secret=1"_s;
        EXPECT_EQ(sentFor({one, other}), "secret=1 | ") << query.toStdString();
    }
}

TEST_F(FetchingWithCookies, AFileKeepsItsOwnForItself)
{
    give(u"/a/"_s, {u"1.jpg"_s, u"2.jpg"_s}, u"all=1"_s);
    const QString one = server.address(u"/a/1.jpg"_s);
    window().cookies[one] = u"own=1; all=1"_s;
    EXPECT_EQ(sentFor({one, server.address(u"/a/2.jpg"_s)}), "own=1; all=1 | all=1");
}

TEST_F(FetchingWithCookies, NeitherTheyNorThePageAreThoseOfABrowserBefore)
{
    give(u"/a/"_s, {u"1.jpg"_s, u"2.jpg"_s}, u"of=first"_s);
    const QString file = u"file:///tmp/1.jpg"_s;
    const std::string sent = sentFor({server.address(u"/a/1.jpg"_s), server.address(u"/a/2.jpg"_s)}, [&] {
        connectBrowser(std::make_shared<FakeBrowser>(pump));
        window().show(file);
    });
    EXPECT_EQ(sent, "of=first | ");
    EXPECT_EQ(server.requests.at(0).header("Referer"), "http://www.start.com/");
    EXPECT_EQ(server.requests.at(1).header("Referer"), "");
}

TEST_F(Fetching, SwitchedOffItDoesNot)
{
    form.options.chkSMA(SMA::DownloadAsBrowser).setValue(0);
    server.route("/a.jpg", okReply("xyz"_ba));
    window().cookies[server.address(u"/a.jpg"_s)] = u"visitor=7"_s;
    fill({server.address(u"/a.jpg"_s)});
    clickGo();
    ASSERT_EQ(server.requests.size(), 1);
    EXPECT_EQ(server.requests[0].header("Cookie"), "");
    EXPECT_EQ(server.requests[0].header("Referer"), "");
}

TEST_F(Fetching, TheSecondWayTakesAnEmptyAnswerAsAFile)
{
    form.options.chkSMA(SMA::DownloadByFtp).setValue(1);
    server.route("/a.jpg", okReply({}));
    fill({server.address(u"/a.jpg"_s)});
    clickGo();
    EXPECT_TRUE(QFile::exists(folder.filePath(u"a.jpg"_s)));
}

TEST_F(Fetching, TheWaitBehindAFileIsItsOwn)
{
    form.manual.incMNDLTiming.setText(u"002"_s);
    server.route("/a.jpg", okReply("xyz"_ba));
    fill({server.address(u"/a.jpg"_s), server.address(u"/a.jpg"_s)});
    qint64 shown = 0;
    QObject::connect(&timer, &cTimer::TimeCount, &form, [&](qint64 count) { shown = count; });
    clickGo();
    EXPECT_EQ(shown, 2);
}

TEST_F(Fetching, XInTheMiddleOfADownloadEndsItAndLeavesNoFile)
{
    RawReply slow = okReply(QByteArray(100'000, 'x'));
    slow.piece = 1000;
    slow.pause = 20;
    server.route("/a.jpg", slow);
    fill({server.address(u"/a.jpg"_s), server.address(u"/a.jpg"_s)});
    QObject::connect(&inet, &cInetWS::InetStatus, &form, [this](int state) {
        if (state == static_cast<int>(InetState::ReceivingResponse))
            pump.after(0, [this] { clickX(); });
    });
    clickGo();
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_FALSE(QFile::exists(folder.filePath(u"a.jpg"_s)));
    EXPECT_EQ(list().listIndex(), 0);
}

TEST_F(Fetching, ADownloadSeriesTakesEveryNumber)
{
    for (int number = 1; number <= 9; ++number)
        server.route("/a.com/p-" + QByteArray::number(number) + ".jpg",
                     okReply("picture "_ba + QByteArray::number(number)));
    // An address of numbers with a port is a link by the name in its path alone; five numbers stand in front.
    setSeries(server.address(u"/a.com/p-1.jpg"_s), 6);
    clickGo();
    for (int number = 1; number <= 9; ++number)
        EXPECT_EQ(content(u"p-%1.jpg"_s.arg(number)), "picture "_ba + QByteArray::number(number));
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(Fetching, XInTheMessageThatEndsAutoNavigateFetchesNothing)
{
    setSeries(server.address(u"/a.com/p-1.jpg"_s), 6);
    QObject::connect(&runs, &Runs::progress, &form, [this] { item(u"mnuMNStatusAutoNavigate"_s).setChecked(true); });
    pump.after(second, [&] { clickX(); });
    clickGo();
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_TRUE(server.requests.isEmpty());
}

namespace {
class FetchingAgain : public Fetching
{
  protected:
    /// Fetches pictures with X in the pause behind the third one, and Go again: nine more numbers from there.
    void stopAndResume()
    {
        for (int number = 1; number <= 11; ++number)
            server.route(path(number), okReply(picture(number)));
        form.manual.incMNDLTiming.setText(u"005"_s);
        setSeries(server.address(QString::fromLatin1(path(1))), 6);
        QObject::connect(&downloads, &Downloads::fetched, &form, [this] {
            if (files.size() == 3)
                pump.after(second, [this] { clickX(); });
        });
        clickGo();
        EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
        ASSERT_EQ(files.size(), 3);
        changeBetween();
        clickGo();
        EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
    }
    [[nodiscard]] QStringList namesInFolder() const
    {
        return QDir(folder.path()).entryList({u"p-*.jpg"_s}, QDir::Files, QDir::Name);
    }
    [[nodiscard]] static QByteArray path(int number) { return "/a.com/p-" + QByteArray::number(number) + ".jpg"; }
    [[nodiscard]] static QByteArray picture(int number) { return "picture " + QByteArray::number(number); }

    std::function<void()> changeBetween = [] {};
};
} // namespace

TEST_F(FetchingAgain, EveryPictureOfAStoppedSeriesLiesThereOnceUnderItsOwnName)
{
    stopAndResume();
    EXPECT_EQ(server.requests.size(), 12) << "the third one is asked for again";
    EXPECT_EQ(namesInFolder().size(), 11);
    for (int number = 1; number <= 11; ++number)
        EXPECT_EQ(content(u"p-%1.jpg"_s.arg(number)), picture(number));
    ASSERT_EQ(files.size(), 12);
    EXPECT_EQ(files[3].name, u"p-3.jpg"_s);
    EXPECT_TRUE(told().contains(u"4/8 p-3.jpg"_s)) << told().join(u'|').toStdString();
}

TEST_F(FetchingAgain, APictureThatIsAnotherOneByNowIsKeptBeside)
{
    changeBetween = [this] { server.route(path(3), okReply("another"_ba)); };
    stopAndResume();
    EXPECT_EQ(namesInFolder().size(), 12);
    EXPECT_EQ(content(u"p-3.jpg"_s), picture(3));
    EXPECT_EQ(content(u"p-4.jpg"_s), "another");
}

TEST_F(FetchingAgain, APictureThatHasBeenTakenAwayComesBack)
{
    changeBetween = [this] { ASSERT_TRUE(QFile::remove(folder.filePath(u"p-3.jpg"_s))); };
    stopAndResume();
    EXPECT_EQ(namesInFolder().size(), 11);
    EXPECT_EQ(content(u"p-3.jpg"_s), picture(3));
}

TEST_F(Fetching, TheSameAddressTwiceInAListGivesTwoFiles)
{
    server.route("/a.jpg", okReply("xyz"_ba));
    fill({server.address(u"/a.jpg"_s), server.address(u"/a.jpg"_s)});
    clickGo();
    ASSERT_EQ(files.size(), 2);
    EXPECT_NE(files[0].name, files[1].name);
}
