#include "Host/Channel/Discovery.h"

#include "Common/Bootstrap.h"
#include "Host/Channel/AravisErrors.h"
#include "Host/Channel/Datagrams.h"
#include "Host/Errors.h"

#include <arv.h>

namespace Host {

namespace {

std::string Text(const char* text) { return text == nullptr ? "" : text; }

/// Not available from Aravis.
std::string UserNameOf(const std::string& address) {
    try {
        using namespace Common::Bootstrap;
        return ReadTextWithoutControl(address, userDefinedName, userDefinedNameLength).value_or("");
    } catch (const OpenError&) { // the camera is in another subnet
        return "";
    }
}

} // namespace

std::vector<FoundCamera> DiscoverCameras() {
    SilenceAravis();
    arv_disable_interface("USB3Vision");
    arv_update_device_list();
    std::vector<FoundCamera> found;
    for (unsigned int i = 0; i < arv_get_n_devices(); ++i) {
        const std::string address = Text(arv_get_device_address(i));
        found.push_back({address, Text(arv_get_device_physical_id(i)), Text(arv_get_device_model(i)),
                         Text(arv_get_device_serial_nbr(i)), UserNameOf(address)});
    }
    return found;
}

} // namespace Host
