#include "FuzzInput.h"
#include "pages/DownloadNames.h"
#include "transfer/TargetNames.h"

// A file name that comes out of any address stays in its folder, can be written and is made safe but once.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString raw = FuzzInput(data, size).rest();
    for (const QString &name : {DownloadNames::fileName(raw), raw}) {
        const QString safe = TargetNames::safeName(name);
        const bool isFit = safe.toUtf8().size() <= TargetNames::LongestName && !safe.contains(u'/') &&
                           !safe.contains(QChar(0)) && safe != u"." && safe != u".." &&
                           safe.isEmpty() == name.isEmpty();
        demandEqual(isFit, true, "safeName");
        demandEqual(TargetNames::safeName(safe), safe, "safeName of a safe name");
        const QString next = TargetNames::nextPath(u'/' + safe);
        demandEqual(next != u'/' + safe && next.lastIndexOf(u'/') == 0, true, "nextPath");
        demandEqual(next.toUtf8().size() <= TargetNames::LongestName + 1, true, "length of nextPath");
    }
    return 0;
}
