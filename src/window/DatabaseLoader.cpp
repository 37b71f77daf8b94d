#include "window/DatabaseLoader.h"

using namespace Qt::StringLiterals;

DatabaseLoader::DatabaseLoader(ErrorReceiver &log, DatabaseFile &file, Options &options, SavedAddresses &saved,
                               Criteria &criteria, BlockingLists &blocking)
    : mLog(log), mFile(file), mOptions(options), mSaved(saved), mCriteria(criteria), mBlocking(blocking)
{
}

bool DatabaseLoader::LoadDBData(bool useFileBox)
{
    if (!mFile.LoadDatabase(useFileBox))
        return false;
    guarded(mLog, {"frmSearch"_L1, "Sub LoadDBData"_L1}, [&] {
        Q_EMIT listsWanted();
        mOptions.load(mSaved.cboANList);
        Q_EMIT addressesWanted();
        mOptions.load(mCriteria.cboANMCMNCMask);
        mOptions.load(mSaved.cboANSavedUrls);
        restoreUse();
        mOptions.load(mCriteria.mustNotContain.on);
        mOptions.load(mCriteria.mustContain.on);
        restoreBlocking(mBlocking.urls);
        restoreBlocking(mBlocking.email);
    });
    return true;
}

/// Without start addresses there is none to use.
void DatabaseLoader::restoreUse()
{
    if (mSaved.cboANSavedUrls.listCount() > 0)
        return mOptions.load(mSaved.chkUseSavedUrls);
    mSaved.chkUseSavedUrls.setValue(0);
    mSaved.chkUseSavedUrls.repeatEvent();
}

/// Without texts there is nothing to block.
void DatabaseLoader::restoreBlocking(BlockedTexts &texts)
{
    if (texts.items.listCount() == 0)
        return texts.on.setValue(0);
    texts.items.setListIndex(0);
    mOptions.load(texts.on);
}
