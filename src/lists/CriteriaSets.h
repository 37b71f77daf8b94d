// Sets of criteria: named pairs of lists of texts that pages must, or must not, contain. A set is one row of that name
// in the tables MC and MNC; the two list boxes show the set in force, and pages are tested against what is shown. Knows
// sites.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "store/DatabaseHolder.h"

class CriteriaSets
{
  public:
    /// The two lists of a set.
    enum class List { MustContain, MustNotContain };

    CriteriaSets(const Context &context, Criteria &criteria, DatabaseHolder &database)
        : mContext(context), mCriteria(criteria), mDatabase(database)
    {
    }

    /// The names of all sets into their box; the lists are empty until one is chosen.
    void LoadMCMNC();
    /// Fills both lists from the set `name`, or from the chosen one with "".
    void AssignMaskElements(const QString &name = {});

    // The commands answer with the status text that tells what was done; "" where nothing was, or after an error.
    /// Asks for a name and adds an empty set, which is then the chosen one.
    [[nodiscard]] QString AddMCMNCSet();
    [[nodiscard]] QString RemoveMCMNCSet();
    /// Adds `item`, asking for one with "", to the chosen set: 40 at most, each once without regard to case.
    QString AddMC(List list, const QString &item = {});
    /// Takes `item`, or with "" the chosen one, out of the chosen set. Its column stays a gap until the next item.
    QString RemoveMC(List list, const QString &item = {});
    QString ClearMC(List list);

    /// Takes out every selected item.
    void RemoveMCMNC(List list);
    /// What was dropped on a list, one item a line.
    void drop(List list, const QString &text);
    /// The user has chosen how a list is applied: "Select" needs something selected.
    void demandChosen(List list);
    /// The tip of a list: its one selected item and how many there are, or what the list is.
    void showTip(List list);

  private:
    struct Row;
    [[nodiscard]] Row row(List list) const;
    [[nodiscard]] Recordset openSet(const Row &row);
    [[nodiscard]] bool exists(const QString &name);
    void fill(const Row &row, const QString &name);
    void withoutSelection(const Row &row);
    [[nodiscard]] QString askForName();

    Context mContext;
    Criteria &mCriteria;
    DatabaseHolder &mDatabase;
};
