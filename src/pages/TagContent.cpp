#include "pages/TagContent.h"

#include "util/AddressList.h"
#include "util/Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using cUtility::indexIn;

namespace {
constexpr qsizetype stepLimit = 10000;
constexpr Place place{"cIEObject"_L1, "Get_HtmlTag_Content"_L1};

/// How one walk from the markup's beginning came to its end.
enum class WalkEnd { NoMoreTags, NoEndOfTag, BadLength, Limit };

struct Walk
{
    QStringList contents;
    WalkEnd end = WalkEnd::Limit;
};

/// The lower-cased texts that are searched.
struct Texts
{
    QString markup;
    QString tag;
    QString endTag;
};

/// One walk over the markup; `original` is cut. Each part of the markup is read at most twice.
Walk walkOnce(const Texts &lower, QStringView original)
{
    Walk walk;
    qsizetype endTagAt = 0;
    for (qsizetype from = 0; walk.contents.size() < stepLimit;) {
        const qsizetype hit = indexIn(lower.markup, lower.tag, from);
        if (hit < 0) {
            walk.end = WalkEnd::NoMoreTags;
            return walk;
        }
        const qsizetype behindTag = hit + lower.tag.size();
        if (endTagAt >= 0 && endTagAt < behindTag)
            endTagAt = indexIn(lower.markup, lower.endTag, behindTag);
        if (endTagAt < 0) {
            walk.end = WalkEnd::NoEndOfTag;
            return walk;
        }
        const QStringView untilEndTag = QStringView(lower.markup).left(endTagAt + lower.tag.size() - 1);
        const qsizetype nextTagAt = indexIn(untilEndTag, lower.tag, behindTag);
        const qsizetype end = nextTagAt < 0 ? endTagAt : nextTagAt;
        const qsizetype begin = behindTag + 1;
        if (end < begin) {
            walk.end = WalkEnd::BadLength;
            return walk;
        }
        walk.contents += original.sliced(begin, end - begin).toString();
        from = end + 1;
    }
    return walk;
}

/// What the walk gives when it starts anew each time until the steps are used up; each walk's last step gives nothing.
QStringList repeated(const QStringList &contents)
{
    QStringList all;
    qsizetype steps = 0;
    while (steps < stepLimit && !contents.isEmpty()) {
        all += contents.first(std::min(contents.size(), stepLimit - steps));
        steps += contents.size() + 1;
    }
    return all;
}
} // namespace

QStringList cIEText::Get_HtmlTag_Content(QStringView tag, QStringView endTag, QStringView markup, ErrorReceiver *log)
{
    if (tag.isEmpty() || endTag.isEmpty())
        return emptyList();
    const Texts lower{cUtility::lowered(markup), cUtility::lowered(tag.endsWith(u'>') ? tag.chopped(1) : tag),
                      cUtility::lowered(endTag)};
    Walk walk;
    if (!lower.tag.isEmpty())
        walk = walkOnce(lower, markup);
    else // a tag of nothing is found at once, and so is the next one, before its own content
        walk.end = indexIn(lower.markup, lower.endTag) < 0 ? WalkEnd::NoEndOfTag : WalkEnd::BadLength;
    if (walk.end == WalkEnd::BadLength && log != nullptr)
        log->ErrorLogger(ErrorNumber::InvalidProcedureCall, u"Invalid procedure call or argument"_s, place.module,
                         place.location);
    return orEmptyList(walk.end == WalkEnd::NoEndOfTag ? repeated(walk.contents) : walk.contents);
}
