// Removals of blocked texts in one go against the same removals one by one, each a walk over the rows.
#include "lists/BlockedRows.h"

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace {
using Fate = BlockedRows::Fate;
using OnTheWay = BlockedRows::OnTheWay;

struct PlainRow
{
    QString text, other;
    int number;
};

/// One removal, as one walks.
void removePlainly(std::vector<PlainRow> &rows, const QString &item, OnTheWay onTheWay)
{
    for (auto row = rows.begin(); row != rows.end();) {
        if (row->text.isEmpty() && (onTheWay == OnTheWay::WithoutText || row->other.isEmpty())) {
            row = rows.erase(row);
        } else if (row->text == item && row->other.isEmpty()) {
            rows.erase(row);
            return;
        } else if (row->text == item) {
            row->text.clear();
            return;
        } else {
            ++row;
        }
    }
}

std::vector<Fate> plainFates(std::vector<PlainRow> rows, const QStringList &items, OnTheWay onTheWay)
{
    const std::vector<PlainRow> before = rows;
    for (const QString &item : items)
        removePlainly(rows, item, onTheWay);
    std::vector<Fate> fates(before.size(), Fate::Gone);
    for (const PlainRow &row : rows) {
        const auto number = static_cast<std::size_t>(row.number);
        fates[number] = row.text == before[number].text ? Fate::Stays : Fate::Emptied;
    }
    return fates;
}
} // namespace

TEST(BlockedRows, RemovalsInOneGoDoWhatRemovalsOneByOneDo)
{
    std::mt19937 random(1);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (int round = 0; round < 3000; ++round) {
        std::vector<PlainRow> rows;
        BlockedRows inOneGo;
        const int count = below(9);
        for (int i = 0; i < count; ++i) {
            const QString text = below(3) == 0 ? QString() : QString(QChar(u'a' + below(6)));
            const QString other = below(2) == 0 ? QString() : u"x"_s;
            rows.push_back({text, other, i});
            inOneGo.append(text, !other.isEmpty());
        }
        QStringList items;
        for (int i = below(6); i > 0; --i)
            items.append(QString(QChar(u'a' + below(8))));
        const OnTheWay onTheWay = below(2) == 0 ? OnTheWay::WithoutText : OnTheWay::WhollyEmpty;
        for (const QString &item : items)
            inOneGo.remove(item, onTheWay);
        const std::vector<Fate> wanted = plainFates(rows, items, onTheWay);
        ASSERT_EQ(inOneGo.size(), wanted.size());
        for (std::size_t i = 0; i < wanted.size(); ++i)
            ASSERT_EQ(inOneGo.fate(i), wanted[i]) << "round " << round << ", row " << i;
    }
}

TEST(BlockedRows, AHundredThousandRemovalsTakeNoTime)
{
    BlockedRows rows;
    constexpr int count = 100'000;
    for (int i = 0; i < count; ++i)
        rows.append(QString::number(i), i % 3 == 0);
    for (int i = count - 1; i >= 0; --i)
        rows.remove(QString::number(i), OnTheWay::WithoutText);
    EXPECT_EQ(rows.fate(0), Fate::Emptied);
    EXPECT_EQ(rows.fate(1), Fate::Gone);
}
