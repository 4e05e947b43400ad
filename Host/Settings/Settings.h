#pragma once

#include "Host/Camera.h"

#include <functional>
#include <string>
#include <vector>

namespace Host {

/// The settings of a camera.
struct Settings {
    std::string model;
    std::string family;
    std::string serial;
    std::string date;                  ///< when they were taken
    std::vector<FunctionValue> values; ///< in the order of the table
    std::vector<Instance> missing{};   ///< functions that could not be read
    std::vector<Instance> unread{};    ///< those of them for which the camera has an address

    [[nodiscard]] const Value* Find(const Instance& instance) const;
    [[nodiscard]] bool IsMissing(const Instance& instance) const;
    /// Whether an automatic mode that is on in these settings owns the value.
    [[nodiscard]] bool IsMoved(const Instance& instance) const;
};

/// Handles a function that cannot be read.
using Unreadable = std::function<void(const Instance&, const Reading&)>;

/// Reads every function that can be set again, including outputs and network. Functions that the model lacks or that
/// are not available now are omitted; others that cannot be read are noted as missing.
/// @param unreadable gets each missing function; may throw
/// @param outputs whether to read outputs
/// @param needs which functions to read
[[nodiscard]] Settings TakeSettings(
    const Camera& camera, const Unreadable& unreadable, bool outputs = true,
    const std::function<bool(const Instance&)>& needs = [](const Instance&) { return true; });

/// "gain, overlayshow": the names without indices, once each.
[[nodiscard]] std::string NamesOf(const std::vector<Instance>& instances);

/// A function in which two settings differ; null if one of them has no value.
struct Difference {
    Instance instance;
    const Value* first = nullptr;
    const Value* second = nullptr;
};

/// Compares settings of two cameras of one family. Ignores functions that are missing in either, or owned by an
/// automatic mode in either.
[[nodiscard]] std::vector<Difference> Compare(const Settings& first, const Settings& second);

/// Functions that are missing in the first but have, or may have, a value in the second.
[[nodiscard]] std::vector<Instance> Uncompared(const Settings& first, const Settings& second);

} // namespace Host
