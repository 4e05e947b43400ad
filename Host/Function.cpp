#include "Host/Function.h"

#include "Host/Functions/Codes.h"

#include <algorithm>

namespace Host {

bool FieldLimits::Admits(std::int64_t number) const {
    return admitted.empty() ? number >= min && number <= max
                            : std::find(admitted.begin(), admitted.end(), number) != admitted.end();
}

bool Lock::IsOpen(const Value& value) const {
    return std::find(open.begin(), open.end(), value.numbers.at(0)) != open.end();
}

Function& Function::Range(std::int64_t min, std::int64_t max) {
    limits.assign(shape.fields.size(), {.min = min, .max = max});
    return *this;
}

Function& Function::OneOf(std::int64_t first, std::int64_t last) {
    Range(first, last);
    for (FieldLimits& field : limits) {
        for (std::int64_t number = first; number <= last; ++number) {
            field.admitted.push_back(number);
        }
    }
    return *this;
}

Function& Function::OneOf(Host::Codes named) {
    OneOf(named.front().value, named.back().value);
    for (FieldLimits& field : limits) {
        field.admitted.clear();
        for (const Code& code : named) {
            field.admitted.push_back(code.value);
        }
    }
    return Named(named);
}

Function& Function::OnOff() { return OneOf(Named::onOff); }

std::string Instance::Name() const {
    return std::string(function->name) + (function->indexed ? "." + std::to_string(index) : "");
}

std::vector<Instance> InstancesOf(const Function& function) {
    std::vector<Instance> instances;
    for (std::uint32_t index = 0; index < function.count; ++index) {
        instances.push_back({&function, index});
    }
    return instances;
}

} // namespace Host
