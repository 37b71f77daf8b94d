#include "transfer/Sockets.h"

#ifdef Q_OS_WIN
#include <winsock2.h>
int Sockets::close(qintptr socket)
{
    return ::closesocket(SOCKET(socket));
}
#else
#include <unistd.h>
int Sockets::close(qintptr socket)
{
    return ::close(int(socket));
}
#endif
