// The editor of search-site records under a user at random, held against a plain record of seven families with five
// slots each: what each command answers, what stands in the row, and what the boxes list.
#include "pages/LinkStages.h"
#include "support/ProgramFixture.h"
#include "util/RandomText.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {
using Change = SiteEditing::Change;

/// One family as it is told: values as they are stored.
struct PlainFamily
{
    std::array<QString, 5> slots;

    QString *holder(const QString &value)
    {
        for (QString &slot : slots) {
            if (slot.toLower() == value.toLower())
                return &slot;
        }
        return nullptr;
    }
    QString add(const QString &value, const QString &text)
    {
        if (holder(value))
            return text + u" exists"_s;
        QString *free = holder({});
        if (!free)
            return u"Not added"_s;
        *free = value;
        return text + u" added"_s;
    }
    QString remove(const QString &value, const QString &text)
    {
        QString *found = holder(value);
        if (!found)
            return text + u" not deleted"_s;
        found->clear();
        return text + u" deleted"_s;
    }
    [[nodiscard]] QStringList filled() const
    {
        QStringList values;
        for (const QString &slot : slots) {
            if (!slot.isEmpty())
                values.append(slot);
        }
        return values;
    }
};

class RandomEditor : public ProgramTest
{
  protected:
    RandomEditor()
    {
        load();
        database().DeleteRecords(u"SearchSites"_s, {}, {}, false);
        addSite();
        addRow(database(), u"SearchSites"_s, {{u"SiteName"_s, u"Other"_s}, {u"Url-3"_s, u"www.taken.com"_s}});
        program->siteEditing.LoadSearchSiteData(SiteEditing::allNames);
        form().siteEditor.cboSD(1).setListIndex(0);
        families[SiteField::Url].slots[0] = u"www.seek.com"_s;
    }
    static bool isCounted(SiteField field) { return field == SiteField::UrlMC || field == SiteField::UrlMNC; }
    ComboBox &box(SiteField field) { return form().siteEditor.cboSD(SiteEditing::SDTranslateSDtoSDC(field)); }

    /// What the command has to answer, from the text and the count that stand in the boxes.
    QString told(SiteField field, const QString &text, int count, Change change)
    {
        if (text.isEmpty())
            return {};
        PlainFamily &family = families[field];
        if (field == SiteField::Url && text.contains(u'.')) {
            if (text.toLower() == u"www.taken.com"_s)
                return u"Exists in Other"_s;
            if (family.holder(text))
                return u"Exists in Seek"_s;
        }
        const QString value = isCounted(field) ? text + u"<~Dorv~>%1"_s.arg(count) : text;
        return change == Change::Add ? family.add(value, text) : family.remove(value, text);
    }
    QStringList storedSlots(SiteField field)
    {
        QStringList slots;
        for (int slot = 1; slot <= 5; ++slot)
            slots.append(rows(u"SearchSites"_s, SiteRecords::slotName(field, slot)).value(0));
        return slots;
    }
    void expectSame(SiteField field, int round)
    {
        const PlainFamily &family = families[field];
        ASSERT_EQ(storedSlots(field), QStringList(family.slots.begin(), family.slots.end())) << round;
        QStringList shown;
        for (const QString &value : family.filled())
            shown.append(value.section(u"<~Dorv~>"_s, 0, 0));
        ASSERT_EQ(box(field).items(), shown) << round;
    }

    std::map<SiteField, PlainFamily> families;
    RandomText random{21};
};
} // namespace

TEST_F(RandomEditor, EqualsThePlainRecord)
{
    const QStringList texts{u"a"_s, u"A"_s, u"b"_s, u"c="_s, u"d"_s, u"e"_s, u"f"_s, u"F"_s, QString()};
    const QStringList servers{u"www.a.com"_s, u"WWW.A.COM"_s,    u"www.b.com"_s,     u"www.c.org"_s, u"www.d.net"_s,
                              u"www.e.de"_s,  u"www.seek.com"_s, u"WWW.taken.com"_s, u"nowhere"_s};
    for (int round = 0; round < 600; ++round) {
        const auto field = static_cast<SiteField>(random.number(5, 11));
        const Change change = random.oneIn(3) ? Change::Remove : Change::Add;
        const QString text = random.oneOf(field == SiteField::Url ? servers : texts);
        const int count = random.number(0, 2);
        box(field).setText(text);
        if (isCounted(field))
            form().siteEditor.incSDMCMNC(field == SiteField::UrlMC ? 0 : 1).setText(QString::number(count));
        const QString wanted = told(field, text, count, change);
        ASSERT_EQ(program->siteEditing.ModifySearchData(field, change), wanted) << round << ' ' << qPrintable(text);
        expectSame(field, round);
    }
    EXPECT_EQ(rows(u"SearchSites"_s, u"Url-3"_s).value(1), u"www.taken.com"_s);
}
