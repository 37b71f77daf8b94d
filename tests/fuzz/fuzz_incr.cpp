#include "FuzzInput.h"
#include "util/Incr.h"
#include "util/PlainUtility.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    plain::IncrCall call;
    call.mode = input.number(-1, 6);
    call.isFile = input.flag();
    call.position = input.number(-1, 5);
    call.pad = input.flag();
    call.separator = input.text(3);
    call.step = input.text(6);
    call.newText = input.text(4);
    call.text = input.text(30); // the plain version counts in 128 bits
    demandEqual(cUtility::Incr(call.text, call.mode, call.isFile, call.position, call.newText, call.step,
                               call.separator, call.pad),
                plain::Incr(call), "Incr");
    return 0;
}
