#include "window/Program.h"

#include "app/SettingKeys.h"
#include "window/WindowPlaces.h"
#include "window/commands/EditFile.h"

using namespace Qt::StringLiterals;

Program::Program(const Ports &ports)
    : log(ports.system.dialogs, ports.system.desktop, ports.programFolder), tips(form.options.chkSMV(SMV::ToolTips)),
      status(form.frame.picStatus, tips), popUps(form.browser, status, ports.window.menus), timer(ports.system.pump),
      states(log, form), context{log, status, states, ports.system.dialogs, ports.system.settings, tips},
      runs(context, form.runs, form.browser, form.autoRun.cmdANStart, form.manual.cmdMNStart, timer),
      connection(context, form.browser, form.limits, form.options, runs, browser,
                 {ports.system.pump, ports.system.desktop, ports.system.clipboard, ports.window.place, ports.browsers}),
      navigation(context, form.browser, browser),
      visit(context, navigation, browser, timer, ports.system.pump, runs, connection), records(log, database, browser),
      siteEditing(log, form.siteEditor, form.runs, database, records), defaultSites(log, database),
      links(log, form.options, form.blocking.urls, browser, records),
      savedUrls(context, form.saved, form.options, database, browser, records, navigation),
      criteria(context, form.criteria, database), blocking(context, form.blocking, database, browser),
      longWork(ports.system.pump, status), pageData(log, form.outputs, form.limits),
      pageFiles(log, form.outputs, form.places, pageData),
      findings(log, form.blocking.email, form.areaCodes, form.options),
      writers(log, form.outputs, form.options, database, savedUrls, pageData, findings),
      keeping(context, form.options, database, writers, pageFiles, runs, ports.system.pump),
      pageTests(log, form.criteria, form.blocking),
      screening(context, form.outputs, form.browser.picANEnd, form.limits, pageTests, keeping, runs),
      errorPages(context, form.limits, form.autoRun, visit),
      siteVisit(context, form.options, runs, visit, errorPages, screening),
      resultPages(context, form.autoRun, form.saved, form.limits, visit, links, savedUrls),
      autoRun(context, form.autoRun, form.options, runs, resultPages, pageTests, siteVisit),
      options(context, form, ports.programFolder), optionReports(context, form), toolTips(context, form),
      areaCodes(log, form.areaCodes), databaseFile(context, form.places, form.import.cboSFITableExisting, database),
      loader(log, databaseFile, options, form.saved, form.criteria, form.blocking),
      dataSide(context, form, database, navigation, longWork, ports.system.clipboard, ports.window.menus),
      lifeCycle(context, form, timer, runs, browser, connection, longWork),
      startUp(context, form, options, loader, connection, ports.window.place, lifeCycle),
      placeCommands(context, form.places, form.runs, database, loader, ports.system.desktop, ports.window.side),
      windowCommands(context, form.menus, ports.window.place, ports.window.side), filesSites(context, form),
      manualColours(form.lists, form.collect, form.series, form.blocking, form.menus.mnuPopUpMNStatus),
      runEvents(context, form, timer, ports.system.desktop, autoRun, connection, lifeCycle),
      savedPanel(context, form, savedUrls, autoRun), listMenu(context, form.menus.mnuPopUpANMCMNC, popUps),
      criteriaPanel(context, form, criteria, listMenu), blockingPanel(context, form, blocking, listMenu),
      tabEvents(context, form.frame), statusBarEvents(context, form, popUps),
      statusMenu(context, form, browser, navigation, records), siteMenu(context, form, records, navigation, popUps),
      sitePanel(context, form.siteEditor, siteEditing, defaultSites, browser), siteOffer(context, form, browser),
      siteCount(context, form.frame, form.siteEditor, form.options, form.runs, browser, records),
      manual(context, form, longWork, ports.system.clipboard, database, browser, links),
      passUrlsMenu(context, form, savedUrls, manual.deleted, database, popUps),
      transfers([&pump = ports.system.pump](qint64 milliseconds) { pump.waitForEvents(milliseconds); }),
      inet(transfers, log), downloads(context, form.places, form.limits, form.options, browser, transfers, inet),
      manualItems(context, form.manual, manual.desk, downloads, navigation),
      pictures(log, foto, ports.window.pictures, ports.system.pump, ports.system.settings, ports.window.menus),
      fotoMenu(foto, pictures, ports.system.dialogs, ports.system.desktop, ports.system.settings, ports.window.side),
      manualWalk(form.manual, form.series, form.options, form.collect, manual.desk, manual.series, manual.tables),
      autoNavigate(form.menus.mnuPopUpMNStatus.item("mnuMNStatusAutoNavigate"_L1), form.manual, form.limits, runs,
                   manualWalk, siteVisit, manual.links),
      manualRun(context, form.manual, runs, manualWalk, manualItems, autoNavigate, siteVisit),
      collectChoice(context, form.collect, form.menus, form.lists, form.saved, form.options, manual.desk),
      pageCollecting(log, browser, findings, manual.desk),
      autoCollect(context, collectChoice, pageCollecting, manual.feed, savedUrls, links, manual.desk),
      collectCommands(context, form, manual.desk, collectChoice, manual.series, links)
{
    connectAll(ports);
}

