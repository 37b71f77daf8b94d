// All or nothing: what is written through a database object between the making of a Transaction and its `commit` is
// kept together or not at all.
#pragma once

#include "store/StoreFault.h"

#include <functional>
#include <memory>

class Connection;
class cAdoMdb;

class Transaction
{
  public:
    /// Begins. One inside another is a part of the outer one: it can be undone alone, and is kept only with the outer
    /// one. Where it cannot begin (no open connection, a file that cannot be locked or written) the error goes to the
    /// database object's log, and `commit` will be False; until the Transaction is gone nothing can be written through
    /// the database object, so that no row is written outside it.
    /// A file that another program writes to is waited for as many milliseconds as `patience` says.
    explicit Transaction(cAdoMdb &database, int patience = usualPatience);
    /// Undoes what was not committed.
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    /// True when the rows are on the disk, in the file at the database's path (an inner one: when they belong to the
    /// outer one). False, with the error in the log, when they are not: nothing of it may be reported as saved. False
    /// too, and nothing is kept, when the file refused a row on the way: what is kept is whole. A second call is False.
    [[nodiscard]] bool commit() { return commit(atOnce); }
    /// The same for much work, whose writing may take a while: `waiting` decides how it is waited for, and passes on
    /// what is thrown.
    using Waiting = std::function<void(const std::function<void()> &writing)>;
    [[nodiscard]] bool commit(const Waiting &waiting);

    /// What befell the file, when the transaction could not begin or `commit` was False; None while all is well. What
    /// is wrong with a statement alone is no fault of the file.
    [[nodiscard]] StoreFault fault() const { return mFault; }

    static constexpr int usualPatience = 3000;

    [[nodiscard]] bool isActive() const { return mActive; }

  private:
    static void atOnce(const std::function<void()> &writing) { writing(); }

    std::shared_ptr<Connection> mConnection;
    ErrorReceiver &mLog;
    StoreFault mFault = StoreFault::None;
    bool mActive = false;
    bool mCommitted = false;
};
