#include "FuzzInput.h"
#include "pages/EmailFinder.h"
#include "pages/PlainFinders.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const QString searched = input.flag() ? QStringLiteral("@") : input.text(2);
    const QString text = input.text(200);
    RecordCounter counter;
    const plain::Emails expected = plain::CollectEmail(text, searched);
    demandEqual(cIEText::CollectEmail(text, searched, &counter), expected.list, "CollectEmail");
    demandEqual(counter.count, expected.errors, "CollectEmail (records)");
    for (const bool accept : {true, false})
        demandEqual(int(cIEText::IsThisEmailOrLink(text, accept)), plain::IsThisEmailOrLink(text, accept),
                    "IsThisEmailOrLink");
    return 0;
}
