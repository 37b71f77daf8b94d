// All or nothing: what is written through a database object between the making of a Transaction and its `commit` is
// kept together or not at all.
#pragma once

#include "util/Errors.h"

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
    explicit Transaction(cAdoMdb &database);
    /// Undoes what was not committed.
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    /// True when the rows are on the disk (an inner one: when they belong to the outer one). False, with the error in
    /// the log, when they are not: nothing of it may be reported as saved. A second call is False.
    [[nodiscard]] bool commit();

    [[nodiscard]] bool isActive() const { return mActive; }

  private:
    std::shared_ptr<Connection> mConnection;
    ErrorReceiver &mLog;
    bool mActive = false;
    bool mCommitted = false;
};
