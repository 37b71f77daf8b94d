#include "store/DatabaseHolder.h"
#include "store/AdoErrors.h"

cAdoMdb &DatabaseHolder::get() const
{
    if (!mobjDB)
        throw AdoError::error(ErrorNumber::ObjectNotSet);
    return *mobjDB;
}
