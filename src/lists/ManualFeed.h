// What feeds a manual list: the links of the page on show, the clipboard, texts and files that are dropped on it, files
// that are read. Each tells in the status bar what came of it. Knows sites.
#pragma once

#include "app/Context.h"
#include "app/LongWork.h"
#include "lists/ManualDesk.h"
#include "pages/EmailFinder.h"
#include "sites/DiscoveredLinks.h"

class ManualFeed
{
  public:
    ManualFeed(const Context &context, const ManualDesk &desk, const OptionBoxes &options, DiscoveredLinks &links,
               ClipboardText &clipboard, LongWork &work)
        : mContext(context), mDesk(desk), mOptions(options), mLinks(links), mClipboard(clipboard), mWork(work)
    {
    }

    /// Adds the wanted links of the page on show to a list. "120 loaded A", also where nothing was added.
    QString LoadBrowserLinks(int index);
    /// Adds the clipboard's texts between the delimiters that are of the wanted kind; with a base as they stand. The
    /// delimiter CR LF takes LF as well.
    void PasteEmailLinksTextToListBox(ListBox &list, const QString &delimiter, cIEText::TextKind wanted);
    /// Adds the lines that are links and that the list has not yet; of files, whose paths they are, the files' lines.
    void drop(int index, const QString &text);
    /// Adds the lines of a text file that are links, or with a base all of them. What there is to tell.
    [[nodiscard]] QString loadFile(ListBox &list, const QString &path);

  private:
    [[nodiscard]] QStringList links(const QStringList &lines);
    [[nodiscard]] QString addDropped(ListBox &list, const QString &text);

    Context mContext;
    const ManualDesk &mDesk;
    const OptionBoxes &mOptions;
    DiscoveredLinks &mLinks;
    ClipboardText &mClipboard;
    LongWork &mWork;
};
