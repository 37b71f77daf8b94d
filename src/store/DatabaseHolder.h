// The place of the one open database object. Operations reach it through the holder, so that another database can take
// its place under them.
#pragma once

#include "store/cAdoMdb.h"

#include <memory>

class DatabaseHolder
{
  public:
    /// The database object. Error 91 where there is none.
    [[nodiscard]] cAdoMdb *operator->() const { return &get(); }
    [[nodiscard]] cAdoMdb &operator*() const { return get(); }
    [[nodiscard]] cAdoMdb &get() const;

    [[nodiscard]] bool isSet() const { return mobjDB != nullptr; }
    /// Takes the place; the object that stood there goes.
    void set(std::unique_ptr<cAdoMdb> database) { mobjDB = std::move(database); }
    void reset() { mobjDB.reset(); }

  private:
    std::unique_ptr<cAdoMdb> mobjDB;
};
