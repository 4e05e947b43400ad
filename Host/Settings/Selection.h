#pragma once

#include "Host/Settings/Settings.h"

#include <string>
#include <vector>

namespace Host {

/// The functions that a command takes: those of --only, or all, without those of --except.
class Selection {
public:
    /// @param onlyNames, exceptNames names of functions, separated by commas, without an index for all instances
    /// @throws UsageError for an unknown name
    Selection(const Functions& functions, const std::vector<std::string>& onlyNames,
              const std::vector<std::string>& exceptNames);

    [[nodiscard]] bool Takes(const Instance& instance) const;
    /// Whether it is taken, or is the mode that locks one that is.
    [[nodiscard]] bool Needs(const Instance& instance) const;

    /// Reports the names of which the settings of a file have no value.
    /// @return whether there are values of all names of --only
    bool ReportAbsent(const Settings& settings, const std::string& file) const;

private:
    struct Named {
        std::string name;
        std::vector<Instance> instances;
    };
    [[nodiscard]] static std::vector<Named> Find(const Functions& table, const std::vector<std::string>& names);
    [[nodiscard]] static bool Has(const std::vector<Named>& all, const Instance& instance);

    const Functions& table;
    std::vector<Named> only;
    std::vector<Named> except;
};

} // namespace Host