void Program::connectAll(const Ports &ports)
{
    const CheckBox &errorMessages = form.options.chkSMV(SMV::ErrorMessages);
    log.ToggleErrMsg(ports.system.settings.GetSetting(Sections::Main, Keys::ErrorMessages, u"0"_s) == "1"_L1);
    QObject::connect(&errorMessages, &CheckBox::Click, &log, [&] { log.ToggleErrMsg(errorMessages.value() == 1); });
    areaCodes.LoadStates();
    connectDatabase();
    connectSites();
    connectLife(ports);
    QObject::connect(&statusMenu, &StatusMenu::resetWanted, &form, [this] { autoRun.ResetProcessAN(); });
    connectManual(ports.system.desktop, ports.window.side);
    connectManualRun();
    connectCollecting();
    connectData(ports.system.desktop, ports.window.side);
    QObject::connect(&log, &ErrorLog::endRequested, &lifeCycle, &LifeCycle::endWithoutSaving);
    QObject::connect(&log, &ErrorLog::failed, &form, [this] {
        for (Control *control : form.findChildren<Control *>(Qt::FindDirectChildrenOnly))
            control->setEnabled(true);
    });
    QObject::connect(&runs, &Runs::finalized, &lifeCycle, &LifeCycle::unwound);
    QObject::connect(&longWork, &LongWork::ended, &lifeCycle, &LifeCycle::unwound);
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
    QObject::connect(&loader, &DatabaseLoader::addressesWanted, &form, [this] {
        loadSites();
        savedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl);
    });
}

/// A database without records gets those of the start; the editor and the menu show what there is.
void Program::loadSites()
{
    if (!defaultSites.IsDefaultSDLoaded())
        defaultSites.AddDefaultSSData();
    siteEditing.LoadSearchSiteData(SiteEditing::allNames);
    form.siteEditor.cboSDLen.setListIndex(0);
    form.siteEditor.cboSDGroup.setListIndex(0);
    siteMenu.LoadSearchEngineMenu();
}

void Program::connectSites()
{
    QObject::connect(&states, &StateOfControls::siteEditorAsked, &form, [this] { siteEditing.SetSDState(true); });
    QObject::connect(&statusBarEvents, &StatusBarEvents::siteOfPageWanted, &sitePanel, &SitePanel::takePage);
    QObject::connect(&siteOffer, &SiteOffer::accepted, &sitePanel, &SitePanel::beginRecord);
}

/// What the start and the end ask of others.
void Program::connectLife(const Ports &ports)
{
    QObject::connect(&startUp, &StartUp::loaded, &form, [this] { manual.restoreElongation(); });
    QObject::connect(&startUp, &StartUp::formLoaded, &form, [this] {
        manual.restorePosition();
        manualColours.SetMNColors();
    });
    QObject::connect(&startUp, &StartUp::settled, &windowCommands, &WindowCommands::tmrKeepOnTop_Timer);
    QObject::connect(&filesSites, &FilesSitesEvents::coloursAsked, &form, [this] { manualColours.SetMNColors(); });
    QObject::connect(&placeCommands, &PlaceCommands::editorTestWanted, &form,
                     [this, &desktop = ports.system.desktop](const QString &text) {
                         WriteEditFile(text, form.places.txtSFEditor.text(), desktop);
                     });
    QObject::connect(&placeCommands, &PlaceCommands::unloadRequested, &lifeCycle, &LifeCycle::end);
    QObject::connect(&windowCommands, &WindowCommands::endWanted, &lifeCycle, &LifeCycle::Terminate);
    QObject::connect(&lifeCycle, &LifeCycle::saving, &form,
                     [this, &settings = ports.system.settings, &place = ports.window.place] {
                         options.saveAtExit();
                         SaveFF(settings, mainWindowName, place.place());
                     });
    QObject::connect(&lifeCycle, &LifeCycle::releasing, &form, [this] {
        browser.release();
        database.reset();
    });
}

