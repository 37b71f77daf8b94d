// The events of the two filter boxes of the Manual tab, and the commands under "IE Url Filters".
#pragma once

#include "app/LongWork.h"
#include "lists/UrlFilters.h"

class UrlFilterEvents : public QObject
{
    Q_OBJECT

  public:
    UrlFilterEvents(const Context &context, frmSearch &form, UrlFilters &filters, const LongWork &work);

  private:
    void add() { mFilters.AddMNUrlFilter(); }
    void remove() { mFilters.RemoveMNUrlFilter(); }
    void locate() { mFilters.mnuMNLocateFilter_Click(); }

    UrlFilters &mFilters;
};
