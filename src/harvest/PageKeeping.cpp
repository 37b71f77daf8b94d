#include "harvest/PageKeeping.h"

#include "store/Transaction.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int longestWait = 60;
/// How many milliseconds another program's writing is waited for before it is told; input is not live meanwhile.
constexpr int patienceAtFirst = 500;

/// A fault of the folder for page files in words.
QString textOfFolder(StoreFault fault)
{
    switch (fault) {
    case StoreFault::Gone:
        return u"Folder for pages is missing"_s;
    case StoreFault::ReadOnly:
        return u"Folder for pages is read-only"_s;
    default:
        return StoreFaults::text(fault);
    }
}
} // namespace

PageKeeping::PageKeeping(const Context &context, const OptionBoxes &options, DatabaseHolder &database,
                         ResultWriters &rows, PageFiles &files, Runs &runs, EventPump &pump)
    : mContext(context), mOptions(options), mDatabase(database), mRows(rows), mFiles(files), mRuns(runs), mPause(pump)
{
}

bool PageKeeping::keep(PageReading &page, const KeepingOrder &order, Kept &kept)
{
    for (int attempts = 1;; ++attempts) {
        const std::optional<Trouble> trouble = attempt(page, order, kept, attempts == 1 ? patienceAtFirst : 0);
        if (!trouble) {
            Q_EMIT rowsStored(mRows.takeAdded());
            return true;
        }
        kept = {};
        static_cast<void>(mRows.takeAdded());
        mFiles.takeBack();
        if (!waitOut(*trouble, attempts))
            return false;
    }
}

/// Nothing when all is stored; otherwise nothing of the page is, but for its file.
std::optional<PageKeeping::Trouble> PageKeeping::attempt(PageReading &page, const KeepingOrder &order, Kept &kept,
                                                         int patience)
{
    bool committed = false;
    StoreFault fault = StoreFault::None;
    guarded(mContext.log, {"frmSearch"_L1, "Sub CollectData"_L1}, [&] {
        Transaction transaction(*mDatabase, patience);
        if (transaction.isActive() && (fault = write(page, order, kept)) == StoreFault::None)
            committed = transaction.commit();
        if (fault == StoreFault::None)
            fault = transaction.fault();
    });
    if (committed)
        return {};
    if (mFiles.fault() != StoreFault::None)
        return Trouble{textOfFolder(fault), StoreFaults::mayPass(fault)};
    return Trouble{fault == StoreFault::None ? u"Database is not open"_s : StoreFaults::text(fault),
                   StoreFaults::mayPass(fault)};
}

/// The fault that kept the page's file from being written.
StoreFault PageKeeping::write(PageReading &page, const KeepingOrder &order, Kept &kept)
{
    if (order.summary)
        kept.summary = mRows.SaveSummary(page);
    if (order.page) {
        kept.file = mFiles.SaveFile(page);
        if (mFiles.fault() != StoreFault::None)
            return mFiles.fault();
    }
    if (order.email)
        kept.email = mRows.SaveEmail(page);
    if (order.phone)
        kept.phone = mRows.SavePhone(page);
    const bool noData = kept.summary % 2 == 0 && !kept.file && !kept.email && !kept.phone;
    if (order.url && (!mOptions.chkSMD(SMD::PassUrlIfNoData).isOn() || noData))
        kept.url = mRows.SavePassUrl(page);
    return StoreFault::None;
}

/// Lets a second pass and says whether to try again.
bool PageKeeping::waitOut(const Trouble &trouble, int attempts)
{
    if (!mRuns.mayGoOn())
        return false;
    if (!trouble.mayPass || attempts > longestWait) {
        giveUp(trouble);
        return false;
    }
    if (attempts == 1)
        mContext.status.UpDateStatus(trouble.text + ". Waiting"_L1);
    mPause.TimeIt(1);
    return mRuns.mayGoOn();
}

void PageKeeping::giveUp(const Trouble &trouble)
{
    QString message;
    if (!trouble.mayPass)
        message = trouble.text + (mDatabase.isSet() ? ": "_L1 + mDatabase->DatabasePath() : QString());
    mRuns.stopFor("Stopped (ERROR, "_L1 + trouble.text.toUpper() + u')', message);
}
