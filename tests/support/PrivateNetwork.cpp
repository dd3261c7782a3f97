#include "PrivateNetwork.h"

#include <cstring>

#include <arpa/inet.h>
#include <fcntl.h>
#include <linux/if_tun.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

namespace {

FileDescriptor datagramSocket()
{
    return FileDescriptor(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0));
}

bool raise(ifreq request)
{
    const FileDescriptor socket = datagramSocket();
    if (::ioctl(socket.get(), SIOCGIFFLAGS, &request) != 0) {
        return false;
    }
    request.ifr_flags = short(request.ifr_flags | IFF_UP);
    return ::ioctl(socket.get(), SIOCSIFFLAGS, &request) == 0;
}

bool setAddress(ifreq request, const char *address)
{
    sockaddr_in internet = {};
    internet.sin_family = AF_INET;
    ::inet_pton(AF_INET, address, &internet.sin_addr);
    std::memcpy(&request.ifr_addr, &internet, sizeof internet);
    return ::ioctl(datagramSocket().get(), SIOCSIFADDR, &request) == 0;
}

} // namespace

bool enterPrivateNetwork()
{
    if (::unshare(CLONE_NEWNET) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0) {
        return false;
    }
    ifreq loopback = {};
    std::strcpy(loopback.ifr_name, "lo");
    return raise(loopback);
}

FileDescriptor addInterface(const char *address)
{
    FileDescriptor tunnel(::open("/dev/net/tun", O_RDWR | O_CLOEXEC));
    ifreq request = {};
    request.ifr_flags = IFF_TUN | IFF_NO_PI;
    if (::ioctl(tunnel.get(), TUNSETIFF, &request) != 0 || !setAddress(request, address)
        || !raise(request)) {
        tunnel.reset();
    }
    return tunnel;
}
