#include "data/RowCard.h"

#include "data/Cells.h"
#include "store/FixNull.h"
#include "util/ColumnText.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int rest = 120; // milliseconds
constexpr qsizetype mostFound = 50;
constexpr qint64 pageBeginning = 60'000;
/// What a row is called by, the best first.
constexpr QLatin1StringView titles[] = {"Title"_L1, "Address"_L1, "Number"_L1, "MaskName"_L1, "Note"_L1};
} // namespace

RowCard::RowCard(ErrorReceiver &log, DataBoxes &data, DatabaseHolder &database)
    : mLog(log), mData(data), mDatabase(database)
{
    mRest.setSingleShot(true);
    mRest.setInterval(rest);
    connect(&mRest, &QTimer::timeout, this, &RowCard::show);
    connect(&data.fxgTrawlex, &Control::changed, this, [this] {
        if (mData.crdDBRow.isVisible())
            mRest.start();
    });
    connect(&data.chkDBCard, &CheckBox::Click, this, [this] {
        mData.crdDBRow.setVisible(mData.chkDBCard.isOn());
        show();
    });
}

void RowCard::show()
{
    mRest.stop();
    if (!mData.crdDBRow.isVisible())
        return;
    CardContent card;
    guarded(mLog, {"frmSearch"_L1, "Sub ShowRowCard"_L1}, [&] { card = content(); });
    mData.crdDBRow.setContent(card);
}

/// A value of the row in use; "" where the table has no such field.
QString RowCard::value(QLatin1StringView field) const
{
    const Grid &grid = mData.fxgTrawlex;
    for (int column = 0; column < grid.cols(); ++column) {
        if (grid.head(column) == field)
            return grid.textMatrix(grid.row(), column);
    }
    return {};
}

/// The summary row of the page; "" for what is not of the open database.
QString RowCard::pageIndex() const
{
    const QString table = mData.cboDBTables.list(mData.cboDBTables.listIndex());
    const QString index = table == "SiteSummary"_L1 ? value("Index"_L1) : value("SSIndex"_L1);
    return table.isEmpty() || !Cells::isNumber(index) ? QString() : index;
}

CardContent RowCard::content()
{
    CardContent card{.address = value("Url"_L1), .date = value("Date"_L1)};
    for (const QLatin1StringView title : titles) {
        if (card.title.isEmpty())
            card.title = value(title);
    }
    if (const QString index = pageIndex(); !index.isEmpty())
        addPage(card, index);
    return card;
}

/// The number of a page does not survive an import: what has another address is not of this page.
void RowCard::addPage(CardContent &card, const QString &index)
{
    Recordset page =
        mDatabase->GetRecordset("SELECT Title,Url,FullPage,Picture FROM SiteSummary WHERE Index="_L1 + index);
    if (page.isEmpty())
        return;
    Fields fields = page.Fields();
    const QString url = FixNull(fields["Url"_L1]);
    if (cUtility::columnKey(url) != cUtility::columnKey(card.address))
        return;
    if (card.title.isEmpty())
        card.title = FixNull(fields["Title"_L1]);
    card.page = fields["FullPage"_L1].GetChunk(pageBeginning).toString();
    card.picture = fields["Picture"_L1].Value().toByteArray();
    card.found = found("EmailAddress"_L1, "Address"_L1, index, url) + found("PhoneNumber"_L1, "Number"_L1, index, url);
}

QStringList RowCard::found(QLatin1StringView table, QLatin1StringView field, const QString &index, const QString &url)
{
    QStringList texts;
    Recordset rows =
        mDatabase->GetRecordset("SELECT "_L1 + field + ",Url FROM "_L1 + table + " WHERE SSIndex="_L1 + index);
    for (; !rows.Eof() && texts.size() < mostFound; rows.MoveNext()) {
        if (cUtility::columnKey(FixNull(rows.Fields()[1])) == cUtility::columnKey(url))
            texts.append(FixNull(rows.Fields()[0]));
    }
    return texts;
}
