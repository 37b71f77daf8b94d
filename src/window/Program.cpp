#include "window/Program.h"

#include "app/SettingKeys.h"
#include "window/commands/EditFile.h"

using namespace Qt::StringLiterals;

Program::Program(const Ports &ports)
    : log(ports.dialogs, ports.desktop, ports.programFolder), tips(form.options.chkSMV(0)),
      status(form.frame.picStatus, tips), popUps(form.browser, status, ports.menus), timer(ports.pump),
      states(log, form), context{log, status, states, ports.dialogs, ports.settings, tips},
      runs(context, form.runs, form.browser, form.autoRun.cmdANStart, form.manual.cmdMNStart, timer),
      connection(context, form.browser, form.limits, form.options, runs, browser,
                 {ports.pump, ports.desktop, ports.clipboard, ports.place, ports.browsers}),
      navigation(context, form.browser, browser),
      visit(context, navigation, browser, timer, ports.pump, runs, connection), records(log, database, browser),
      links(log, form, browser, records),
      savedUrls(log, form, status, states, ports.settings, database, browser, records, navigation),
      criteria(log, form, status, states, ports.dialogs, database),
      blocking(log, form, status, states, ports.dialogs, ports.settings, database, browser),
      pageData(log, form.outputs, form.limits), pageFiles(log, form.outputs, form.places, pageData),
      findings(log, form.blocking.email, form.areaCodes, form.options),
      writers(log, form.outputs, form.options, database, savedUrls, pageData, findings),
      keeping(context, form.options, database, writers, pageFiles, runs, ports.pump),
      pageTests(log, form.criteria, form.blocking),
      screening(context, form.outputs, form.browser.picANEnd, form.limits, pageTests, keeping, runs),
      errorPages(context, form.limits, form.autoRun, visit),
      siteVisit(context, form.options, runs, visit, errorPages, screening),
      resultPages(context, form.autoRun, form.saved, form.limits, visit, links, savedUrls),
      autoRun(context, form.autoRun, form.options, runs, resultPages, pageTests, siteVisit),
      options(context, form, ports.programFolder), optionReports(context, form), toolTips(context, form),
      areaCodes(log, form.areaCodes), databaseFile(context, form.places, form.import.cboSFITableExisting, database),
      loader(log, databaseFile, options, form.saved, form.criteria, form.blocking),
      lifeCycle({log, form, ports.settings, ports.dialogs, ports.place, timer, runs, browser, database, options, loader,
                 connection}),
      autoTab({log, form, status, states, timer, ports.desktop, savedUrls, blocking, autoRun, connection, lifeCycle}),
      criteriaPanel(form, status, states, criteria),
      manual(context, form, ports.pump, ports.clipboard, database, browser, links),
      transfers([&pump = ports.pump](qint64 milliseconds) { pump.waitForEvents(milliseconds); }), inet(transfers, log),
      downloads(context, form.places, form.limits, form.options, browser, transfers, inet),
      manualItems(context, form.manual, manual.desk, downloads, navigation),
      manualWalk(form.manual, form.series, form.options, form.collect, manual.desk, manual.series, manual.tables),
      autoNavigate(form.menus.mnuPopUpMNStatus.item("mnuMNStatusAutoNavigate"_L1), form.manual, form.limits, runs,
                   manualWalk, siteVisit, manual.links),
      manualRun(context, form.manual, runs, manualWalk, manualItems, autoNavigate, siteVisit),
      collectChoice(context, form.collect, form.menus, form.lists, form.saved, form.options, manual.desk),
      pageCollecting(log, browser, findings, manual.desk),
      autoCollect(context, collectChoice, pageCollecting, manual.feed, savedUrls, links, manual.desk),
      collectCommands(context, form, collectChoice, manual.series, links)
{
    const CheckBox &errorMessages = form.options.chkSMV(SMV::ErrorMessages);
    log.ToggleErrMsg(ports.settings.GetSetting(Sections::Main, Keys::ErrorMessages, u"0"_s) == "1"_L1);
    QObject::connect(&errorMessages, &CheckBox::Click, &log, [&] { log.ToggleErrMsg(errorMessages.value() == 1); });
    areaCodes.LoadStates();
    connectDatabase();
    connectManual(ports.desktop, ports.side);
    connectManualRun();
    connectCollecting();
    QObject::connect(&log, &ErrorLog::endRequested, &lifeCycle, &LifeCycle::endWithoutSaving);
    QObject::connect(&log, &ErrorLog::failed, &form, [this] {
        for (Control *control : form.findChildren<Control *>(Qt::FindDirectChildrenOnly))
            control->setEnabled(true);
    });
    QObject::connect(&runs, &Runs::finalized, &lifeCycle, &LifeCycle::runEnded);
}

