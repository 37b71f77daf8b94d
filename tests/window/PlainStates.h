// The rules about controls as one long procedure, told step by step in the order in which they are written down. Slow
// and plain: what the tables of the program are compared with. It works on a form of its own, to which nothing listens.
#pragma once

#include "app/frmSearch.h"
#include "pages/EmailFinder.h"
#include "util/Incr.h"

class PlainStates
{
  public:
    explicit PlainStates(frmSearch &form) : f(form) {}

    /// Once more for what a value that was set back changes about the steps before it.
    void SetStateOfControls()
    {
        once();
        once();
    }

  private:
    using Names = std::initializer_list<const char *>;

    void enable(Names names, bool enabled)
    {
        for (const char *name : names) {
            Control *control = f.control(QString::fromLatin1(name));
            if (!control)
                throw std::logic_error(name);
            control->setEnabled(enabled);
        }
    }
    static bool keeps(const QString &name)
    {
        for (const char *prefix : {"mnu", "pop", "lst", "pic", "lbl", "sst", "lin", "lab", "inc"}) {
            if (name.startsWith(QLatin1StringView(prefix)))
                return true;
        }
        for (const char *array : {"chkSMA(", "chkSMD(", "chkSMV("}) {
            if (name.startsWith(QLatin1StringView(array)))
                return true;
        }
        for (const char *kept :
             {"cboDBFields", "cboDBPlace", "chkDBCard", "crdDBRow", "fxgTrawlex", "cboANWBSelect", "chkPutInOneFile",
              "chkSFIAllSettings", "txtSBStateACs", "chkSFIAllData", "chkSFIImportTable", "chkSFIImportField"}) {
            if (name == QLatin1StringView(kept))
                return true;
        }
        return false;
    }

    void once()
    {
        if (!f.mbFormReady)
            return;
        enable({"lblAutoIncrPos", "lblAutoPgUrls", "lblAutoCollect", "incMNAutoUrl", "incMNStep"}, false);
        for (Control *control : f.findChildren<Control *>(Qt::FindDirectChildrenOnly)) {
            if (!keeps(control->name()))
                control->setEnabled(false);
        }
        if (!f.browser.mbInitialized)
            return enable({"cmdANInitialize"}, true);
        idle = !f.runs.mbANRunning && !f.runs.mbMNRunning;
        anyTab();
        withoutOutput();
        if (f.frame.sstSearch.tab() == 0)
            autoTab();
        if (f.frame.sstSearch.tab() == 2)
            settingsTab();
        enable({"chkSaveEmail"}, idle);
        if (f.frame.sstSearch.tab() == 1)
            manualTab();
        if (f.frame.sstSearch.tab() == 2)
            settingsPages();
        if (f.frame.sstSearch.tab() == 3)
            enable({"cboDBTables", "txtDBQuery"}, true);
    }

    void anyTab()
    {
        Label &timer = f.browser.lblTrawlexTimer;
        enable({"cmdANInitialize"}, false);
        if (f.runs.mbANRunning) {
            timer.setBackColor(255);
            timer.setForeColor(Colours::White);
        } else if (f.runs.mbMNRunning) {
            timer.setBackColor(rgb(0, 0, 255));
            timer.setForeColor(Colours::White);
        } else {
            timer.setBackColor(Colours::ButtonFace);
            timer.setForeColor(Colours::WindowText);
        }
        enable({"cmdANStart"}, !f.runs.mbMNRunning);
        if (f.runs.mbANRunning)
            enable({"cmdMNStart"}, false);
        enable({"lblAutoIncrPos", "lblAutoPgUrls", "lblAutoCollect", "mnuPopUpPassUrls", "chkSMA(3)", "cboANList"},
               idle);
    }

    void withoutOutput()
    {
        bool chosen = false;
        for (const CheckBox *box : {&f.outputs.chkSaveSummary, &f.outputs.chkSavePages, &f.outputs.chkSaveUrl,
                                    &f.outputs.chkSaveEmail, &f.outputs.chkSavePhone, &f.outputs.chkMCMNCStop})
            chosen = chosen || box->value() != 0;
        if (!chosen) {
            f.criteria.mustContain.on.setValue(0);
            f.criteria.mustContain.caseSensitive.setValue(0);
            f.criteria.mustNotContain.on.setValue(0);
            f.criteria.mustNotContain.caseSensitive.setValue(0);
            enable({"chkMustContain", "chkMustNotContain"}, false);
        } else {
            enable({"chkMustContain", "chkMustNotContain"}, true);
        }
    }

