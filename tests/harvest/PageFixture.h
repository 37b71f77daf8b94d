// What happens to one page: its tests, its text, its rows and files, on the state of the main window.
#pragma once

#include "harvest/PageScreening.h"
#include "support/FormWithDatabase.h"

class PageTest : public FormDatabaseTest
{
  protected:
    PageTest()
    {
        // As a first start has them.
        form.places.txtSFMNDir.setText(folder.path() + QLatin1StringView("/"));
        form.outputs.chkSaveToSS.setValue(1);
        form.options.chkSMD(SMD::UrlWithEmail).setValue(1);
        form.options.chkSMD(SMD::UrlWithPhone).setValue(1);
        QObject::connect(&keeping, &PageKeeping::rowsStored, &form,
                         [this](const QMap<QString, int> &rows) { stored.append(rows); });
    }

    SiteRecords records{log, database, browser};
    SavedUrls savedUrls{context, form.saved, form.options, database, browser, records, navigation};
    PageData pageData{log, form.outputs, form.limits};
    PageFiles pageFiles{log, form.outputs, form.places, pageData};
    Findings findings{log, form.blocking.email, form.areaCodes, form.options};
    ResultWriters writers{log, form.outputs, form.options, database, savedUrls, pageData, findings};
    cTimer timer{pump};
    Runs runs{context, form.runs, form.browser, form.autoRun.cmdANStart, form.manual.cmdMNStart, timer};
    PageKeeping keeping{context, form.options, database, writers, pageFiles, runs, pump};
    PageTests pageTests{log, form.criteria, form.blocking};
    PageScreening screening{context, form.outputs, form.browser.picANEnd, form.limits, pageTests, keeping, runs};
    QList<QMap<QString, int>> stored;
};
