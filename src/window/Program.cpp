#include "window/Program.h"

#include "app/SettingKeys.h"

using namespace Qt::StringLiterals;

Program::Program(const Ports &ports)
    : log(ports.dialogs, ports.desktop, ports.programFolder), tips(form.options.chkSMV(0)),
      status(form.frame.picStatus, tips), popUps(form.browser, status, ports.menus), timer(ports.pump),
      states(log, form), navigation(log, form, status, browser), records(log, database, browser),
      links(log, form, browser, records),
      savedUrls(log, form, status, states, ports.settings, database, browser, records, navigation),
      criteria(log, form, status, states, ports.dialogs, database),
      blocking(log, form, status, states, ports.dialogs, ports.settings, database, browser), pageData(log, form),
      writers(log, form, database, savedUrls, pageData),
      screening(log, form, status, timer, database, navigation, writers),
      autoRun(log, form, status, states, ports.pump, timer, browser, navigation, records, links, savedUrls, screening),
      context{log, status, states, ports.dialogs, ports.settings, tips}, options(context, form, ports.programFolder),
      optionReports(context, form), toolTips(context, form), areaCodes(log, form.areaCodes),
      databaseFile(context, form.places, form.import.cboSFITableExisting, database),
      loader(log, databaseFile, options, form.saved, form.criteria, form.blocking),
      connection(
          log, form, status, states, timer, browser,
          {ports.pump, ports.dialogs, ports.desktop, ports.clipboard, ports.settings, ports.place, ports.browsers}),
      lifeCycle({log, form, ports.settings, ports.dialogs, ports.place, timer, browser, database, options, loader,
                 connection}),
      autoTab({log, form, status, states, timer, ports.desktop, savedUrls, blocking, autoRun, connection, lifeCycle}),
      criteriaPanel(form, status, states, criteria)
{
    const CheckBox &errorMessages = form.options.chkSMV(SMV::ErrorMessages);
    log.ToggleErrMsg(ports.settings.GetSetting(Sections::Main, Keys::ErrorMessages, u"0"_s) == "1"_L1);
    QObject::connect(&errorMessages, &CheckBox::Click, &log, [&] { log.ToggleErrMsg(errorMessages.value() == 1); });
    areaCodes.LoadStates();
    connectDatabase();
    QObject::connect(&log, &ErrorLog::endRequested, &lifeCycle, &LifeCycle::endWithoutSaving);
    QObject::connect(&log, &ErrorLog::failed, &form, [this] {
        for (Control *control : form.findChildren<Control *>(Qt::FindDirectChildrenOnly))
            control->setEnabled(true);
    });
    QObject::connect(&autoRun, &AutoRun::finalized, &lifeCycle, &LifeCycle::runEnded);
}

/// Who reads what from a database that has been opened, in the order in which one thing depends on another.
void Program::connectDatabase()
{
    QObject::connect(&databaseFile, &DatabaseFile::unloadRequested, &lifeCycle, &LifeCycle::end);
    QObject::connect(&loader, &DatabaseLoader::listsWanted, &form, [this] {
        criteria.LoadMCMNC();
        blocking.LoadBlocked();
    });
    QObject::connect(&loader, &DatabaseLoader::addressesWanted, &form,
                     [this] { savedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl); });
}
