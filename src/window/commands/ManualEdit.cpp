#include "window/commands/ManualEdit.h"

#include "controls/cLstBx.h"
#include "window/commands/CommandRows.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int listMode = 1;
const QString lineEnd = u"\r\n"_s;
} // namespace

ManualEdit::ManualEdit(const Context &context, const Menu &menu, const ManualDesk &desk, ManualFeed &feed,
                       ClipboardText &clipboard, LongWork &work)
    : mContext(context), mDesk(desk), mFeed(feed), mClipboard(clipboard), mWork(work)
{
    static constexpr CommandRow<ManualEdit> rows[] = {
        {"mnuMNEdit"_L1, "Sub mnuMNEdit_Click"_L1, &ManualEdit::edit},
        {"mnuMNMagnify"_L1, "Sub mnuMNMagnify_Click"_L1, &ManualEdit::magnify},
        {"mnuMNNavigateTo"_L1, "Sub mnuMNNavigateTo_Click"_L1, &ManualEdit::navigateTo},
        {"mnuMNNewWindow"_L1, "Sub mnuMNNewWindow_Click"_L1, &ManualEdit::newWindow},
        {"mnuMNClear"_L1, "Sub mnuMNClear_Click"_L1, &ManualEdit::clear},
        {"mnuMNClearSelected"_L1, "Sub mnuMNClearSelected_Click"_L1, &ManualEdit::clearSelected},
        {"mnuMNClearAllListWindows"_L1, "Sub mnuMNClearAllListWindows_Click"_L1, &ManualEdit::clearAll},
        {"mnuMNUnSelect"_L1, "Sub mnuMNUnSelect_Click"_L1, &ManualEdit::unSelect},
        {"mnuMNSelectAll"_L1, "Sub mnuMNSelectAll_Click"_L1, &ManualEdit::selectAll},
        {"mnuMNPasteLinks"_L1, "Sub mnuMNPasteLinks_Click"_L1, &ManualEdit::paste},
        {"mnuMNCutSelected"_L1, "Sub mnuMNCutSelected_Click"_L1, &ManualEdit::cut},
        {"mnuMNCopySelected"_L1, "Sub mnuMNCopySelected_Click"_L1, &ManualEdit::copy},
    };
    connectCommands(*this, rows, menu, context.log, work);
}

void ManualEdit::edit()
{
    if (const QString text = cLstBx::CopySelected(list(), lineEnd); !text.isEmpty())
        Q_EMIT editWanted(text);
}

void ManualEdit::magnify()
{
    const QString text = list().selCount() > 0 ? cLstBx::CopySelected(list(), lineEnd) : mDesk.GetUseBaseUrl(listMode);
    if (!text.isEmpty())
        Q_EMIT magnifyWanted(text);
}

void ManualEdit::navigateTo()
{
    Q_EMIT navigateWanted(listMode);
}

void ManualEdit::newWindow()
{
    Q_EMIT windowWanted(list().items());
}

void ManualEdit::clear()
{
    list().clear();
    mContext.states.SetStateOfControls();
    mContext.status.UpDateStatus(u"Window cleared"_s);
}

/// A single item makes room for the one behind it.
void ManualEdit::clearSelected()
{
    const int index = list().listIndex();
    if (index < 0)
        return;
    if (list().selCount() == 1) {
        list().removeItem(index);
        if (index < list().listCount()) {
            std::vector<bool> selected = list().selection();
            selected[static_cast<std::size_t>(index)] = true;
            list().choose(index, selected);
        }
    } else {
        cLstBx::ClearSelected(list());
    }
    mContext.states.SetStateOfControls();
    mDesk.ShowCount();
}

void ManualEdit::clearAll()
{
    QStringList cleared;
    for (int i = 0; i < listNames.size(); ++i) {
        if (mDesk.list(i).listCount() > 0)
            cleared.append(mDesk.listName(i));
        mDesk.list(i).clear();
    }
    mContext.states.SetStateOfControls();
    if (!cleared.isEmpty())
        mContext.status.UpDateStatus(cleared.join(u',') + " cleared"_L1);
}

void ManualEdit::unSelect()
{
    cLstBx::UnSelect(list());
}

void ManualEdit::selectAll()
{
    cLstBx::SelectAllLst(list());
    mDesk.ShowCount(u"Selected"_s);
}

void ManualEdit::paste()
{
    mWork.run(u"Please Wait"_s, [&] { mFeed.PasteEmailLinksTextToListBox(list(), lineEnd, cIEText::TextKind::Link); });
}

void ManualEdit::cut()
{
    if (const QString text = cLstBx::CutLst(list()); !text.isEmpty())
        mClipboard.setText(text);
    mContext.states.SetStateOfControls();
    mDesk.ShowCount();
}

void ManualEdit::copy()
{
    if (const QString text = cLstBx::CopySelected(list(), lineEnd); !text.isEmpty())
        mClipboard.setText(text);
    mContext.status.UpDateStatus("Copied "_L1 + mDesk.item());
}
