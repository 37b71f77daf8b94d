#include "window/commands/BlockingPanel.h"

using namespace Qt::StringLiterals;

BlockingPanel::BlockingPanel(const Context &context, frmSearch &form, Blocking &blocking, ListMenu &menu)
    : mContext(context), mForm(form), mBlocking(blocking)
{
    connectList(Blocking::Kind::Url, form.blocking.urls, menu);
    connectList(Blocking::Kind::Email, form.blocking.email, menu);
    connect(&form.collect.lblAutoCollect, &Label::mousePressed, this, &BlockingPanel::lblAutoCollect_MouseDown);
    connect(&form.collect.lblAutoCollect, &Label::mouseMoved, this, &BlockingPanel::lblAutoCollect_MouseMove);
}

void BlockingPanel::connectList(Blocking::Kind kind, BlockedTexts &texts, ListMenu &menu)
{
    menu.serve({texts.items, [this, kind] { mBlocking.add(kind); }, [this, kind] { mBlocking.RemoveBlocked(kind); },
                [this, kind] { mBlocking.ClearBlockedList(kind); },
                [this, kind](const QString &text) { mBlocking.drop(kind, text); }});
    connect(&texts.buttons(0), &Button::Click, this, [this, kind] { mBlocking.add(kind); });
    connect(&texts.buttons(1), &Button::Click, this, [this, kind] { mBlocking.RemoveBlocked(kind); });
}

void BlockingPanel::lblAutoCollect_MouseDown(MouseButton button)
{
    if (mForm.frame.sstSearch.tab() != Tab::Auto)
        return;
    if (button == MouseButton::Left)
        mBlocking.addQuickBlock();
    else
        mBlocking.clearQuickBlock();
}

void BlockingPanel::lblAutoCollect_MouseMove()
{
    if (mForm.frame.sstSearch.tab() != Tab::Auto || !mContext.tips.areShown())
        return;
    const QStringList &blocked = mForm.blocking.mastrQB;
    const QString count = firstOf(blocked).isEmpty() ? QString() : QString::number(blocked.size());
    mForm.collect.lblAutoCollect.setToolTipText("Left click Add Quick Block. Right click Clear Quick Block. "_L1 +
                                                count + " blocked"_L1);
}