void Program::connectManual(Desktop &desktop, SideWindows &side)
{
    manual.connectTo(states);
    QObject::connect(&manual.tab, &ManualTab::menuWanted, &form, [this](Menu &menu) { popUps.ShowPopUp(menu); });
    QObject::connect(&manual.tab, &ManualTab::openWanted, &form,
                     [this](const QString &url) { navigation.OpenSite(url); });
    QObject::connect(&manual.tab, &ManualTab::listChosen, &dataSide.view, &DataView::LoadTableSelectData);
    QObject::connect(&statusBarEvents, &StatusBarEvents::selectUrlWanted, &form,
                     [this](const QString &table) { manual.mark(table, {}); });
    const auto navigate = [this](int mode) { manualItems.NavFileOrSite(mode, {}, false); };
    QObject::connect(&manual.edit, &ManualEdit::navigateWanted, &form, navigate);
    QObject::connect(&manual.statusCommands, &ManualStatusCommands::navigateWanted, &form, navigate);
    QObject::connect(&manual.edit, &ManualEdit::editWanted, &form, [this, &desktop](const QString &text) {
        WriteEditFile(text, form.places.txtSFEditor.text(), desktop);
    });
    const auto magnify = [&side](const QString &text) { side.magnify(text); };
    QObject::connect(&manual.edit, &ManualEdit::magnifyWanted, &form, magnify);
    QObject::connect(&manual.statusCommands, &ManualStatusCommands::magnifyWanted, &form, magnify);
    QObject::connect(&runEvents, &RunEvents::activeItemAsked, &manual.statusCommands,
                     &ManualStatusCommands::magnifyActiveItem);
    QObject::connect(&runEvents, &RunEvents::savedUrlAsked, &form, [this, magnify] {
        if (const QString url = savedUrls.chosenAddress(); !url.isEmpty())
            magnify(url);
    });
}

void Program::connectManualRun()
{
    QObject::connect(&form.manual.cmdMNStart, &Button::Click, &form, [this] { manualRun.cmdMNStart_Click(); });
    QObject::connect(&inet, &cInetWS::InetStatus, &form,
                     [this](int state) { status.UpDateStatus(inetStateText(state)); });
    QObject::connect(&runs, &Runs::stopping, &downloads, &Downloads::cancel);
    QObject::connect(&manualItems, &ManualItems::fileArrived, &form,
                     [this](const QString &name) { downloadedPictures.OpenFiles(name); });
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
    QObject::connect(&browser, &BrowserHolder::DocumentComplete, &form, [this] {
        if (!dataSide.isImporting())
            autoCollect.DocumentComplete();
    });
    QObject::connect(&manual.series, &AutoIncr::baseSwitchedOff, &collectChoice,
                     [this] { collectChoice.SetAutoCollectState(CollectState::Kind::EmailPhone, true); });
    QObject::connect(&collectChoice, &CollectChoice::coloursAsked, &manual.series, &AutoIncr::coloursAsked);
    QObject::connect(&manual.series, &AutoIncr::coloursAsked, &form, [this] { manualColours.SetMNColors(); });
    // Behind what the label does on each tab: it shows the list that is collected into, and whether servers are
    // blocked.
    QObject::connect(&form.collect.lblAutoCollect, &Label::mousePressed, &form,
                     [this] { manualColours.SetMNColors(); });
    QObject::connect(&filesSites, &FilesSitesEvents::linksToggled, &collectChoice, &CollectChoice::SetAutoCollectLinks);
    QObject::connect(&filesSites, &FilesSitesEvents::pagesToggled, &collectChoice,
                     &CollectChoice::SetAutoCollectPgUrlsMN);
    QObject::connect(&statusMenu, &StatusMenu::autoSaveDecided, &collectChoice, &CollectChoice::DisableANAutoC);
    QObject::connect(&savedUrls, &SavedUrls::opening, &form, [this] { collectChoice.DisableANAutoC(false); });
}

void Program::connectData(Desktop &desktop, SideWindows &side)
{
    const auto magnify = [&side](const QString &text) { side.magnify(text); };
    QObject::connect(&dataSide.commands, &DataCommands::magnifyWanted, &form, magnify);
    QObject::connect(&dataSide.window, &DataWindow::magnifyWanted, &form, magnify);
    QObject::connect(&dataSide.commands, &DataCommands::editWanted, &form, [this, &desktop](const QString &text) {
        WriteEditFile(text, form.places.txtSFEditor.text(), desktop);
    });
    QObject::connect(&manual.edit, &ManualEdit::windowWanted, &dataSide.window, &DataWindow::showItems);
    QObject::connect(&siteCount, &SiteCount::linksAsked, &dataSide.window, &DataWindow::showItems);
    QObject::connect(&loader, &DatabaseLoader::addressesWanted, &dataSide.view, &DataView::LoadTableSelectData);
    QObject::connect(&dataSide.import, &DataImport::reloadWanted, &form, [this] { loader.LoadDBData(false); });
}
