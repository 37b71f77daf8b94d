#include "FuzzInput.h"
#include "web/PlainFinders.h"
#include "web/TagContent.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const QString tag = input.text(6);
    const QString endTag = input.text(6);
    const QString markup = input.text(80);
    demandEqual(cIEText::Get_HtmlTag_Content(tag, endTag, markup, nullptr),
                plain::Get_HtmlTag_Content(tag, endTag, markup).list, "Get_HtmlTag_Content");
    return 0;
}
