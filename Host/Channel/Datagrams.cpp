#include "Host/Channel/Datagrams.h"

#include "Common/Ipv4.h"
#include "Host/Channel/Requests.h"

#include <net/if.h>

#include <algorithm>

namespace Host {

bool HasNetworkInterface() {
    const auto interfaces = Common::NetworkInterfaces();
    return std::any_of(interfaces.begin(), interfaces.end(), [](const Common::NetworkInterface& each) {
        return (each.flags & (IFF_UP | IFF_LOOPBACK | IFF_POINTOPOINT)) == IFF_UP;
    });
}

std::string LocalAddressFor(const std::string& address) { return Requests(address).LocalAddress(); }

} // namespace Host
