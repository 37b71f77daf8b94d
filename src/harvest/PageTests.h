// The tests that decide about a link before it is opened and about a page before it is stored. Knows driver.
#pragma once

#include "app/FormGroups.h"
#include "driver/PageReading.h"
#include "pages/PageTexts.h"
#include "util/Errors.h"

class PageTests
{
  public:
    PageTests(ErrorReceiver &log, Criteria &criteria, const BlockingLists &blocking)
        : mLog(log), mCriteria(criteria), mBlocking(blocking)
    {
    }

    /// True if a run may open `url`: no Quick Block text stands in it.
    [[nodiscard]] bool NotQB(const QString &url);
    /// The page may go on, by the texts that it must hold, or must not. The lamps show it, and the list the item that
    /// decided.
    [[nodiscard]] bool IsMCGo(PageReading &page);
    [[nodiscard]] bool IsMNCGo(PageReading &page);
    /// One of the two looks at the page at all.
    [[nodiscard]] bool areOn() const;

  private:
    template <class Decide>
    [[nodiscard]] static bool runTest(Criterion &test, KeptTextSet &texts, PageReading &page, Decide decide);

    ErrorReceiver &mLog;
    Criteria &mCriteria;
    const BlockingLists &mBlocking;
    KeptTextSet mMust, mMustNot, mQuickBlock;
};
