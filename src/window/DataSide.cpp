#include "window/DataSide.h"

#include "app/OptionNumbers.h"

using namespace Qt::StringLiterals;

DataSide::DataSide(const Context &context, frmSearch &form, DatabaseHolder &database, Navigation &navigation,
                   LongWork &work, ClipboardText &clipboard, PopUpMenus &menus)
    : view(context, form.data, form.lists.cboMNList, form.saved.cboANList, database),
      card(context.log, form.data, database),
      exports(context, form.data, form.places, form.options.chkSMD(SMD::OpenExports), database, navigation, work),
      imports(context.log, database, work),
      window(context, form.browser, gridForm, database, navigation, clipboard, menus),
      commands(context, form.browser, form.data, form.menus.mnuPopUpDB, view, database, clipboard),
      statusMenu(context, form.places, form.menus.mnuPopUpDBStatus, view, exports),
      import(context, form.import, database, imports, work)
{
    QObject::connect(&commands, &DataCommands::popUpWanted, &form, [&menus](Menu &menu) { menus.popUp(menu); });
    QObject::connect(&commands, &DataCommands::navigateWanted, &form,
                     [&navigation](const QString &url) { navigation.OpenSite(url); });
    QObject::connect(&form.data.crdDBRow, &Card::followed, &form,
                     [&navigation](const QString &url) { navigation.OpenSite(url); });
    QObject::connect(&commands, &DataCommands::newWindowWanted, &window, &DataWindow::showRows);
    connectImport(form);
    connectLabels(form);
}

/// What else writes to the database would wait for the import that it stands in the way of.
void DataSide::connectImport(frmSearch &form)
{
    QObject::connect(&import, &DataImport::formReady, &form, [&form](bool ready) { form.mbFormReady = ready; });
    QObject::connect(&import, &DataImport::importing, &form, [this, &form](bool begins) {
        if (begins)
            mLock.emplace(form);
        else
            mLock.reset();
    });
}

/// The lamps of a run show what it has stored.
void DataSide::connectLabels(frmSearch &form)
{
    const auto onPress = [this, &form](Label &label, auto table) {
        QObject::connect(&label, &Control::mousePressed, &form, [this, table](MouseButton button) {
            if (button == MouseButton::Right)
                window.CloseDataWindow();
            else if (const QString name = table(); !name.isEmpty())
                window.ShowDataInNewWindow(name);
        });
    };
    const ComboBox &letters = form.saved.cboANList;
    onPress(form.outputs.lblSummarySaved, [] { return u"SiteSummary"_s; });
    onPress(form.outputs.lblEmailSaved, [] { return u"EmailAddress"_s; });
    onPress(form.outputs.lblPhoneSaved, [] { return u"PhoneNumber"_s; });
    onPress(form.outputs.lblUrlSaved, [&letters] { return "PassUrls"_L1 + letters.list(letters.listIndex()); });
    onPress(form.outputs.lblPageSaved,
            [&form] { return form.outputs.chkSaveToSS.value() == 1 ? u"SiteSummary"_s : QString(); });
}
