#include "pages/PageTexts.h"

#include "util/Text.h"

using cUtility::indexIgnoringCase;

namespace {
/// `text` up to the first `stop`, and whether there was one.
StringSegment upTo(const QString &text, QStringView stop, TagReport start)
{
    const qsizetype at = indexIgnoringCase(text, stop);
    if (at < 0)
        return {text, start, TagReport::Missing};
    return {text.first(at), start, TagReport::Found};
}
} // namespace

Screening mustContain(QStringView page, const QStringList &items, Demand demand, Qt::CaseSensitivity sensitivity)
{
    return mustContain(page, TextSet(items, sensitivity), demand);
}

Screening mustContain(QStringView page, const TextSet &items, Demand demand)
{
    if (items.isEmpty())
        return {};
    if (demand == Demand::Any) {
        const qsizetype found = items.firstFound(page);
        return {found >= 0, found};
    }
    const qsizetype missing = items.firstMissing(page);
    return {missing < 0, missing};
}

Screening mustNotContain(QStringView page, const QStringList &items, Qt::CaseSensitivity sensitivity)
{
    return mustNotContain(page, TextSet(items, sensitivity));
}

Screening mustNotContain(QStringView page, const TextSet &items)
{
    const qsizetype found = items.firstFound(page);
    return {found < 0, found};
}

bool NotQB(QStringView url, const QStringList &blocked)
{
    KeptTextSet kept;
    return NotQB(url, blocked, kept);
}

bool NotQB(QStringView url, const QStringList &blocked, KeptTextSet &kept)
{
    if (blocked.isEmpty() || blocked.constFirst().isEmpty())
        return true;
    return !kept.of(blocked, Qt::CaseInsensitive).anyIn(url);
}

StringSegment GetStringSegment(const QString &text, QStringView start, QStringView stop)
{
    if (start.isEmpty() && stop.isEmpty())
        return {text};
    if (start.isEmpty())
        return upTo(text, stop, TagReport::NotInUse);

    const qsizetype at = indexIgnoringCase(text, start);
    if (stop.isEmpty()) {
        if (at < 0)
            return {text, TagReport::Missing, TagReport::NotInUse};
        return {text.sliced(start.size() - 1), TagReport::Found, TagReport::NotInUse};
    }
    if (at < 0)
        return upTo(text, stop, TagReport::Missing);
    return upTo(text.sliced(at + start.size()), stop, TagReport::Found);
}
