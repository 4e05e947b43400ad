#include "Host/Settings/Selection.h"

#include "Common/Text.h"
#include "Host/Command.h"
#include "Host/OutputFile.h"

#include <algorithm>
#include <sstream>

namespace Host {

Selection::Selection(const Functions& functions, const std::vector<std::string>& onlyNames,
                     const std::vector<std::string>& exceptNames)
    : table(functions),
      only(Find(functions, onlyNames)),
      except(Find(functions, exceptNames)) {}

std::vector<Selection::Named> Selection::Find(const Functions& table, const std::vector<std::string>& names) {
    std::vector<Named> found;
    for (const std::string& several : names) {
        std::istringstream list(several);
        for (std::string name; std::getline(list, name, ',');) {
            found.push_back({name, FindIn(table, name)});
        }
    }
    return found;
}

bool Selection::Has(const std::vector<Named>& all, const Instance& instance) {
    return std::any_of(all.begin(), all.end(), [&](const Named& named) {
        return std::find(named.instances.begin(), named.instances.end(), instance) != named.instances.end();
    });
}

bool Selection::Takes(const Instance& instance) const {
    return (only.empty() || Has(only, instance)) && !Has(except, instance);
}

bool Selection::Needs(const Instance& instance) const {
    return Takes(instance) || std::any_of(table.begin(), table.end(), [&](const Function& locked) {
               const auto instances = InstancesOf(locked);
               return locked.lock && locked.lock->mode == instance->name &&
                      std::any_of(instances.begin(), instances.end(),
                                  [&](const Instance& each) { return Takes(each); });
           });
}

bool Selection::ReportAbsent(const Settings& settings, const std::string& file) const {
    const auto absentOf = [&](const std::vector<Named>& all) {
        std::vector<std::string> names;
        for (const Named& named : all) {
            const bool has = std::any_of(named.instances.begin(), named.instances.end(),
                                         [&](const Instance& each) { return settings.Find(each) != nullptr; });
            if (!has) {
                names.push_back(named.name);
            }
        }
        return names;
    };
    std::vector<std::string> absent = absentOf(only);
    const bool hasAll = absent.empty();
    const auto more = absentOf(except);
    absent.insert(absent.end(), more.begin(), more.end());
    if (!absent.empty()) {
        PrintError(DescribeFile(file) + " has no values of these: " + Common::Join(absent));
    }
    return hasAll;
}

} // namespace Host
