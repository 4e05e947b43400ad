#include "Host/CameraName.h"

#include "Common/Ipv4.h"
#include "Common/Text.h"
#include "Host/Channel/Discovery.h"
#include "Host/Errors.h"
#include "Simulation/Cameras.h"

#include <arpa/inet.h>
#include <netdb.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

namespace Host {

namespace {

using By = CameraName::By;

struct Prefix {
    std::string_view text;
    By by;
    const char* what = "";                     ///< in messages
    std::string FoundCamera::*found = nullptr; ///< what a discovered camera reports
};

constexpr Prefix prefixes[] = {
    {"gige:", By::Address},
    {"serial:", By::SerialNumber, "the serial number", &FoundCamera::serial},
    {"mac:", By::Mac, "the MAC address", &FoundCamera::mac},
    {"name:", By::UserName, "the user-defined name", &FoundCamera::userName},
    {"replay:", By::Recording},
};

/// @return null for a model
const Prefix* PrefixOf(const std::string& camera) {
    const auto* const found = std::find_if(std::begin(prefixes), std::end(prefixes),
                                           [&](const Prefix& prefix) { return camera.starts_with(prefix.text); });
    return found == std::end(prefixes) ? nullptr : found;
}

/// Not a mistyped address, which the resolver would complete: 192.168.1 is 192.168.0.1 there.
bool IsHost(const std::string& text) {
    in_addr ignored{};
    return inet_aton(text.c_str(), &ignored) == 0 && text.find_first_not_of("0123456789.") != std::string::npos &&
           std::all_of(text.begin(), text.end(), [](unsigned char character) {
               return std::isalnum(character) != 0 || character == '_' || character == '.' || character == '-';
           });
}

/// @return nothing if the text is invalid for its prefix
std::optional<std::string> ParseText(By by, const std::string& text) {
    if (by == By::Address) {
        return Common::ParseAddress(text) || IsHost(text) ? std::optional(text) : std::nullopt;
    }
    if (by == By::Recording) {
        return text.empty() ? std::nullopt : std::optional(text);
    }
    return by == By::Mac ? ParseMac(text) : text.empty() ? std::nullopt : Common::Unescaped(text);
}

std::string Resolve(const std::string& host) {
    addrinfo wanted{};
    wanted.ai_family = AF_INET;
    wanted.ai_socktype = SOCK_DGRAM;
    addrinfo* first = nullptr;
    if (const int error = getaddrinfo(host.c_str(), nullptr, &wanted, &first); error != 0) {
        throw CameraUnavailable("the host \"" + host + "\" has no IPv4 address: " + gai_strerror(error));
    }
    char address[INET_ADDRSTRLEN];
    getnameinfo(first->ai_addr, first->ai_addrlen, address, sizeof address, nullptr, 0, NI_NUMERICHOST);
    freeaddrinfo(first);
    return address;
}

std::string DescribeCandidate(const FoundCamera& camera) {
    const std::string name = camera.userName.empty() ? "" : ", \"" + Common::Escaped(camera.userName) + '"';
    return camera.address + " (" + Common::Escaped(camera.model) + ", " + Common::Escaped(camera.serial) + name + ")";
}

} // namespace

std::optional<std::string> ParseMac(std::string text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto character = static_cast<unsigned char>(text[i]);
        const bool separates = i % 3 == 2;
        if (separates ? character != ':' && character != '-' : std::isxdigit(character) == 0) {
            return std::nullopt;
        }
        text[i] = separates ? ':' : static_cast<char>(std::tolower(character));
    }
    return text.size() == std::size("02:00:12:07:07:10") - 1 ? std::optional(text) : std::nullopt;
}

bool IsCamera(const std::string& text) {
    const auto models = Simulation::ModelNames();
    return PrefixOf(text) != nullptr || std::find(models.begin(), models.end(), text) != models.end();
}

std::vector<std::string> CameraBeginnings() {
    auto beginnings = Simulation::ModelNames();
    for (const Prefix& prefix : prefixes) {
        beginnings.emplace_back(prefix.text);
    }
    return beginnings;
}

CameraName ParseCameraName(const std::string& camera) {
    const Prefix* const prefix = PrefixOf(camera);
    if (prefix == nullptr && camera.find(':') == std::string::npos && !Common::ParseAddress(camera)) {
        return {By::Model, camera};
    }
    const auto text = prefix == nullptr ? std::nullopt : ParseText(prefix->by, camera.substr(prefix->text.size()));
    if (!text) {
        throw UsageError("invalid camera \"" + camera +
                         "\": give a model, gige:ADDRESS, such as gige:192.168.1.10, gige:HOST, serial:NUMBER, "
                         "mac:ADDRESS, name:NAME, or replay:FILE");
    }
    return {prefix->by, *text};
}

std::string FindAddress(const CameraName& name) {
    if (name.by == By::Address) {
        return Common::ParseAddress(name.text) ? name.text : Resolve(name.text);
    }
    const auto* const prefix =
        std::find_if(std::begin(prefixes), std::end(prefixes), [&](const Prefix& each) { return each.by == name.by; });
    std::vector<FoundCamera> found = DiscoverCameras();
    std::erase_if(found, [&](const FoundCamera& camera) { return camera.*prefix->found != name.text; });
    const std::string wanted = std::string(prefix->what) + " \"" + Common::Escaped(name.text) + '"';
    if (found.empty()) {
        throw CameraUnavailable("no camera with " + wanted + " was found; qdv12host discover lists the cameras");
    }
    if (found.size() > 1) {
        std::vector<std::string> candidates(found.size());
        std::transform(found.begin(), found.end(), candidates.begin(), DescribeCandidate);
        std::sort(candidates.begin(), candidates.end()); // they answer in any order
        throw OpenError("several cameras have " + wanted + ": " + Common::Join(candidates) +
                        "; name one as gige:ADDRESS");
    }
    return found.front().address;
}

} // namespace Host
