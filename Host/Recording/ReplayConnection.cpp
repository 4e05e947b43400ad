#include "Host/Recording/ReplayConnection.h"

#include "Host/Errors.h"

#include <algorithm>

namespace Host {

bool ReplayConnection::HasControl() const {
    const auto& accesses = Source().accesses;
    return std::none_of(accesses.begin(), accesses.end(),
                        [](const RecordedAccess& access) { return access.write && access.failure.kind == noControl; });
}

std::unique_ptr<PictureSource> ReplayConnection::OpenStream(const PictureFormat& /*format*/) {
    throw OpenError("a recording holds no pictures");
}

} // namespace Host
