#include "window/commands/ManualFind.h"

#include "app/SettingKeys.h"
#include "controls/cLstBx.h"
#include "window/commands/CommandRows.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto location = "Sub mnuMNFind_Click"_L1;
} // namespace

ManualFind::ManualFind(const Context &context, const Menu &menu, const ManualDesk &desk, ManualTables &tables,
                       const LongWork &work)
    : mContext(context), mDesk(desk), mTables(tables)
{
    static constexpr CommandRow<ManualFind> rows[] = {
        {"mnuMNFind(0)"_L1, location, &ManualFind::anyText},
        {"mnuMNFind(1)"_L1, location, &ManualFind::next},
        {"mnuMNFind(2)"_L1, location, &ManualFind::position},
    };
    connectCommands(*this, rows, menu, context.log, work);
}

void ManualFind::forget()
{
    mFindTextMN.clear();
    mFindNextMN = 0;
}

/// A hit on the first item reads like none, and is told so.
void ManualFind::tell(int found, const QString &text)
{
    if (found == 0)
        mContext.status.UpDateStatus(text + " not found"_L1);
    else
        mDesk.ShowSelected();
}

void ManualFind::anyText()
{
    const QString text = mContext.dialogs.input(u"Enter text to find"_s, u"Find Item"_s,
                                                mContext.settings.GetSetting(Sections::Main, Keys::FindItem));
    if (text.isEmpty())
        return;
    mContext.settings.SaveSetting(Sections::Main, Keys::FindItem, text);
    const int found = cLstBx::FindText(mDesk.list(), text, 0);
    if (found + 1 < mDesk.list().listCount()) {
        mFindNextMN = found + 1;
        mFindTextMN = text;
    }
    tell(found, text);
}

void ManualFind::next()
{
    if (!canGoOn() || mDesk.list().listCount() <= mFindNextMN)
        return;
    const int found = cLstBx::FindText(mDesk.list(), mFindTextMN, mFindNextMN);
    if (found >= 1 && found + 1 < mDesk.list().listCount())
        mFindNextMN = found + 1;
    else
        forget();
    tell(found, {});
}

void ManualFind::position()
{
    const QString last = mTables.SaveMNLastUrl(mDesk.list(), mDesk.table(), false);
    if (!last.isEmpty())
        tell(cLstBx::FindText(mDesk.list(), last, 0), last);
}
