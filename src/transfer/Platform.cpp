#include "transfer/Platform.h"

#ifdef Q_OS_WIN
#include <winsock2.h>
int Platform::closeSocket(qintptr socket)
{
    return closesocket(SOCKET(socket));
}
#else
#include <unistd.h>
int Platform::closeSocket(qintptr socket)
{
    return close(int(socket));
}
#endif
