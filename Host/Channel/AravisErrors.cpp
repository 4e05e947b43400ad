#include "Host/Channel/AravisErrors.h"

#include "Common/Text.h"

#include <arv.h>

namespace Host {

std::string Reason(const GError& error) {
    struct Status {
        int code;
        const char* words;
    };
    // The statuses of the standard that Aravis distinguishes, then its own.
    static constexpr Status statuses[] = {
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_NOT_IMPLEMENTED, "the camera does not implement the command (0x8001)"},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_PARAMETER, "invalid parameter (0x8002)"},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS, "the camera has no such address (0x8003)"},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT, "the register is write-protected (0x8004)"},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_BAD_ALIGNMENT, "bad alignment (0x8005)"},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED, "access denied (0x8006)"},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY, "the camera is busy (0x8007)"},
        {ARV_DEVICE_ERROR_TIMEOUT, "no answer"},
        {ARV_DEVICE_ERROR_GENICAM_NOT_FOUND, "its GenICam description cannot be read"},
    };
    if (error.domain == ARV_DEVICE_ERROR) {
        for (const Status& status : statuses) {
            if (status.code == error.code) {
                return status.words;
            }
        }
    }
    return Common::InOneLine(error.message);
}

void SilenceAravis() {
    g_log_set_default_handler([](const char*, GLogLevelFlags, const char*, void*) {}, nullptr);
}

} // namespace Host
