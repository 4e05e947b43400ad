#include "Host/Channel/AravisErrors.h"

#include "Common/Text.h"
#include "Host/Channel/Requests.h"

#include <arv.h>

#include <utility>

namespace Host {

std::string Reason(const GError& error) {
    using Common::Gvcp::Status;
    // The statuses of the standard that Aravis distinguishes.
    static constexpr std::pair<int, Status> statuses[] = {
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_NOT_IMPLEMENTED, Status::NotImplemented},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_PARAMETER, Status::InvalidParameter},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS, Status::InvalidAddress},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT, Status::WriteProtected},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_BAD_ALIGNMENT, Status::BadAlignment},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED, Status::AccessDenied},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY, Status::Busy},
    };
    if (error.domain == ARV_DEVICE_ERROR) {
        for (const auto& [code, status] : statuses) {
            if (code == error.code) {
                return DescribeStatus(status);
            }
        }
        switch (error.code) {
        case ARV_DEVICE_ERROR_TIMEOUT:
            return noAnswer;
        case ARV_DEVICE_ERROR_GENICAM_NOT_FOUND:
            return "its GenICam description cannot be read";
        default:
            break;
        }
    }
    return Common::InOneLine(error.message);
}

void SilenceAravis() {
    g_log_set_default_handler([](const char*, GLogLevelFlags, const char*, void*) {}, nullptr);
}

} // namespace Host
