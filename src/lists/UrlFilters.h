// Filters of the links that are loaded into a manual list: a text, whether it must or must not stand in a link, and the
// server for which it was added. The two boxes on the Manual tab show one of them. Knows the store.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"
#include "store/DatabaseHolder.h"

class UrlFilters
{
  public:
    /// The columns of the table, as they are asked for.
    enum class Field { Date = 1, FilterOne = 2, FilterTwo = 3, MCMNCIndex = 4, ServerOne = 5, ServerTwo = 6 };

    UrlFilters(const Context &context, UrlFilterBoxes &boxes, ManualLists &lists, DatabaseHolder &database)
        : mContext(context), mBoxes(boxes), mLists(lists), mDatabase(database)
    {
    }

    /// Fills the box of texts.
    void LoadMNUrlFilters();
    /// Keeps the text in the box, with the server of the item at the list's index.
    void AddMNUrlFilter();
    void RemoveMNUrlFilter();
    /// Shows the first filter that was added for the server of the item at the list's index.
    void mnuMNLocateFilter_Click();
    /// `wanted` of the first row whose `search` equals `value`; "" without one, for the index "0" where there is none.
    [[nodiscard]] QString GetMNUrlFilterData(Field wanted, Field search, const QString &value);
    /// Error 91 for a text that breaks the query.
    [[nodiscard]] bool DoesMNUrlFilterExist(const QString &text);

    void cboMNMCMNC_Click() { SetcboMNMCMNC(true); }
    void cboMNMCMNCFilter_Change() { SetcboMNMCMNC(false); }
    void cboMNMCMNCFilter_Click() { SetcboMNMCMNC(false); }
    /// Leaves no entry chosen.
    void cboMNMCMNCFilter_DblClick() { mBoxes.cboMNMCMNCFilter.setListIndex(-1); }

  private:
    void SetcboMNMCMNC(bool fromCombo);
    [[nodiscard]] QString text() const;
    [[nodiscard]] QString item() const;
    [[nodiscard]] QString addFilter(const QString &filter);

    Context mContext;
    UrlFilterBoxes &mBoxes;
    ManualLists &mLists;
    DatabaseHolder &mDatabase;
};
