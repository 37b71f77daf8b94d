#include "window/commands/ManualRemove.h"

#include "app/SettingKeys.h"
#include "pages/Addresses.h"
#include "util/Arrays.h"
#include "util/Text.h"
#include "window/commands/CommandRows.h"

using namespace Qt::StringLiterals;

namespace {
constexpr QStringView protocol = u"http://";

struct SideRow
{
    QLatin1StringView title, key, status;
};
constexpr SideRow leftSide{"Urls will be truncated following text"_L1, Keys::LeftSideAt, "Removing Left after "_L1};
constexpr SideRow rightSide{"Urls will be truncated at text"_L1, Keys::RightSideAt, "Removing Right after "_L1};

/// Without the protocol and one "/" at the end; nothing of what is too short to have one.
std::optional<QString> withoutProtocol(const QString &item)
{
    if (item.size() < protocol.size())
        return {};
    QStringView rest = item;
    if (cUtility::startsWithIgnoringCase(rest, protocol))
        rest = rest.sliced(protocol.size());
    if (rest.endsWith(u'/'))
        rest.chop(1);
    return rest.toString();
}
} // namespace

ManualRemove::ManualRemove(const Context &context, const Menu &menu, const ManualDesk &desk, const ManualWork &work)
    : mContext(context), mDesk(desk), mWork(work)
{
    static constexpr auto location = "Sub mnuMNRem_Click"_L1;
    static constexpr CommandRow<ManualRemove> rows[] = {
        {"mnuMNReduceToServer"_L1, "Sub mnuMNReduceToServer_Click"_L1, &ManualRemove::reduceToServer},
        {"mnuMNUniqueServersOnly"_L1, "Sub mnuMNUniqueServersOnly_Click"_L1, &ManualRemove::uniqueServers},
        {"mnuMNRem(0)"_L1, location, &ManualRemove::repeats},
        {"mnuMNRem(1)"_L1, location, &ManualRemove::RemoveProtocol},
        {"mnuMNRem(2)"_L1, location, &ManualRemove::RemoveLeftSideAt},
        {"mnuMNRem(3)"_L1, location, &ManualRemove::RemoveRightSideAt},
        {"mnuMNRem(4)"_L1, location, &ManualRemove::itemsContaining},
        {"mnuMNRem(5)"_L1, location, &ManualRemove::itemsNotContaining},
    };
    connectCommands(*this, rows, menu, context.log, work.work());
}

/// Looks at each item, and at the end, all at once, does what has come of it. The list stays as it is where the user
/// cancels, and where something else joined it meanwhile.
template <class Look, class Finish> void ManualRemove::overItems(const QString &text, Look look, Finish finish)
{
    mWork.count(text, [&]() -> QString {
        const QStringList before = list().items();
        for (qsizetype at = 0; at < before.size() && mWork.goOn(at, before.size()); ++at)
            look(before[at]);
        if (mWork.isCancelled())
            return u"Cancelled"_s;
        if (list().items() != before)
            return u"List has changed"_s;
        finish();
        return {};
    });
}

/// Makes of each item what `change` answers, or nothing.
template <class Change> void ManualRemove::eachItem(const QString &text, Refill refill, Change change)
{
    QStringList after;
    const auto look = [&](const QString &item) {
        if (const std::optional<QString> changed = change(item))
            after.append(*changed);
    };
    overItems(text, look, [&] {
        if (refill.evenEmpty || !after.isEmpty())
            cLstBx::PopulateListBox(list(), after, refill.noBlanks, true);
    });
}

void ManualRemove::repeats()
{
    QSet<QString> seen;
    eachItem(u"Working"_s, {false, false}, [&](const QString &item) -> std::optional<QString> {
        if (item.isEmpty() || seen.contains(item))
            return {};
        seen.insert(item);
        return item;
    });
}

void ManualRemove::reduceToServer()
{
    QSet<QString> seen;
    eachItem(u"Working"_s, {false, false}, [&](const QString &item) -> std::optional<QString> {
        const QString server = cIEText::GetServerFromUrl(item, cIEText::keepAll);
        if (server.isEmpty() || seen.contains(server))
            return {};
        seen.insert(server);
        return server;
    });
}

void ManualRemove::uniqueServers()
{
    cIEText::UniqueServers servers;
    eachItem(u"Working"_s, {true, true}, [&](const QString &item) -> std::optional<QString> {
        if (cUtility::Trim(item).isEmpty() || !servers.isFirst(item))
            return {};
        return item;
    });
}

void ManualRemove::RemoveProtocol()
{
    eachItem("Removing "_L1 + protocol.toString(), {false, true}, withoutProtocol);
}

void ManualRemove::truncate(cLstBx::Cut cut)
{
    const SideRow &side = cut == cLstBx::Cut::LeftSide ? leftSide : rightSide;
    const QString text =
        mContext.dialogs.input(u"Enter text"_s, side.title, mContext.settings.GetSetting(Sections::Main, side.key));
    if (text.isEmpty())
        return;
    mContext.settings.SaveSetting(Sections::Main, side.key, text);
    eachItem(side.status + text, {true, true},
             [&](const QString &item) { return std::optional(cLstBx::truncated(item, text, cut)); });
}

QString ManualRemove::selectedItem() const
{
    if (list().isSelected(list().listIndex()))
        return mDesk.item();
    const auto first = std::find(list().selection().begin(), list().selection().end(), true);
    return list().list(static_cast<int>(first - list().selection().begin()));
}

void ManualRemove::MNExtendedRemove(cLstBx::Remove which)
{
    const QString selected = selectedItem();
    const QString proposal =
        selected.isEmpty() ? mContext.settings.GetSetting(Sections::Main, Keys::ItemsContaining) : selected;
    const QLatin1StringView negation = which == cLstBx::Remove::Containing ? ""_L1 : "Not "_L1;
    const QString text =
        mContext.dialogs.input("Remove items "_L1 + negation + "containing text"_L1, u"Enter text"_s, proposal);
    if (text.isEmpty())
        return;
    mContext.settings.SaveSetting(Sections::Main, Keys::ItemsContaining, text);
    std::vector<bool> gone;
    overItems(
        u"Working"_s, [&](const QString &item) { gone.push_back(cLstBx::isToGo(item, text, which)); },
        [&] { list().removeItems(gone); });
}
