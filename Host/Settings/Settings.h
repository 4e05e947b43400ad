#pragma once

#include "Camera.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace Host {

struct Setting {
    Instance instance;
    Value value;
};

/// What a camera is set to.
struct Settings {
    std::string model;
    std::string family;
    std::string serial;
    std::string date;            ///< when they were taken
    std::vector<Setting> values; ///< in the order of the table

    [[nodiscard]] const Value* Find(const Instance& instance) const;
    /// Whether an automatic mode, on in these settings, moves the function.
    [[nodiscard]] bool Moved(const Instance& instance) const;
};

/// Reads what a camera is set to: every function that can be set back, outputs and network included. What the model
/// lacks or has not available now is left out.
/// @param unreadable is told of what cannot be read otherwise
/// @param outputs    whether outputs are read, which may be many
[[nodiscard]] Settings TakeSettings(const Camera& camera,
                                    const std::function<void(const Instance&, const Reading&)>& unreadable,
                                    bool outputs = true);
/// @throw std::runtime_error for one that cannot be read, so that no settings are incomplete unnoticed
[[nodiscard]] Settings TakeSettings(const Camera& camera);

[[nodiscard]] bool IsSame(const Instance& one, const Instance& other);

/// Whether a camera has no such value, or none for now.
[[nodiscard]] bool IsAbsent(const Reading& reading);

/// Writes settings to a file as JSON. A file that is there is replaced as a whole or not at all.
/// @throw UsageError for a file that cannot be written
void WriteSettings(const Settings& settings, const std::filesystem::path& file);

/// @throw UsageError for a file that is not there, is no such file or a damaged one, or of another format version
[[nodiscard]] Settings ReadSettings(const std::filesystem::path& file);

/// A function with which two settings differ; null where one of them has no value of it.
struct Difference {
    Instance instance;
    const Value* first = nullptr;
    const Value* second = nullptr;
};

/// Compares settings of two cameras of one family; what an automatic mode moves in either of them is not compared.
[[nodiscard]] std::vector<Difference> Compare(const Settings& first, const Settings& second);

} // namespace Host
