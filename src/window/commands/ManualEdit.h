// The commands that look at the manual list on show, clear it and carry it to and from the clipboard.
#pragma once

#include "app/Context.h"
#include "lists/ManualFeed.h"

class ManualEdit : public QObject
{
    Q_OBJECT

  public:
    ManualEdit(const Context &context, const Menu &menu, const ManualDesk &desk, ManualFeed &feed,
               ClipboardText &clipboard, LongWork &work);

  Q_SIGNALS:
    /// A text is to be shown in the editor, or large.
    void editWanted(const QString &text);
    void magnifyWanted(const QString &text);
    /// The address of an item is to be opened or downloaded (a mode of GetUseBaseUrl).
    void navigateWanted(int mode);
    /// Items are to be shown in a window of their own.
    void windowWanted(const QStringList &items);

  private:
    [[nodiscard]] ListBox &list() const { return mDesk.list(); }
    void edit();
    void magnify();
    void navigateTo();
    void newWindow();
    void clear();
    void clearSelected();
    void clearAll();
    void unSelect();
    void selectAll();
    void paste();
    void cut();
    void copy();

    Context mContext;
    const ManualDesk &mDesk;
    ManualFeed &mFeed;
    ClipboardText &mClipboard;
    LongWork &mWork;
};
