#include "lists/BlockedRows.h"

void BlockedRows::append(const QString &text, bool holdsOther)
{
    const std::size_t number = mRows.size();
    mRows.push_back({holdsOther});
    if (text.isEmpty())
        mWithoutText.insert(number);
    else
        mRowsOf[text].append(number);
}

void BlockedRows::remove(const QString &text, OnTheWay onTheWay)
{
    auto &holders = mRowsOf[text];
    const std::size_t own = holders.isEmpty() ? mRows.size() : holders.takeFirst();
    // A row that stays here stays for every later removal of this list too: none of them asks for it again.
    for (auto row = mWithoutText.begin(); row != mWithoutText.end() && *row < own;) {
        if (onTheWay == OnTheWay::WithoutText || !mRows[*row].holdsOther)
            mRows[*row].fate = Fate::Gone;
        row = mWithoutText.erase(row);
    }
    if (own == mRows.size())
        return;
    Row &found = mRows[own];
    found.fate = found.holdsOther ? Fate::Emptied : Fate::Gone;
    if (found.holdsOther)
        mWithoutText.insert(own);
}
