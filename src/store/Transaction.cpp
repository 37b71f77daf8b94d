#include "store/Transaction.h"
#include "store/AdoErrors.h"
#include "store/cAdoMdb.h"
#include "store/sqlite/Connection.h"

using namespace Qt::StringLiterals;

namespace {
constexpr Place place{"cAdoMdb"_L1, "Transaction"_L1};
}

Transaction::Transaction(cAdoMdb &database, int patience) : mConnection(database.connection()), mLog(database.log())
{
    guarded(mLog, place, [&] {
        if (!mConnection)
            throw AdoError::error(AdoError::ConnectionClosed);
        try {
            mConnection->begin(patience);
            mActive = true;
        } catch (...) {
            mFault = mConnection->fault();
            mConnection->refuseWrites();
            throw;
        }
    });
}

Transaction::~Transaction()
{
    if (mActive)
        mConnection->rollBack();
    else if (mConnection && !mCommitted)
        mConnection->allowWrites();
}

bool Transaction::commit(const Waiting &waiting)
{
    if (!mActive)
        return false;
    const bool kept = guarded(mLog, place, [&] { waiting([this] { mConnection->commit(); }); });
    if (!kept)
        mFault = mConnection->fault();
    mActive = !kept;
    mCommitted = kept;
    return kept;
}
