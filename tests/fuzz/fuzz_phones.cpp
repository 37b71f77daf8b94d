#include "FuzzInput.h"
#include "pages/PhoneFinder.h"
#include "pages/PlainFinders.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const bool faxOnly = input.flag();
    const QString codes = input.text(12);
    const QString text = input.text(400);
    demandEqual(cAreaCode::FindPhoneNumbers(text, codes, faxOnly), plain::FindPhoneNumbers(text, codes, faxOnly),
                "FindPhoneNumbers");
    static_cast<void>(cAreaCode::normalizedAreaCodes(text));
    static_cast<void>(cAreaCode::AreaCode_ListItem(text, -1));
    return 0;
}
