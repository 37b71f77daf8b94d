#include "FuzzInput.h"
#include "pages/PlainFinders.h"
#include "pages/TagContent.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const QString tag = input.text(6);
    const QString endTag = input.text(6);
    const QString markup = input.text(30);
    RecordCounter counter;
    const plain::Contents expected = plain::Get_HtmlTag_Content(tag, endTag, markup);
    demandEqual(cIEText::Get_HtmlTag_Content(tag, endTag, markup, &counter), expected.list, "Get_HtmlTag_Content");
    demandEqual(counter.count, expected.errors, "Get_HtmlTag_Content (records)");
    return 0;
}
