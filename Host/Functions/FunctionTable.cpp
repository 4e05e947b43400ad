#include "Host/Functions/FunctionTable.h"

#include <cxxabi.h>

#include <cstdlib>
#include <memory>

namespace Host {

namespace {

/// "M2VX::IGain": the name of an interface without SDK4::Control.
std::string NameOf(const std::type_info& interface) {
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> text(
        abi::__cxa_demangle(interface.name(), nullptr, nullptr, &status), &std::free);
    std::string name = text ? text.get() : interface.name();
    for (const std::string_view scope : {"SDK4::", "Control::"}) {
        name.erase(0, name.starts_with(scope) ? scope.size() : 0);
    }
    return name;
}

} // namespace

Function& FunctionTable::Add(std::string_view name, const FunctionKind& kind, Function::Getter get,
                             Function::Setter set) {
    Function& function = functions.emplace_back();
    function.name = name;
    function.topic = topic;
    function.interfaceName = NameOf(kind.interface);
    function.shape = kind.shape;
    function.get = get;
    function.set = set;
    function.indexed = kind.indexed;
    function.trigger = kind.trigger;
    return function;
}

} // namespace Host
