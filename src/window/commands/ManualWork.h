// How a long command over the manual list on show is run: the controls are taken away, the status tells what is done,
// the user may cancel, and at the end the controls come back and the count is told.
#pragma once

#include "app/Context.h"
#include "app/LongWork.h"
#include "lists/ManualDesk.h"

#include <QScopeGuard>
#include <optional>

class ManualWork
{
  public:
    ManualWork(const Context &context, const ManualDesk &desk, LongWork &work)
        : mContext(context), mDesk(desk), mWork(work)
    {
    }
    [[nodiscard]] const LongWork &work() const { return mWork; }
    [[nodiscard]] bool isCancelled() const { return mWork.isCancelled(); }
    [[nodiscard]] bool goOn(qint64 done, qint64 all) const { return mWork.goOn(done, all); }

    /// Runs `body` and shows the status that it answers.
    template <class Body> void tell(const QString &text, Body &&body) const
    {
        if (const std::optional<QString> status = answerOf(text, body))
            mContext.status.UpDateStatus(*status);
    }
    /// Runs `body` and shows the list's count, with what it answers.
    template <class Body> void count(const QString &text, Body &&body) const
    {
        if (const std::optional<QString> message = answerOf(text, body))
            mDesk.ShowCount(*message);
    }

  private:
    template <class Body> [[nodiscard]] std::optional<QString> answerOf(const QString &text, Body &&body) const
    {
        if (mWork.isUnderWay())
            return {};
        QString answer;
        const auto states = qScopeGuard([this] { mContext.states.SetStateOfControls(); });
        const ManualLock lock(mDesk);
        mWork.run(text, [&] { answer = body(); });
        return answer;
    }

    Context mContext;
    const ManualDesk &mDesk;
    LongWork &mWork;
};
