// What is chosen for collecting, against a plain model of three menus with one choice each.
#include "harvest/CollectChoice.h"

#include "support/FormFixture.h"

#include <array>
#include <random>

using namespace Qt::StringLiterals;

namespace {
constexpr int lists = 5;
enum Target { Links, ManualPages, SavedPages };

/// The plain telling: each menu has one choice or none, pages of the two kinds replace one another in the state, and
/// mail addresses and numbers are stages of collecting links.
struct Model
{
    std::array<int, 3> chosen{-1, -1, -1};
    int pages = 0, content = 0;

    void toggle(Target target, int list)
    {
        const bool off = chosen[target] == list;
        chosen[target] = off ? -1 : list;
        if (target == Links) {
            content = off ? 0 : std::max(content, 1);
            return;
        }
        const int kind = target == ManualPages ? 4 : 8;
        if (!off)
            pages = kind;
        else if (pages == kind)
            pages = 0;
    }
    void nextStage()
    {
        if (content != 0)
            content = content % 3 + 1;
    }
    [[nodiscard]] int state() const { return pages + content; }
};

class CollectChoiceTest : public FormTest
{
  protected:
    CollectChoiceTest()
    {
        QObject::connect(&choice, &CollectChoice::coloursAsked, &form, [this] { ++colours; });
    }
    void toggle(Target target, int list)
    {
        if (target == Links)
            choice.SetAutoCollectLinks(list);
        else if (target == ManualPages)
            choice.SetAutoCollectPgUrlsMN(list);
        else
            choice.SetAutoCollectPgUrlsAN(list);
    }
    [[nodiscard]] std::array<int, 3> chosen() const
    {
        return {choice.GetAutoCollectLinksChecked(), choice.GetAutoCollectPgUrlsCheckedMN(),
                choice.GetAutoCollectPgUrlsCheckedAN()};
    }
    [[nodiscard]] MenuItem &saved(int list) { return form.menus.mnuPopUpANStatus.item("mnuANStatusACList"_L1, list); }

    ManualDesk desk{form, status};
    CollectChoice choice{context, form.collect, form.menus, form.lists, form.saved, form.options, desk};
    int colours = 0;
};
} // namespace

TEST_F(CollectChoiceTest, NothingIsChosenAtFirst)
{
    EXPECT_EQ(choice.state(), 0);
    EXPECT_EQ(chosen(), (std::array{-1, -1, -1}));
    choice.ShowAutoCollectState();
    EXPECT_TRUE(statuses.isEmpty()) << "there is nothing to tell";
}

TEST_F(CollectChoiceTest, AnyClicksAgreeWithThePlainModel)
{
    std::mt19937 random(20240501);
    Model model;
    for (int step = 0; step < 5000; ++step) {
        const auto target = static_cast<Target>(random() % 4);
        const int list = static_cast<int>(random() % lists);
        colours = 0;
        if (target <= SavedPages) {
            toggle(target, list);
            model.toggle(target, list);
        } else {
            choice.SetAutoCollectState(CollectState::Kind::EmailPhone, false);
            model.nextStage();
        }
        ASSERT_EQ(choice.state(), model.state()) << "step " << step;
        ASSERT_EQ(chosen(), model.chosen) << "step " << step;
        ASSERT_GE(colours, 1) << "what shows the state is told of each change";
    }
}

TEST_F(CollectChoiceTest, TheLabelNamesTheListOfThePagesInWhiteOnBlue)
{
    const Label &label = form.collect.lblAutoPgUrls;
    toggle(ManualPages, 2);
    EXPECT_EQ(label.caption(), u"C"_s);
    EXPECT_EQ(label.backColor(), Colours::Blue);
    EXPECT_EQ(label.foreColor(), Colours::White);
    toggle(ManualPages, 2);
    EXPECT_EQ(label.caption(), QString());
    EXPECT_EQ(label.backColor(), Colours::ButtonFace);
    EXPECT_EQ(label.foreColor(), Colours::WindowText);
}

TEST_F(CollectChoiceTest, SavedPagesThatCannotBeCollectedGoOffAndCannotBeSwitchedOn)
{
    toggle(SavedPages, 3);
    EXPECT_EQ(choice.state(), 8);
    choice.DisableANAutoC(false);
    EXPECT_EQ(choice.state(), 0);
    for (int list = 0; list < lists; ++list)
        EXPECT_FALSE(saved(list).isEnabled());
    choice.DisableANAutoC(true);
    EXPECT_TRUE(saved(3).isEnabled());
    EXPECT_FALSE(saved(3).isChecked()) << "the user chooses anew";
}

TEST_F(CollectChoiceTest, WhatIsCollectedIsToldInTheWordsOfTheState)
{
    toggle(Links, 0);
    EXPECT_EQ(lastStatus(), u"Urls On Sites [(Manual)-A]"_s);
    toggle(ManualPages, 1);
    EXPECT_EQ(lastStatus(), u"Urls Of, On Sites [(M)-B, (M)-A]"_s);
    form.options.chkSMD(SMD::FaxOnly).setValue(1);
    choice.SetAutoCollectState(CollectState::Kind::EmailPhone, false);
    choice.SetAutoCollectState(CollectState::Kind::EmailPhone, false);
    EXPECT_EQ(lastStatus(), u"Urls Of, Fax On [(M)-B, (M)-A]"_s);
}
