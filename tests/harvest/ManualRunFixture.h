// A Manual run with all that it walks with, over made-up browser and database.
#pragma once

#include "WalkFixture.h"
#include "harvest/ManualRun.h"

#include <QFile>

using namespace Qt::StringLiterals;

class ManualRunTest : public WalkTest
{
  protected:
    static constexpr qint64 second = 1000;
    enum What { File = 0, Site = 1 };

    ManualRunTest()
    {
        QObject::connect(&form.manual.cmdMNStart, &Button::Click, &form, [this] { manualRun.cmdMNStart_Click(); });
        QObject::connect(&runs, &Runs::stopping, &downloads, &Downloads::cancel);
        QObject::connect(&inet, &cInetWS::InetStatus, &form,
                         [this](int state) { status.UpDateStatus(inetStateText(state)); });
        form.frame.sstSearch.setTab(Tab::Manual);
        form.manual.cboFilesSites.setListIndex(Site);
        form.manual.incMNTiming.setText(u"005"_s);
        form.manual.incMNDLTiming.setText(u"000"_s);
        form.series.incMNStep.setText(u"001"_s);
        form.places.txtSFMNDir.setText(folder.path() + u'/');
        form.options.chkSMD(SMD::UniqueInSummary).setValue(0);
        form.options.chkSMA(SMA::DownloadAsBrowser).setValue(1);
        window().show(u"http://www.start.com/"_s);
        statuses.clear();
    }
    [[nodiscard]] ListBox &list() { return form.lists.shown(); }
    void fill(const QStringList &items) { list().setItems(items); }
    /// The address in the box, with that number as the one that changes.
    void setSeries(const QString &address, int position = 1)
    {
        form.series.cboMNAutoUrl.setText(address);
        series.SetAutoIncrPos(position);
        ASSERT_EQ(desk.GetAutoIncrChecked(), position);
        statuses.clear();
    }
    void clickGo() { form.manual.cmdMNStart.click(); }
    void clickX() { form.manual.cmdMNStart.click(); }
    [[nodiscard]] MenuItem &item(const QString &name) { return *qobject_cast<MenuItem *>(form.control(name)); }
    [[nodiscard]] QByteArray content(const QString &name)
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    ManualDesk desk{form, status};
    ManualTables tables{log, database, work};
    AutoText texts{context, form.series, desk, database};
    AutoIncr series{context, form, desk, texts};
    DiscoveredLinks discovered{log, form.urlFilter, form.blocking, form.options, browser, records, resultLinks};
    Transfers transfers{[this](qint64 milliseconds) { pump.waitForEvents(milliseconds); }};
    cInetWS inet{transfers, log};
    Downloads downloads{context, form.places, form.limits, form.options, browser, transfers, inet};
    ManualItems manualItems{context, form.manual, desk, downloads, navigation};
    ManualWalk walk{form.manual, form.series, form.options, form.collect, desk, series, tables};
    AutoNavigate autoNavigate{
        item(u"mnuMNStatusAutoNavigate"_s), form.manual, form.limits, runs, walk, siteVisit, discovered};
    ManualRun manualRun{context, form.manual, runs, walk, manualItems, autoNavigate, siteVisit};
};