    void blocking()
    {
        if (f.blocking.email.items.listCount() > 0) {
            enable({"chkEmailBlocking"}, f.outputs.chkSaveEmail.value() == 1 && idle);
        } else {
            f.blocking.email.on.setValue(0);
            enable({"chkEmailBlocking"}, false);
        }
        if (f.blocking.urls.items.listCount() > 0) {
            enable({"chkUrlBlocking"}, idle);
        } else {
            f.blocking.urls.on.setValue(0);
            enable({"chkUrlBlocking"}, false);
        }
    }

    void criteria()
    {
        ComboBox &sets = f.criteria.cboANMCMNCMask;
        if (f.criteria.mustContain.on.value() == 1 || f.criteria.mustNotContain.on.value() == 1) {
            enable({"cmdANMCMaskAdd"}, true);
            enable({"cboANMCMNCMask"}, sets.listCount() > 0);
            enable({"cmdANMCMaskMinus"}, sets.listCount() > 0 && sets.listIndex() >= 0);
        } else {
            enable({"cmdANMCMaskAdd", "cmdANMCMaskMinus", "cboANMCMNCMask"}, false);
        }
        const Names contain{"lstANMC", "cmdANAddMC", "lstANMCAllAny", "chkMCCS"};
        const Names notContain{"lstANMNC", "cmdANAddMNC", "lstANMNCAllAny", "chkMNCCS"};
        enable(contain, sets.listIndex() >= 0 && f.criteria.mustContain.on.value() == 1);
        enable(notContain, sets.listIndex() >= 0 && f.criteria.mustNotContain.on.value() == 1);
    }

    void saving()
    {
        enable({"chkSavePhone", "chkSaveSummary", "lblAutoPgUrls"}, idle);
        if (!idle)
            return enable({"chkMCMNCStop", "chkSavePages", "txtANStartTag", "txtANStopTag", "cboANSaveType"}, false);
        for (Label *lamp :
             {&f.outputs.lblUrlSaved, &f.outputs.lblSummarySaved, &f.outputs.lblEmailSaved, &f.outputs.lblPageSaved,
              &f.outputs.lblPhoneSaved, &f.criteria.mustContain.lamp, &f.criteria.mustNotContain.lamp})
            lamp->setBackColor(Colours::ButtonFace);
        if (f.saved.mbPassUrlsLoaded) {
            f.outputs.chkSaveUrl.setValue(0);
            enable({"chkSaveUrl"}, false);
        } else {
            enable({"chkSaveUrl"}, true);
        }
        enable({"chkSavePages", "chkMCMNCStop"}, true);
        enable({"txtANStartTag", "txtANStopTag", "cboANSaveType"}, f.outputs.chkSavePages.value() == 1);
    }

    void savedUrls()
    {
        const Names four{"cboANSavedUrls", "cmdANSavedAdd", "cmdANSavedMinus", "cmdANSavedGo"};
        if (!idle) {
            enable({"chkUseSavedUrls"}, false);
            return enable(four, false);
        }
        if (f.saved.cboANSavedUrls.listCount() > 0) {
            enable({"chkUseSavedUrls"}, true);
            if (f.saved.chkUseSavedUrls.value() == 1)
                return enable(four, false);
            enable({"cmdANSavedAdd"}, !f.saved.mbPassUrlsLoaded);
            enable({"cboANSavedUrls"}, true);
            enable({"cmdANSavedMinus", "cmdANSavedGo"}, f.saved.cboANSavedUrls.listIndex() >= 0);
        } else {
            enable({"cboANSavedUrls", "cmdANSavedMinus", "cmdANSavedGo"}, false);
            f.saved.chkUseSavedUrls.setValue(0);
            enable({"chkUseSavedUrls"}, false);
            enable({"cmdANSavedAdd"}, !f.saved.mbPassUrlsLoaded);
        }
    }

    void autoTab()
    {
        enable({"lblAutoCollect"}, true);
        blocking();
        criteria();
        saving();
        savedUrls();
    }

    void settingsTab()
    {
        if (idle)
            enable({"txtSBSelAreaCodes", "cboSBSelectState"}, true);
        enable({"cmdBlockedEC(0)", "cmdBlockedUrlC(0)"}, true);
        if (f.blocking.email.items.listCount() > 0)
            enable({"cmdBlockedEC(1)"}, true);
        if (f.blocking.urls.items.listCount() > 0)
            enable({"cmdBlockedUrlC(1)"}, true);
    }

