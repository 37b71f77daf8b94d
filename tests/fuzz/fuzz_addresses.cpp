#include "FuzzInput.h"
#include "pages/Addresses.h"
#include "pages/PlainFinders.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const bool type = input.flag();
    const bool www = input.flag();
    const bool protocol = input.flag();
    const QString address = input.text(120);
    demandEqual(cIEText::GetServerFromUrl(address, {type, www, protocol}),
                plain::GetServerFromUrl(address, type, www, protocol), "GetServerFromUrl");
    for (const int mode : {0, 1})
        demandEqual(cIEText::GetProtocol(address, mode), plain::GetProtocol(address, mode), "GetProtocol");
    demandEqual(cIEText::IsUrlNumeric(address), plain::IsUrlNumeric(address), "IsUrlNumeric");
    demandEqual(cIEText::DoesThisEndInAUrl(address), plain::DoesThisEndInAUrl(address), "DoesThisEndInAUrl");
    const QStringList list = address.split(u'|');
    demandEqual(cIEText::GetUniqueServers(list), plain::GetUniqueServers(list), "GetUniqueServers");
    return 0;
}
