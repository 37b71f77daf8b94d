// A series of downloads that is stopped, and gone on with in the program's next session.
#include "support/ProgramFixture.h"
#include "transfer/RawServer.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {
constexpr int numberOfFile = 6; // behind those of the loopback address
constexpr int files = 0;

class SeriesSessions : public ProgramTest
{
  protected:
    SeriesSessions()
    {
        for (int number = 1; number <= 15; ++number)
            server.route(path(number).toLatin1(), okReply("picture " + QByteArray::number(number)));
    }
    [[nodiscard]] static QString path(int number) { return u"/a.com/p-%1.jpg"_s.arg(number); }
    /// One session: the series at `address`, which the command line sets as it was given, stopped behind a count of
    /// files. The address that it came to.
    QString session(const QString &address, int count)
    {
        program.reset();
        load();
        form().places.txtSFMNDir.setText(pictures.path() + u'/');
        form().manual.cboFilesSites.setListIndex(files);
        form().manual.incMNDLTiming.setText(u"005"_s);
        form().options.chkSMD(SMD::SaveAutoTextOnStop).setValue(1);
        form().frame.sstSearch.setTab(Tab::Manual);
        form().mbFormReady = false;
        form().series.cboMNAutoUrl.setText(address);
        form().mbFormReady = true;
        program->manual.series.SetAutoIncrPos(numberOfFile);
        int come = 0;
        QObject::connect(&program->downloads, &Downloads::fetched, &form(), [&] {
            if (++come == count)
                pump.after(1000, [this] { form().manual.cmdMNStart.click(); });
        });
        form().manual.cmdMNStart.click();
        EXPECT_EQ(come, count);
        EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
        return form().series.cboMNAutoUrl.text();
    }

    RawServer server;
    QTemporaryDir pictures;
};
} // namespace

TEST_F(SeriesSessions, TheFileAtWhichOneWasStoppedIsNotKeptTwiceByTheNext)
{
    const QString withoutProtocol = server.address(path(1)).sliced(u"http://"_s.size());
    for (const QString &first : {server.address(path(1)), withoutProtocol}) {
        const QString reached = session(first, 3);
        EXPECT_TRUE(reached.endsWith(path(3))) << reached.toStdString();
        session(reached, 3);
        const QDir kept(pictures.path());
        EXPECT_EQ(kept.entryList(QDir::Files, QDir::Name),
                  (QStringList{u"p-1.jpg"_s, u"p-2.jpg"_s, u"p-3.jpg"_s, u"p-4.jpg"_s, u"p-5.jpg"_s}))
            << first.toStdString();
        for (const QString &name : kept.entryList(QDir::Files))
            EXPECT_TRUE(QFile::remove(kept.filePath(name)));
    }
}
