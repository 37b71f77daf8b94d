// The rows of the table of blocked texts, and what becomes of them when texts are taken out: each removal walks the
// rows from the first one to its own, and takes rows on its way along. Many removals in one go cost about as much as
// one. Knows no database.
#pragma once

#include <QHash>
#include <QList>
#include <set>
#include <vector>

class BlockedRows
{
  public:
    enum class Fate { Stays, Emptied, Gone };
    /// Which rows go on the way: all without a text, or those only whose other text is missing too.
    enum class OnTheWay { WithoutText, WhollyEmpty };

    /// A row with the text of the list that is worked on, and whether it holds one of the other list.
    void append(const QString &text, bool holdsOther);
    /// One text out, with the same `onTheWay` for all of them: the first row that holds it goes, or loses the text
    /// where the other list has one there.
    void remove(const QString &text, OnTheWay onTheWay);
    [[nodiscard]] Fate fate(std::size_t row) const { return mRows[row].fate; }
    [[nodiscard]] std::size_t size() const { return mRows.size(); }

  private:
    struct Row
    {
        bool holdsOther;
        Fate fate = Fate::Stays;
    };
    std::vector<Row> mRows;
    QHash<QString, QList<std::size_t>> mRowsOf; ///< the rows that hold a text, in order
    std::set<std::size_t> mWithoutText;
};
