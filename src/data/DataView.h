// The grid of the Data tab: which tables can be looked at, which rows of them are on show, and in which order.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "data/GridFilling.h"
#include "store/DatabaseHolder.h"
#include "store/TablePages.h"

class DataView : public QObject
{
    Q_OBJECT

  public:
    /// The two lists give their letters to the tables that can be looked at.
    DataView(const Context &context, DataBoxes &data, const ComboBox &cboMNList, const ComboBox &cboANList,
             DatabaseHolder &database);

    /// Fills cboDBTables anew, with nothing chosen; the grid keeps what it shows.
    void LoadTableSelectData();
    /// Shows the rows of the chosen table, those in whose chosen field `filter` stands somewhere. A filter that no
    /// statement can hold leaves the grid as it was.
    void SetShowData(const QString &filter);
    /// Fills cboDBFields with the heads of the grid, and sets the widths of its columns.
    void SetColumnSizes();
    /// The user does not want to wait for rows that are being sorted.
    void giveUpSorting();
    /// Shows a saved recordset. No table is chosen then.
    void showSaved(const QString &path);
    /// Removes the rows whose Index is selected, all or none, and shows the rest.
    void deleteSelected();

    [[nodiscard]] QString table() const { return mData.cboDBTables.list(mData.cboDBTables.listIndex()); }

  private:
    [[nodiscard]] QString shownFilter() const;
    void sortBy(int column);
    void show(const QString &filter);
    void connectFilling();

    Context mContext;
    DataBoxes &mData;
    const ComboBox &mManualList, &mAutoList;
    DatabaseHolder &mDatabase;
    GridFilling mFilling;
    TablePages::Sorting mSorting;
};