    void manualTab()
    {
        enable({"cboMNMCMNCFilter", "cboMNList", "cboMNMCMNC"}, true);
        enable({"mnuMNLoadIEUrlFilters"}, idle);
        if (f.manual.cboFilesSites.listIndex() == 0)
            enable({"chkMNUseFotoBrwse"}, true);
        if (f.runs.mbMNRunning && f.menus.mnuPopUpMNStatus.item("mnuMNStatusAutoNavigate").isChecked())
            enable({"cboMNList"}, false);
        bool counted = false;
        for (int i = 1; i <= 9; ++i)
            counted =
                counted || f.menus.mnuPopUpMNStatus.item(QLatin1StringView("mnuMNStatusAutoIncrPos"), i).isChecked();
        const QString url = f.series.cboMNAutoUrl.text();
        const bool valid = cIEText::IsThisEmailOrLink(url, true) == cIEText::TextKind::Link &&
                           cUtility::Incr(url, 2, false, 1, u"", u"1", u"", true).toInt() > 0;
        enable({"incMNAutoUrl", "incMNStep"}, !counted && valid && !f.runs.mbMNRunning);
        const bool runningListActive =
            f.runs.mbMNRunning && f.manual.mintMNRunningList == f.lists.cboMNList.listIndex();
        if (f.lists.shown().listCount() == 0) {
            enable({"cboFilesSites", "chkSMOpenDownloadedGraphics", "chkMNUseFotoBrwse"}, false);
            f.manual.chkSMOpenDownloadedGraphics.setValue(0);
            f.manual.chkMNUseFotoBrwse.setValue(0);
            enable({"cmdMNStart"}, idle || runningListActive);
        } else {
            const bool files = f.manual.cboFilesSites.listIndex() == 0;
            enable({"chkSMOpenDownloadedGraphics", "chkMNUseFotoBrwse"}, files);
            if (!files) {
                f.manual.chkSMOpenDownloadedGraphics.setValue(0);
                f.manual.chkMNUseFotoBrwse.setValue(0);
            }
            enable({"cmdMNStart"}, !f.runs.mbANRunning && !(f.runs.mbMNRunning && !runningListActive));
            enable({"cboFilesSites"}, idle);
        }
        enable({"cboMNAutoUrl"}, !f.runs.mbMNRunning);
    }

    void settingsPages()
    {
        if (f.frame.sstSettings.tab() == 1 && f.frame.sstFiles.tab() == 0)
            enable({"txtSFDBFile", "cmdSFAutoDBFile", "cmdSFDBFileBrowse", "txtSFDBDir", "cmdSFDBDirBrowse",
                    "txtSFMNDir", "cmdSFMNDirBrowse", "cmdSFEditorSel", "txtSFEditor"},
                   idle);
        if (f.frame.sstSettings.tab() == 1 && f.frame.sstFiles.tab() == 1)
            importPage();
        if (f.frame.sstSettings.tab() == 2 && f.frame.sstMiscOptions.tab() == 1) {
            enable({"chkSaveToFile", "chkSaveToSS"}, idle);
            enable({"chkPutInOneFile"}, idle && f.outputs.chkSaveToFile.value() == 1);
        }
    }

    void importPage()
    {
        const Names combos{"cboSFITableExisting", "cboSFIFieldExisting", "cboSFITableIn", "cboSFIFieldIn"};
        enable({"cmdSFISelDatabase"}, idle);
        if (!idle) {
            enable({"cmdSFIImport"}, false);
            return enable(combos, false);
        }
        const ImportPage &page = f.import;
        if (page.chkSFIAllSettings.value() != 0 || page.chkSFIAllData.value() != 0) {
            enable({"cmdSFIImport"}, !page.lblSFIImportDatabase.caption().isEmpty());
            return enable(combos, false);
        }
        if (page.chkSFIImportTable.value() == 1)
            enable({"cmdSFIImport"}, !page.cboSFITableIn.text().isEmpty());
        if (page.chkSFIImportField.value() == 1)
            enable({"cmdSFIImport"}, !page.cboSFITableIn.text().isEmpty() && !page.cboSFIFieldIn.text().isEmpty() &&
                                         !page.cboSFITableExisting.text().isEmpty() &&
                                         !page.cboSFIFieldExisting.text().isEmpty());
        for (const char *name : combos) {
            const auto *combo = qobject_cast<ComboBox *>(f.control(QString::fromLatin1(name)));
            enable({name}, combo->listCount() > 0);
        }
    }

    frmSearch &f;
    bool idle = true;
};
