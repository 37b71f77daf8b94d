// Addresses that the user marks by hand for later, each with a short note, in one table for either run. Knows sites.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"
#include "driver/BrowserHolder.h"
#include "lists/ManualDesk.h"
#include "store/DatabaseHolder.h"

class SelectUrls
{
  public:
    SelectUrls(const Context &context, const BrowserPanel &panel, const OptionBoxes &options, const ManualDesk &desk,
               DatabaseHolder &database, BrowserHolder &browser)
        : mContext(context), mPanel(panel), mOptions(options), mDesk(desk), mDatabase(database), mBrowser(browser)
    {
    }
    /// Adds `url`, or with "" the address of the page on show, to `table` and tells what came of it.
    void AddSelectUrls(const QString &table, const QString &url);

  private:
    [[nodiscard]] QString address(const QString &url);
    [[nodiscard]] QString note(const QString &url);
    [[nodiscard]] QString add(const QString &table, const QString &url);

    Context mContext;
    const BrowserPanel &mPanel;
    const OptionBoxes &mOptions;
    const ManualDesk &mDesk;
    DatabaseHolder &mDatabase;
    BrowserHolder &mBrowser;
};
