#include "window/commands/UrlFilterEvents.h"

#include "window/commands/CommandRows.h"

using namespace Qt::StringLiterals;

UrlFilterEvents::UrlFilterEvents(const Context &context, frmSearch &form, UrlFilters &filters, const LongWork &work)
    : mFilters(filters)
{
    static constexpr CommandRow<UrlFilterEvents> rows[] = {
        {"mnuMNAddFilter"_L1, "Sub mnuMNAddFilter_Click"_L1, &UrlFilterEvents::add},
        {"mnuMNDeleteFilter"_L1, "Sub mnuMNDeleteFilter_Click"_L1, &UrlFilterEvents::remove},
        {"mnuMNLocateFilter"_L1, "Sub mnuMNLocateFilter_Click"_L1, &UrlFilterEvents::locate},
    };
    connectCommands(*this, rows, form.menus.mnuPopUpMN, context.log, work);

    ComboBox &box = form.urlFilter.cboMNMCMNCFilter;
    const auto whenReady = [this, &form](void (UrlFilters::*action)()) {
        return [this, &form, action] {
            if (form.mbFormReady)
                (mFilters.*action)();
        };
    };
    connect(&form.urlFilter.cboMNMCMNC, &ComboBox::Click, this, whenReady(&UrlFilters::cboMNMCMNC_Click));
    connect(&box, &ComboBox::Click, this, whenReady(&UrlFilters::cboMNMCMNCFilter_Click));
    connect(&box, &ComboBox::Change, this, whenReady(&UrlFilters::cboMNMCMNCFilter_Change));
    connect(&box, &Control::doubleClicked, this, [this] { mFilters.cboMNMCMNCFilter_DblClick(); });
}
