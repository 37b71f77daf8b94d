// A second form that is given all that can be seen of the first, and what differs between the two. Menu items that the
// first has got since its start are left out.
#pragma once

#include "app/frmSearch.h"

inline QList<Control *> controlsOf(const frmSearch &form)
{
    return form.findChildren<Control *>(Qt::FindDirectChildrenOnly);
}

inline void copyItems(const ListControl &from, ListControl &to)
{
    to.clear();
    for (const QString &item : from.items())
        to.addItem(item);
    to.setListIndex(from.listIndex());
}

/// Gives `to` all that can be seen of `from`, and its flags.
inline void mirror(const frmSearch &from, frmSearch &to)
{
    for (const Control *source : controlsOf(from)) {
        Control *target = to.control(source->name());
        if (!target)
            continue;
        if (const auto *box = qobject_cast<const CheckBox *>(source))
            qobject_cast<CheckBox *>(target)->setValue(box->value());
        else if (const auto *list = qobject_cast<const ListControl *>(source))
            copyItems(*list, *qobject_cast<ListControl *>(target));
        else if (const auto *item = qobject_cast<const MenuItem *>(source))
            qobject_cast<MenuItem *>(target)->setChecked(item->isChecked());
        else if (const auto *tabs = qobject_cast<const TabControl *>(source))
            qobject_cast<TabControl *>(target)->setTab(tabs->tab());
        if (const auto *combo = qobject_cast<const ComboBox *>(source); combo && combo->listIndex() < 0)
            if (combo->style() == ComboBox::Style::DropDownCombo)
                qobject_cast<ComboBox *>(target)->setText(combo->text());
        target->setCaption(source->caption());
        target->setEnabled(source->isEnabled());
        target->setBackColor(source->backColor());
        target->setForeColor(source->foreColor());
    }
    to.runs = from.runs;
    to.browser.mbInitialized = from.browser.mbInitialized;
    to.saved.mbPassUrlsLoaded = from.saved.mbPassUrlsLoaded;
    to.manual.mintMNRunningList = from.manual.mintMNRunningList;
    to.mbFormReady = from.mbFormReady;
}

inline QString look(const Control &control)
{
    const auto *box = qobject_cast<const CheckBox *>(&control);
    return QStringLiteral("%1 %2 back %3 fore %4 value %5")
        .arg(control.name(), control.isEnabled() ? QStringLiteral("on") : QStringLiteral("off"))
        .arg(control.backColor())
        .arg(control.foreColor())
        .arg(box ? box->value() : -1);
}

/// What differs between two forms, a line a control.
inline QStringList differences(const frmSearch &program, const frmSearch &plain)
{
    QStringList lines;
    for (const Control *control : controlsOf(program)) {
        const Control *counterpart = plain.control(control->name());
        const QString wanted = counterpart ? look(*counterpart) : look(*control);
        if (look(*control) != wanted)
            lines.append(look(*control) + QStringLiteral(" instead of ") + wanted);
    }
    return lines;
}
