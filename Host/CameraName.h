#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Host {

/// Whether a text names a camera and not a file: a model, or a text with a prefix as below.
[[nodiscard]] bool IsCamera(const std::string& text);

/// How a camera may be named, for completion: the models, and the prefixes.
[[nodiscard]] std::vector<std::string> CameraBeginnings();

/// CAMERA as a command takes it.
struct CameraName {
    enum class By {
        Model,        ///< simulated; all others but recordings are on the network
        Address,      ///< gige:192.168.1.10, or gige:HOST
        SerialNumber, ///< serial:710C-0042
        Mac,          ///< mac:02:00:12:07:07:10
        UserName,     ///< name:left
        Recording,    ///< replay:session.jsonl, a recorded camera
    };

    By by = By::Model;
    std::string text; ///< without prefix; not escaped; a MAC address as discovery reports it

    bool operator==(const CameraName&) const = default;

    /// Whether it is neither simulated in this process nor recorded.
    [[nodiscard]] bool IsOnNetwork() const { return by != By::Model && by != By::Recording; }
};

/// @throws UsageError for an invalid name
[[nodiscard]] CameraName ParseCameraName(const std::string& camera);

/// A MAC address in lower case with colons, as discovery reports it; nothing for an invalid one.
[[nodiscard]] std::optional<std::string> ParseMac(std::string text);

/// The IPv4 address of a camera on the network. Asks for that of a host, and discovers cameras by what they are.
/// @throws OpenError unless one camera is found
[[nodiscard]] std::string FindAddress(const CameraName& name);

} // namespace Host
