#include "pages/LinkFilter.h"

#include "pages/LinkStages.h"
#include "util/AddressList.h"
#include "util/Text.h"

#include <algorithm>

QStringList LinkFilter::wanted(const QStringList &links) const
{
    const QStringList read = cnvHex ? LinkStages::cnvHex(links) : links;
    if (text.isEmpty() || mode == All)
        return orEmptyList(read);
    QStringList kept;
    std::copy_if(read.begin(), read.end(), std::back_inserter(kept), [&](const QString &link) {
        const bool holds = cUtility::holdsIgnoringCase(link, text);
        return (mode == Containing && holds) || (mode == NotContaining && !holds);
    });
    return orEmptyList(kept);
}
