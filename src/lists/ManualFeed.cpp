#include "lists/ManualFeed.h"

#include "app/OptionNumbers.h"
#include "controls/cLstBx.h"
#include "lists/ListFile.h"
#include "pages/Addresses.h"
#include "util/Arrays.h"
#include "util/ColumnText.h"
#include "util/Text.h"

#include <QFileInfo>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto invalidUrl = "InValid Url"_L1;
constexpr auto cancelled = "Cancelled"_L1;

/// The lines of a text, ended by CR LF or LF.
/// Lines that are not empty. A CR belongs to the end of its line where LF follows.
QStringList linesOf(const QString &text)
{
    QStringList lines;
    for (QStringView line : QStringTokenizer{text, u'\n', Qt::SkipEmptyParts}) {
        if (line.endsWith(u'\r') && line.cend() != QStringView(text).cend())
            line.chop(1);
        if (!line.isEmpty())
            lines.append(line.toString());
    }
    return lines;
}

/// What was typed, dropped or pasted, as an item.
QString asItem(const QString &text)
{
    return cUtility::asColumnText(cUtility::MultipleLinesToSingle(text));
}

bool isFile(const QString &line)
{
    const QFileInfo file(line);
    return file.isAbsolute() && file.isFile();
}

/// What was dropped: its lines, or those of the files whose paths they all are. The fault is that of the first file
/// which gave none.
ListFile::Content dropped(const QString &text)
{
    ListFile::Content content{linesOf(text), {}};
    if (!std::all_of(content.lines.begin(), content.lines.end(), isFile))
        return content;
    for (const QString &path : std::exchange(content.lines, {})) {
        const ListFile::Content file = ListFile::read(path);
        content.lines += file.lines;
        if (content.fault.isEmpty() && !file.fault.isEmpty())
            content.fault = file.fault + ": "_L1 + QFileInfo(path).fileName();
    }
    return content;
}
} // namespace

QString ManualFeed::LoadBrowserLinks(int index)
{
    ListBox &list = mDesk.list(index);
    guarded(mContext.log, {module, "Function LoadBrowserLinks"_L1}, [&] {
        const ManualLock lock(mDesk);
        mContext.status.UpDateStatus(u"Loading"_s);
        mWork.letEventsIn();
        QStringList links = mLinks.DiscoverLinks(mDesk.usesSiteData() ? DiscoveredLinks::Use::SiteData
                                                                      : DiscoveredLinks::Use::AllLinks);
        if (firstOf(links).isEmpty())
            return;
        if (mOptions.chkSMA(SMA::UniqueServers).value() == 1)
            links = cIEText::GetUniqueServers(links);
        cLstBx::PopulateListBox(list, links, true, false);
    });
    return u"%1 loaded %2"_s.arg(list.listCount()).arg(mDesk.listName(index));
}

/// The lines that are links; none once the user has cancelled.
QStringList ManualFeed::links(const QStringList &lines)
{
    QStringList found;
    for (qsizetype at = 0; at < lines.size() && mWork.goOn(at, lines.size()); ++at) {
        if (cIEText::IsThisEmailOrLink(lines[at], true) == cIEText::TextKind::Link)
            found.append(lines[at]);
    }
    return mWork.isCancelled() ? QStringList() : found;
}

void ManualFeed::PasteEmailLinksTextToListBox(ListBox &list, const QString &delimiter, cIEText::TextKind wanted)
{
    guarded(mContext.log, {module, "Sub PasteEmailLinksTextToListBox"_L1}, [&] {
        const QString text = mClipboard.text();
        if (text.isEmpty())
            return;
        const bool byLines = delimiter == "\r\n"_L1;
        const bool split = text.contains(delimiter) || (byLines && text.contains(u'\n'));
        const QStringList pieces = !split    ? QStringList{text}
                                   : byLines ? linesOf(text)
                                             : text.split(delimiter, Qt::SkipEmptyParts);
        QStringList added;
        {
            const ManualLock lock(mDesk);
            const bool all = mDesk.usesBase();
            for (qsizetype at = 0; at < pieces.size() && mWork.goOn(at, pieces.size()); ++at) {
                const QString item = asItem(pieces[at]);
                if (all || cIEText::IsThisEmailOrLink(item, true) == wanted)
                    added.append(item);
            }
            if (!mWork.isCancelled())
                list.addItems(added);
        }
        mContext.states.SetStateOfControls();
        // The count tells of pieces: a single text that was not split counts as none.
        mDesk.ShowCount(mWork.isCancelled() ? QString(cancelled) : u" %1 added"_s.arg(split ? added.size() : 0));
    });
}

QString ManualFeed::addDropped(ListBox &list, const QString &text)
{
    const auto &[lines, fault] = dropped(text);
    bool hasInvalid = false;
    QSet<QString> known;
    for (const QString &item : list.items())
        known.insert(cUtility::lowered(item));
    QStringList added;
    const bool all = mDesk.usesBase();
    for (qsizetype at = 0; at < lines.size() && mWork.goOn(at, lines.size()); ++at) {
        const QString item = asItem(lines[at]);
        if (!all && cIEText::IsThisEmailOrLink(item, true) != cIEText::TextKind::Link) {
            hasInvalid = true;
            continue;
        }
        const auto before = known.size();
        known.insert(cUtility::lowered(item));
        if (known.size() != before)
            added.append(item);
    }
    if (mWork.isCancelled())
        return cancelled;
    list.addItems(added);
    return !fault.isEmpty() ? fault : hasInvalid ? QString(invalidUrl) : QString();
}

void ManualFeed::drop(int index, const QString &text)
{
    guarded(mContext.log, {module, "Sub lstMN_OLEDragDrop"_L1}, [&] {
        QString message = u"(AutoIncr ON)"_s;
        const bool worked = mWork.run(u"Please Wait"_s, [&] {
            if (mDesk.GetAutoIncrChecked() > 0)
                return;
            const ManualLock lock(mDesk);
            message = addDropped(mDesk.list(index), text);
        });
        if (!worked)
            return;
        mContext.states.SetStateOfControls();
        mDesk.ShowCountMN(index, message);
    });
}

QString ManualFeed::loadFile(ListBox &list, const QString &path)
{
    const ListFile::Content content = ListFile::read(path);
    if (!content.fault.isEmpty())
        return content.fault;
    const bool all = mDesk.usesBase();
    const QStringList wanted = all ? content.lines : links(content.lines);
    if (mWork.isCancelled())
        return cancelled;
    cLstBx::PopulateListBox(list, cUtility::RemoveRepeatsFromArray(wanted), true, false);
    return wanted.isEmpty() && !all ? QString(invalidUrl) : QString();
}
