#include "window/commands/ManualSide.h"

#include "app/SettingKeys.h"
#include "window/states/StateOfControls.h"

using namespace Qt::StringLiterals;

ManualSide::ManualSide(const Context &shared, frmSearch &window, LongWork &work, ClipboardText &clipboard,
                       DatabaseHolder &database, BrowserHolder &browser, ResultLinks &results)
    : context(shared), form(window), desk(form, context.status), deleted(context.log, database, work),
      tables(context.log, database, work), filters(context, form.urlFilter, form.lists, database),
      selectUrls(context, form.browser, form.options, desk, database, browser), records(context.log, database, browser),
      links(context.log, form.urlFilter, form.blocking, form.options, browser, records, results),
      feed(context, desk, form.options, links, clipboard, work), texts(context, form.series, desk, database),
      series(context, form, desk, texts), longWork(context, desk, work),
      find(context, form.menus.mnuPopUpMN, desk, tables, work),
      edit(context, form.menus.mnuPopUpMN, desk, feed, clipboard, work),
      store(context, form.menus.mnuPopUpMN, desk, longWork, tables, deleted, feed),
      files(context, form.menus.mnuPopUpMN, form.places, desk, longWork, feed, browser),
      sources(context, form.menus.mnuPopUpMN, form.saved, desk, longWork, tables),
      remove(context, form.menus.mnuPopUpMN, desk, longWork), filterEvents(context, form, filters, work),
      popUps(context, form, desk, tables, find, series, clipboard),
      statusCommands(context, form, desk, texts, series, work), tab(context, form, desk, tables, feed, texts, series)
{
    connectSelectUrls();
    QObject::connect(&tab, &ManualTab::urlChosen, &popUps, &ManualPopUps::mnuPopUpMNStatus_Click);
}

void ManualSide::connectSelectUrls()
{
    const auto marks = [this](const QString &table, const QString &url) { mark(table, url); };
    QObject::connect(&store, &ManualStore::selectUrlWanted, &tab, marks);
    QObject::connect(&statusCommands, &ManualStatusCommands::selectUrlWanted, &tab, marks);
}

void ManualSide::mark(const QString &table, const QString &url)
{
    if (table == "MNSelectUrls"_L1)
        tab.skipShowSelected();
    selectUrls.AddSelectUrls(table, url);
}

void ManualSide::connectTo(const StateOfControls &states)
{
    QObject::connect(&states, &StateOfControls::autoNavigateAsked, &series, &AutoIncr::CheckMNAutoNav);
    QObject::connect(&states, &StateOfControls::seriesPositionAsked, &tab, [this] { restorePosition(); });
}

void ManualSide::takeDatabase()
{
    const auto stored = [&](const QString &key) { return context.settings.GetSetting(Sections::Main, key); };
    filters.LoadMNUrlFilters();
    // At the start and behind an import the filter in force stays; another database's filters are others.
    if (form.mbFormReady)
        filters.cboMNMCMNCFilter_Change();
    else
        form.urlFilter.cboMNMCMNCFilter.setText(stored(Keys::UrlFilter));
    texts.LoadAutoTextUrls();
    const QString url = stored(Keys::AutoTextUrl + desk.listName());
    form.series.cboMNAutoUrl.setText(url);
    if (!url.isEmpty() && stored(Keys::UseAutoBase) == "1"_L1 && !desk.usesBase())
        series.mnuMNUseAutoBase_Click();
}

void ManualSide::restoreElongation()
{
    if (context.settings.GetSetting(Sections::Main, Keys::Elongate) == "1"_L1)
        statusCommands.mnuMNStatusElongate_Click();
}

void ManualSide::restorePosition()
{
    const int position = context.settings.GetSetting(Sections::Main, Keys::AutoIncrPos, u"0"_s).toInt();
    if (position > 0 && position <= Series::MostPositions && desk.GetAutoIncrChecked() == 0)
        series.SetAutoIncrPos(position);
}
