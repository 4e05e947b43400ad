#pragma once

#include "Host/Camera.h"

#include <functional>
#include <string>
#include <vector>

namespace Host {

/// What a camera is set to.
struct Settings {
    std::string model;
    std::string family;
    std::string serial;
    std::string date;                  ///< when they were taken
    std::vector<FunctionValue> values; ///< in the order of the table
    std::vector<Instance> missing{};   ///< what the camera may have, but could not be read
    std::vector<Instance> unread{};    ///< of these, what an open camera has an address for

    [[nodiscard]] const Value* Find(const Instance& instance) const;
    [[nodiscard]] bool IsMissing(const Instance& instance) const;
    /// Whether an automatic mode, on in these settings, moves the function.
    [[nodiscard]] bool IsMoved(const Instance& instance) const;
};

/// What to do about a function that cannot be read.
using Unreadable = std::function<void(const Instance&, const Reading&)>;

/// Reads what a camera is set to: every function that can be set back, outputs and network included. What the model
/// lacks or has not available now is left out; what cannot be read otherwise is missing.
/// @param unreadable is told of what is missing, before it is noted; may throw
/// @param outputs    whether outputs are read, which may be many
[[nodiscard]] Settings TakeSettings(const Camera& camera, const Unreadable& unreadable, bool outputs = true);

/// The functions in words: "gain, overlayshow", once each.
[[nodiscard]] std::string NamesOf(const std::vector<Instance>& instances);

/// A function with which two settings differ; null where one of them has no value of it.
struct Difference {
    Instance instance;
    const Value* first = nullptr;
    const Value* second = nullptr;
};

/// Compares settings of two cameras of one family. What an automatic mode moves in either of them is not compared, nor
/// what is missing in either.
[[nodiscard]] std::vector<Difference> Compare(const Settings& first, const Settings& second);

/// What is missing in the first, and has or may have a value in the second that it could have been compared with.
[[nodiscard]] std::vector<Instance> Uncompared(const Settings& first, const Settings& second);

} // namespace Host