/// Who reads what from a database that has been opened, in the order in which one thing depends on another.
void Program::connectDatabase()
{
    QObject::connect(&databaseFile, &DatabaseFile::unloadRequested, &lifeCycle, &LifeCycle::end);
    QObject::connect(&loader, &DatabaseLoader::listsWanted, &form, [this] {
        criteria.LoadMCMNC();
        blocking.LoadBlocked();
        manual.takeDatabase();
    });
    QObject::connect(&loader, &DatabaseLoader::addressesWanted, &form,
                     [this] { savedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl); });
}

void Program::connectManual(Desktop &desktop, SideWindows &side)
{
    manual.connectTo(states);
    QObject::connect(&manual.tab, &ManualTab::menuWanted, &form, [this](Menu &menu) { popUps.ShowPopUp(menu); });
    QObject::connect(&manual.tab, &ManualTab::openWanted, &form,
                     [this](const QString &url) { navigation.OpenSite(url); });
    const auto navigate = [this](int mode) { manualItems.NavFileOrSite(mode, {}, false); };
    QObject::connect(&manual.edit, &ManualEdit::navigateWanted, &form, navigate);
    QObject::connect(&manual.statusCommands, &ManualStatusCommands::navigateWanted, &form, navigate);
    QObject::connect(&manual.edit, &ManualEdit::editWanted, &form, [this, &desktop](const QString &text) {
        WriteEditFile(text, form.places.txtSFEditor.text(), desktop);
    });
    const auto magnify = [&side](const QString &text) { side.magnify(text); };
    QObject::connect(&manual.edit, &ManualEdit::magnifyWanted, &form, magnify);
    QObject::connect(&manual.statusCommands, &ManualStatusCommands::magnifyWanted, &form, magnify);
    QObject::connect(&lifeCycle, &LifeCycle::ended, &manual.work, &LongWork::cancel);
}

void Program::connectManualRun()
{
    QObject::connect(&form.manual.cmdMNStart, &Button::Click, &form, [this] { manualRun.cmdMNStart_Click(); });
    QObject::connect(&inet, &cInetWS::InetStatus, &form,
                     [this](int state) { status.UpDateStatus(inetStateText(state)); });
    QObject::connect(&runs, &Runs::stopping, &downloads, &Downloads::cancel);
}

/// An Auto run takes no part in series, nor in collecting into the Saved Urls.
void Program::connectCollecting()
{
    QObject::connect(&runs, &Runs::starting, &form, [this](Runs::Kind kind) {
        if (kind != Runs::Kind::Auto)
            return;
        if (const int position = manual.desk.GetAutoIncrChecked(); position > 0)
            manual.series.SetAutoIncrPos(position);
        collectChoice.DisableANAutoC(false);
    });
    QObject::connect(&browser, &BrowserHolder::DocumentComplete, &form, [this] { autoCollect.DocumentComplete(); });
    QObject::connect(&manual.series, &AutoIncr::baseSwitchedOff, &collectChoice,
                     [this] { collectChoice.SetAutoCollectState(CollectState::Kind::EmailPhone, true); });
    QObject::connect(&collectChoice, &CollectChoice::coloursAsked, &manual.series, &AutoIncr::coloursAsked);
}
