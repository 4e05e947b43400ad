#include "Host/Channel/Availability.h"

#include "Common/Bootstrap.h"
#include "Common/Ipv4.h"
#include "Host/Channel/Requests.h"
#include "Host/Errors.h"

namespace Host {

using namespace Common::Bootstrap;

std::string DescribeController(const std::string& camera, const Controller& controller) {
    const std::string where =
        Common::PrintAddress(controller.address) + ":" + std::to_string(controller.port & 0xFFFFU);
    return camera + " is controlled by another program" + (controller.address == 0 ? "" : " at " + where);
}

void RequireAvailable(const std::string& camera, bool control) {
    constexpr int once = 1; // the next question comes soon enough
    Requests requests(camera, once);
    const auto privilege = requests.ReadRegister(controlChannelPrivilege);
    const std::string name = "the camera at " + camera;
    if (!privilege) {
        throw CameraUnavailable(name + " could not be opened: " + noAnswer);
    }
    const auto wordOf = [](const std::optional<Common::Gvcp::Answer>& answer) {
        const bool isWord = answer && answer->status == Common::Gvcp::Status::Success &&
                            answer->payload.size() == Common::Gvcp::wordSize;
        return isWord ? Common::Gvcp::Get32(answer->payload) : 0;
    };
    if (const std::uint32_t held = wordOf(privilege); control && held != 0) {
        throw CameraControlled(DescribeController(name, {held, wordOf(requests.ReadRegister(primaryApplicationAddress)),
                                                         wordOf(requests.ReadRegister(primaryApplicationPort))}));
    }
}

} // namespace Host
