#include "harvest/CollectState.h"

using namespace Qt::StringLiterals;
using namespace CollectState;

namespace {
constexpr int stateCount = 12;

int pagesChanged(int state, Pages pages, bool off)
{
    const int content = state % 4;
    if (!off)
        return static_cast<int>(pages) + content;
    return pagesOf(state) == pages ? content : state;
}

int linksChanged(int state, bool off)
{
    const int pages = state - state % 4;
    if (off)
        return pages;
    return contentOf(state) == Content::Nothing ? pages + 1 : state;
}

int emailPhoneChanged(int state, bool off)
{
    const int pages = state - state % 4;
    switch (contentOf(state)) {
    case Content::Nothing:
        return state;
    case Content::Links:
        return off ? state : state + 1;
    case Content::Emails:
        return off ? pages + 1 : state + 1;
    case Content::Phones:
        return pages + 1;
    }
    return state;
}

/// The names as the status bar forms them: the short ones of two targets, the long one of one.
struct Names
{
    QString pages, links, alone;
};

Names namesOf(const Targets &targets)
{
    Names names;
    if (!targets.manualPages.isEmpty()) {
        names.pages = "(M)-"_L1 + targets.manualPages;
        names.alone = "(Manual)-"_L1 + targets.manualPages;
    }
    if (!targets.links.isEmpty()) {
        names.links = "(M)-"_L1 + targets.links;
        names.alone = "(Manual)-"_L1 + targets.links;
    }
    if (!targets.savedPages.isEmpty()) {
        names.pages = "(A)-"_L1 + targets.savedPages;
        names.alone = "(Auto)-"_L1 + targets.savedPages;
    }
    return names;
}
} // namespace

int CollectState::changed(int state, Kind kind, bool off)
{
    if (state < 0 || state >= stateCount)
        return state;
    switch (kind) {
    case Kind::SavedPages:
        return pagesChanged(state, Pages::Saved, off);
    case Kind::ManualPages:
        return pagesChanged(state, Pages::Manual, off);
    case Kind::Links:
        return linksChanged(state, off);
    case Kind::EmailPhone:
        return emailPhoneChanged(state, off);
    }
    return state;
}

QString CollectState::text(int state, const Targets &targets, bool faxOnly)
{
    const Names names = namesOf(targets);
    const QString both = u'[' + names.pages + ", "_L1 + names.links + u']';
    const QString alone = u'[' + names.alone + u']';
    const auto phone = faxOnly ? "Fax"_L1 : "Phone"_L1;
    const bool withPages = pagesOf(state) != Pages::Nothing;
    switch (contentOf(state)) {
    case Content::Nothing:
        return withPages ? "Urls Of Sites "_L1 + alone : QString();
    case Content::Links:
        return withPages ? "Urls Of, On Sites "_L1 + both : "Urls On Sites "_L1 + alone;
    case Content::Emails:
        return withPages ? "Urls Of, Email On "_L1 + both : "Email On Sites "_L1 + alone;
    case Content::Phones:
        return withPages ? "Urls Of, "_L1 + phone + " On "_L1 + both : phone + " On Sites "_L1 + alone;
    }
    return {};
}

bool CollectState::isTarget(const QString &list, const Targets &targets)
{
    const Names names = namesOf(targets);
    return list == names.links || list == names.pages;
}
