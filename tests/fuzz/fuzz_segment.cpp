#include "FuzzInput.h"
#include "pages/PageTexts.h"
#include "util/PlainUtility.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const QString start = input.text(5);
    const QString stop = input.text(5);
    const QString text = input.text(300);
    const plain::Segment expected = plain::GetStringSegment(text, start, stop);
    demandEqual(GetStringSegment(text, start, stop),
                StringSegment{expected.text, TagReport(expected.start), TagReport(expected.stop)}, "GetStringSegment");
    return 0;
}
