#include "FuzzInput.h"
#include "pages/Addresses.h"
#include "pages/PlainFinders.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const QString text = input.rest();
    demandEqual(cIEText::HexToDec(text), plain::HexToDec(text), "HexToDec");
    demandEqual(cIEText::CheckForInvalidUrlChar(text), plain::CheckForInvalidUrlChar(text), "CheckForInvalidUrlChar");
    return 0;
}
