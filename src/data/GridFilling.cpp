#include "data/GridFilling.h"

using namespace Qt::StringLiterals;

namespace {
// Milliseconds: what the user does not notice, a portion between two events, and the time for those.
constexpr int soon = 80, portion = 20, breath = 5;
} // namespace

GridFilling::GridFilling(ErrorReceiver &log, Grid &grid) : mLog(log), mGrid(grid)
{
    mTurn.setInterval(breath);
    mTurn.setSingleShot(true);
    connect(&mTurn, &QTimer::timeout, this, [this] {
        const bool went = guardedResult(mLog, {"frmSearch"_L1, "Sub SetShowData"_L1}, false, [this](bool &done) {
            goOn(isShown() ? portion : 0);
            done = true;
        });
        if (!went)
            Q_EMIT failed();
    });
}

void GridFilling::show(std::shared_ptr<const GridRows> rows)
{
    drop();
    if (!rows)
        return mGrid.setDataSource(nullptr);
    mComing = std::move(rows);
    goOn(soon);
    if (mComing)
        Q_EMIT delayed();
}

void GridFilling::drop()
{
    mTurn.stop();
    mComing.reset();
}

void GridFilling::goOn(int milliseconds)
{
    const bool all = mComing->advance(milliseconds);
    if (isShown()) {
        mGrid.takeMoreRows();
    } else if (all || mComing->order().column < 0) {
        mGrid.setDataSource(mComing);
        Q_EMIT shown();
    }
    if (!all)
        return mTurn.start();
    mComing.reset();
    Q_EMIT complete();
}
