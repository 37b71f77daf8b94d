// Wanted and unwanted texts on random pages and lists, against the plain way: one search an item.
#include "PageFixture.h"
#include "controls/cLstBx.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {
enum Mode { All, Any, Select };

class PageTestsTest : public PageTest
{
  protected:
    static constexpr std::array words{u"tea", u"Tea", u"TEAPOT", u"pot", u"coffee", u"cof", u"milk", u""};

    [[nodiscard]] QString word() { return QString::fromUtf16(words[random() % words.size()]); }
    void showPage()
    {
        QString html;
        for (unsigned i = random() % 6; i > 0; --i)
            html += word() + u' ';
        window().pages[address].html = html;
        window().show(address);
    }
    /// Fills a criterion at random; nothing is selected but in the mode that needs it.
    void fill(Criterion &criterion)
    {
        QStringList items;
        for (unsigned i = random() % 5; i > 0; --i)
            items.append(word());
        criterion.items.setItems(items);
        criterion.demand.setListIndex(static_cast<int>(random() % static_cast<unsigned>(criterion.demand.listCount())));
        criterion.caseSensitive.setValue(static_cast<int>(random() % 2));
        criterion.on.setValue(1);
        for (int i = 0; i < items.size(); ++i)
            criterion.items.setSelected(i, random() % 2 == 0);
    }
    /// Which of the tested items the page holds.
    [[nodiscard]] QList<bool> found(const Criterion &criterion, bool selectedAlone)
    {
        const QString html = window().pages[address].html;
        const auto sensitivity = criterion.caseSensitive.isOn() ? Qt::CaseSensitive : Qt::CaseInsensitive;
        QList<bool> all;
        for (int i = 0; i < criterion.items.listCount(); ++i) {
            if (!selectedAlone || criterion.items.isSelected(i))
                all.append(html.contains(criterion.items.list(i), sensitivity));
        }
        return all;
    }

    const QString address = u"http://www.site1.com/"_s;
    std::mt19937 random{7};
};
} // namespace

TEST_F(PageTestsTest, WantedTextsDecideAsOneSearchAnItemWould)
{
    Criterion &criterion = form.criteria.mustContain;
    for (int round = 0; round < 3000; ++round) {
        showPage();
        fill(criterion);
        const auto mode = static_cast<Mode>(criterion.demand.listIndex());
        const QStringList items = criterion.items.items();
        // A first selected text that is empty counts as nothing selected.
        const bool nothing =
            mode == Select && (criterion.items.selCount() == 0 ||
                               cLstBx::GetItems(criterion.items, cLstBx::Which::Selected)[0].isEmpty());
        if (nothing || window().pages[address].html.isEmpty())
            continue; // told by the tables of the screening
        const QList<bool> hits = found(criterion, mode == Select);
        const bool wanted = items.isEmpty() || (mode == Any ? hits.contains(true) : !hits.contains(false));
        PageReading page(browser);
        ASSERT_EQ(pageTests.IsMCGo(page), wanted)
            << "round " << round << ": " << items.join(u',').toStdString() << " in "
            << window().pages[address].html.toStdString() << " mode " << mode;
        ASSERT_EQ(criterion.lamp.backColor(), wanted ? Colours::Green : Colours::Red);
    }
}

TEST_F(PageTestsTest, QuickBlockedLinksAreThoseThatHoldOneOfItsTexts)
{
    for (int round = 0; round < 2000; ++round) {
        QStringList blocked;
        for (unsigned i = 1 + random() % 3; i > 0; --i)
            blocked.append(word().remove(u' '));
        form.blocking.mastrQB = blocked;
        const QString link = u"http://www."_s + word() + word() + u".com/"_s;
        bool holds = false;
        for (const QString &text : blocked)
            holds = holds || (!text.isEmpty() && link.contains(text, Qt::CaseInsensitive));
        if (blocked.contains(QString()))
            continue;
        ASSERT_EQ(pageTests.NotQB(link), !holds) << link.toStdString() << " by " << blocked.join(u',').toStdString();
    }
}

TEST_F(PageTestsTest, AreOnWhileOneOfTheTwoIs)
{
    EXPECT_FALSE(pageTests.areOn());
    form.criteria.mustNotContain.on.setValue(1);
    EXPECT_TRUE(pageTests.areOn());
    form.criteria.mustNotContain.on.setValue(0);
    form.criteria.mustContain.on.setValue(1);
    EXPECT_TRUE(pageTests.areOn());
}
