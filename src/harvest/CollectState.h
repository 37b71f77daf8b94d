// What is collected while the user browses by hand, as one number: a page part and a content part. Works on numbers and
// texts alone.
#pragma once

#include <QString>

/// The number is page part (0 nothing, 4 addresses of pages to a manual list, 8 to the Saved Urls) plus content part (0
/// nothing, 1 links of the page, 2 its mail addresses, 3 its telephone numbers).
namespace CollectState {
enum class Content { Nothing = 0, Links = 1, Emails = 2, Phones = 3 };
enum class Pages { Nothing = 0, Manual = 4, Saved = 8 };
/// The four kinds of change, as SetAutoCollectState numbers them.
enum class Kind { SavedPages = 1, ManualPages = 2, Links = 3, EmailPhone = 4 };

[[nodiscard]] constexpr Content contentOf(int state)
{
    return static_cast<Content>(state % 4);
}
[[nodiscard]] constexpr Pages pagesOf(int state)
{
    return static_cast<Pages>(state / 4 * 4);
}

/// The state behind `state` when a kind is switched on, or off. The two kinds of pages replace each other. Mail
/// addresses and numbers are stages of collecting links: switched on once more, links become mail addresses, those
/// become numbers, and those links again; what collects none of them stays as it is.
[[nodiscard]] int changed(int state, Kind kind, bool off);

/// The lists that are collected into, by the names that the user sees; "" for none.
struct Targets
{
    QString manualPages, links, savedPages;
    bool operator==(const Targets &) const = default;
};
/// What the status bar says of it; "" while nothing is collected.
[[nodiscard]] QString text(int state, const Targets &targets, bool faxOnly);
/// True when `list`, as it stands, is the name under which a list is collected into.
[[nodiscard]] bool isTarget(const QString &list, const Targets &targets);
} // namespace CollectState
