#include "FuzzInput.h"
#include "pages/PageTexts.h"
#include "util/Arrays.h"
#include "util/PlainUtility.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const bool minded = input.flag();
    const int mode = input.number(0, 2);
    const QStringList items = input.list(70, 12);
    const QString page = input.text(3000);
    constexpr Demand demands[] = {Demand::All, Demand::Any, Demand::Select};
    const auto sensitivity = minded ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const plain::Decision must = plain::IsMCGo(page, items, mode, minded);
    demandEqual(mustContain(page, items, demands[mode], sensitivity), Screening{must.mayGo, must.item}, "mustContain");
    const plain::Decision mustNot = plain::IsMNCGo(page, items, minded);
    demandEqual(mustNotContain(page, items, sensitivity), Screening{mustNot.mayGo, mustNot.item}, "mustNotContain");
    const QStringList lines = page.split(u'|');
    demandEqual(cUtility::FilterArray(lines, items), plain::FilterArray(lines, items), "FilterArray");
    return 0;
}
