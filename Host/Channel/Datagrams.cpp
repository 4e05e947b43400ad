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

std::optional<std::string> ReadTextWithoutControl(const std::string& camera, std::uint32_t memory,
                                                  std::uint16_t length) {
    const auto answer = Requests(camera).ReadMemory(memory, length);
    if (!answer || answer->status != Common::Gvcp::Status::Success) {
        return std::nullopt;
    }
    const auto& text = answer->payload;
    return std::string(text.begin(), std::find(text.begin(), text.end(), 0));
}

} // namespace Host
