// The one number that says what is collected, and the words for it, against the tables told out in full.
#include "harvest/CollectState.h"

#include "util/QtPrint.h"

#include <gtest/gtest.h>
#include <map>

using namespace Qt::StringLiterals;
using CollectState::Kind;

namespace {
struct Change
{
    Kind kind;
    bool off;
    std::map<int, int> changes; ///< what is not named stays
};

const Change changes[] = {
    {Kind::SavedPages, false, {{0, 8}, {4, 8}, {1, 9}, {5, 9}, {2, 10}, {6, 10}, {3, 11}, {7, 11}}},
    {Kind::SavedPages, true, {{8, 0}, {9, 1}, {10, 2}, {11, 3}}},
    {Kind::ManualPages, false, {{0, 4}, {8, 4}, {1, 5}, {9, 5}, {2, 6}, {10, 6}, {3, 7}, {11, 7}}},
    {Kind::ManualPages, true, {{4, 0}, {5, 1}, {6, 2}, {7, 3}}},
    {Kind::Links, false, {{0, 1}, {4, 5}, {8, 9}}},
    {Kind::Links, true, {{1, 0}, {2, 0}, {3, 0}, {5, 4}, {6, 4}, {7, 4}, {9, 8}, {10, 8}, {11, 8}}},
    {Kind::EmailPhone, false, {{1, 2}, {2, 3}, {3, 1}, {5, 6}, {6, 7}, {7, 5}, {9, 10}, {10, 11}, {11, 9}}},
    {Kind::EmailPhone, true, {{2, 1}, {3, 1}, {6, 5}, {7, 5}, {10, 9}, {11, 9}}},
};
} // namespace

TEST(CollectStates, ChangeByTheTablesAndOthersStay)
{
    for (const Change &change : changes) {
        for (int state = 0; state < 12; ++state) {
            const auto found = change.changes.find(state);
            EXPECT_EQ(CollectState::changed(state, change.kind, change.off),
                      found == change.changes.end() ? state : found->second)
                << state << " kind " << static_cast<int>(change.kind) << " off " << change.off;
        }
    }
}

TEST(CollectStates, MailAddressesAndNumbersAreStagesOfCollectingLinks)
{
    for (const int nothing : {0, 4, 8})
        EXPECT_EQ(CollectState::changed(nothing, Kind::EmailPhone, false), nothing);
}

TEST(CollectStates, HaveTheirWords)
{
    const CollectState::Targets manual{u"A"_s, u"B"_s, {}};
    const CollectState::Targets links{{}, u"B"_s, {}};
    const CollectState::Targets saved{{}, u"B"_s, u"C"_s};
    EXPECT_EQ(CollectState::text(0, links, false), QString());
    EXPECT_EQ(CollectState::text(1, links, false), u"Urls On Sites [(Manual)-B]"_s);
    EXPECT_EQ(CollectState::text(2, links, false), u"Email On Sites [(Manual)-B]"_s);
    EXPECT_EQ(CollectState::text(3, links, false), u"Phone On Sites [(Manual)-B]"_s);
    EXPECT_EQ(CollectState::text(3, links, true), u"Fax On Sites [(Manual)-B]"_s);
    EXPECT_EQ(CollectState::text(4, {u"A"_s, {}, {}}, false), u"Urls Of Sites [(Manual)-A]"_s);
    EXPECT_EQ(CollectState::text(5, manual, false), u"Urls Of, On Sites [(M)-A, (M)-B]"_s);
    EXPECT_EQ(CollectState::text(6, manual, false), u"Urls Of, Email On [(M)-A, (M)-B]"_s);
    EXPECT_EQ(CollectState::text(7, manual, true), u"Urls Of, Fax On [(M)-A, (M)-B]"_s);
    EXPECT_EQ(CollectState::text(8, {{}, {}, u"C"_s}, false), u"Urls Of Sites [(Auto)-C]"_s);
    EXPECT_EQ(CollectState::text(9, saved, false), u"Urls Of, On Sites [(A)-C, (M)-B]"_s);
    EXPECT_EQ(CollectState::text(10, saved, false), u"Urls Of, Email On [(A)-C, (M)-B]"_s);
    EXPECT_EQ(CollectState::text(11, saved, false), u"Urls Of, Phone On [(A)-C, (M)-B]"_s);
}

TEST(CollectStates, APlainListNameIsNoTarget)
{
    const CollectState::Targets targets{u"A"_s, u"B"_s, {}};
    EXPECT_FALSE(CollectState::isTarget(u"A"_s, targets));
    EXPECT_TRUE(CollectState::isTarget(u"(M)-A"_s, targets));
    EXPECT_TRUE(CollectState::isTarget(u"(M)-B"_s, targets));
}
