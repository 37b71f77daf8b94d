#include "data/DataView.h"

#include "data/Cells.h"
#include "data/ColumnWidths.h"
#include "data/GridSources.h"
#include "store/AdoErrors.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto form = "frmSearch"_L1;

constexpr ColumnWidths::Width widths[] = {{"Index"_L1, 700},
                                          {"Type"_L1, 500},
                                          {"SSIndex"_L1, 830},
                                          {"Date FullPage"_L1, 1100},
                                          {"Number"_L1, 1200},
                                          {"MaskName"_L1, 1300},
                                          {"Address Url Note Title"_L1, 3400}};
} // namespace

DataView::DataView(const Context &context, DataBoxes &data, const ComboBox &cboMNList, const ComboBox &cboANList,
                   DatabaseHolder &database)
    : mContext(context), mData(data), mManualList(cboMNList), mAutoList(cboANList), mDatabase(database),
      mFilling(context.log, data.fxgTrawlex)
{
    connectFilling();
    connect(&data.cboDBTables, &ComboBox::Click, this, [this] {
        mSorting = {};
        SetShowData({});
    });
    connect(&data.txtDBQuery, &TextBox::Change, this, [this] {
        if (mData.cboDBFields.listIndex() >= 0)
            SetShowData(mData.txtDBQuery.text());
    });
    connect(&data.cboDBPlace, &ComboBox::Click, this, [this] {
        if (!shownFilter().isEmpty())
            SetShowData(shownFilter());
    });
    connect(&data.fxgTrawlex, &Grid::headClicked, this, &DataView::sortBy);
    connect(&cboMNList, &ComboBox::Click, this, &DataView::LoadTableSelectData);
    connect(&cboANList, &ComboBox::Click, this, &DataView::LoadTableSelectData);
}

void DataView::LoadTableSelectData()
{
    if (mFilling.isWaiting())
        mFilling.drop();
    guarded(mContext.log, {form, "Sub LoadTableSelectData"_L1}, [this] {
        const QString manual = mManualList.list(mManualList.listIndex());
        const QString automatic = mAutoList.list(mAutoList.listIndex());
        mData.cboDBTables.setItems({u"SiteSummary"_s, u"EmailAddress"_s, u"PhoneNumber"_s, "MNUrls"_L1 + manual,
                                    "RPgUrls"_L1 + automatic, "PassUrls"_L1 + automatic, u"ANSelectUrls"_s,
                                    u"MNSelectUrls"_s});
    });
}

void DataView::SetShowData(const QString &filter)
{
    if (table().isEmpty())
        return;
    guarded(mContext.log, {form, "Sub SetShowData"_L1}, [&] { show(filter); });
}

void DataView::show(const QString &filter)
{
    // No statement holds a quote in a text.
    if (filter.contains(u'\''))
        return mContext.status.UpDateStatus(u"A filter can not hold a quote"_s);
    const QString field = mData.cboDBFields.list(mData.cboDBFields.listIndex());
    const TablePages::Filter wanted{filter.isEmpty() ? QString() : field, filter,
                                    TablePages::Place(mData.cboDBPlace.listIndex())};
    mFilling.show(std::make_shared<TableRows>(TablePages(*mDatabase, table(), wanted, mSorting)));
}

void DataView::connectFilling()
{
    connect(&mFilling, &GridFilling::shown, this, &DataView::SetColumnSizes);
    connect(&mFilling, &GridFilling::failed, this, &DataView::giveUpSorting);
    connect(&mFilling, &GridFilling::delayed, this, [this] { mContext.status.UpDateStatus(u"Please Wait"_s); });
    connect(&mFilling, &GridFilling::complete, this,
            [this] { mContext.status.UpDateStatus(u"%1 records"_s.arg(mData.fxgTrawlex.rows())); });
}

void DataView::giveUpSorting()
{
    if (!mFilling.isWaiting())
        return;
    const SortMark mark = mData.fxgTrawlex.sortMark();
    mSorting = {mData.fxgTrawlex.head(mark.column), mark.order};
    // Those on show may not have been counted to their end.
    mFilling.show(mData.fxgTrawlex.dataSource());
    mContext.status.UpDateStatus(u"Cancelled"_s);
}

void DataView::SetColumnSizes()
{
    guarded(mContext.log, {form, "Sub SetColumnSizes"_L1}, [this] {
        const int chosen = mData.cboDBFields.listIndex();
        QStringList heads;
        for (int column = 0; column < mData.fxgTrawlex.cols(); ++column)
            heads.append(mData.fxgTrawlex.head(column));
        mData.cboDBFields.setItems(heads);
        ColumnWidths::set(mData.fxgTrawlex, widths);
        if (chosen >= 0 && chosen < heads.size())
            mData.cboDBFields.setListIndex(chosen);
    });
}

/// The text that narrows the rows down: without a field there is none.
QString DataView::shownFilter() const
{
    return mData.cboDBFields.listIndex() >= 0 ? mData.txtDBQuery.text() : QString();
}

void DataView::sortBy(int column)
{
    const QString head = mData.fxgTrawlex.head(column);
    if (table().isEmpty() || head.isEmpty())
        return;
    const SortMark mark = mData.fxgTrawlex.sortMark().clicked(column);
    mSorting = {mData.fxgTrawlex.head(mark.column), mark.order};
    SetShowData(shownFilter());
}

void DataView::showSaved(const QString &path)
{
    guarded(mContext.log, {form, "Sub mnuDBStatusReLoadRSFile_Click"_L1}, [&] {
        try {
            const auto rows = std::make_shared<SavedRows>(Recordset::open(path));
            mFilling.drop();
            mData.fxgTrawlex.setDataSource(rows);
        } catch (...) {
            mContext.status.UpDateStatus("Not loaded: "_L1 + currentError().description());
            throw;
        }
        mData.cboDBTables.setListIndex(-1);
        mData.cboDBFields.clear();
    });
}

void DataView::deleteSelected()
{
    if (mData.fxgTrawlex.col() != 0)
        return;
    guarded(mContext.log, {form, "Sub mnuDBDelete_Click"_L1}, [this] {
        const QString list = mData.fxgTrawlex.clip().replace(u'\r', u',');
        const QStringList elements = list.split(u',');
        if (!Cells::isNumber(elements.constFirst()))
            return mContext.status.UpDateStatus(u"Nothing deleted (Select Index field)"_s);
        QList<qint64> keys;
        for (const QString &element : elements)
            keys.append(element.toLongLong());
        const QString name = table();
        const int index = mData.cboDBTables.listIndex();
        mData.cboDBTables.setListIndex(-1);
        const bool gone = removeRows(*mDatabase, name, keys) >= 0;
        mData.cboDBTables.setListIndex(index);
        mContext.status.UpDateStatus(gone ? "Index "_L1 + list + " deleted"_L1
                                          : "Nothing deleted. "_L1 + StoreFaults::text(mDatabase->fault()));
    });
}
