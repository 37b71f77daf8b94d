#include "window/Program.h"

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
      options(log, form, status, states, ports.settings, ports.programFolder),
      loader(log, form, ports.dialogs, ports.settings, database, criteria, blocking, savedUrls),
      connection(
          log, form, status, states, timer, browser,
          {ports.pump, ports.dialogs, ports.desktop, ports.clipboard, ports.settings, ports.place, ports.browsers}),
      lifeCycle({log, form, ports.settings, ports.dialogs, ports.place, timer, browser, database, options, loader,
                 connection}),
      autoTab({log, form, status, states, timer, ports.desktop, savedUrls, blocking, autoRun, connection, lifeCycle}),
      criteriaPanel(form, status, states, criteria)
{
    log.ToggleErrMsg(ports.settings.GetSetting(Options::section, u"chkSMVTurnOffErrorMsg"_s, u"0"_s) == "1"_L1);
    QObject::connect(&log, &ErrorLog::endRequested, &lifeCycle, &LifeCycle::endWithoutSaving);
    QObject::connect(&log, &ErrorLog::failed, &form, [this] {
        for (Control *control : form.findChildren<Control *>(Qt::FindDirectChildrenOnly))
            control->setEnabled(true);
    });
    QObject::connect(&autoRun, &AutoRun::finalized, &lifeCycle, &LifeCycle::runEnded);
}
