#include "app/Menus.h"

#include "app/MenuTables.h"

using namespace Qt::StringLiterals;

Menus::Menus(QObject *form)
    : mnuPopUpANStatus(u"mnuPopUpANStatus"_s, MenuTables::mnuPopUpANStatus, form),
      mnuPopUpMN(u"mnuPopUpMN"_s, MenuTables::mnuPopUpMN, form),
      mnuPopUpMNStatus(u"mnuPopUpMNStatus"_s, MenuTables::mnuPopUpMNStatus, form),
      mnuPopUpANMCMNC(u"mnuPopUpANMCMNC"_s, MenuTables::mnuPopUpANMCMNC, form),
      mnuPopUpPassUrls(u"mnuPopUpPassUrls"_s, MenuTables::mnuPopUpPassUrls, form),
      mnuPopUpSearchSites(u"mnuPopUpSearchSites"_s, MenuTables::mnuPopUpSearchSites, form, u"Web Sites"_s),
      mnuPopUpDB(u"mnuPopUpDB"_s, MenuTables::mnuPopUpDB, form),
      mnuPopUpDBStatus(u"mnuPopUpDBStatus"_s, MenuTables::mnuPopUpDBStatus, form)
{
}
