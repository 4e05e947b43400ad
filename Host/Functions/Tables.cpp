#include "Host/Functions/Tables.h"

#include <algorithm>
#include <functional>
#include <initializer_list>

namespace Host {

namespace {

Functions Collect(bool ofM2VX, std::initializer_list<void (*)(FunctionTable&)> subjects) {
    Functions functions;
    FunctionTable table(functions, ofM2VX);
    for (const auto addRows : subjects) {
        addRows(table);
    }
    return functions;
}

/// Whether any family has such a function.
bool HasAny(const std::function<bool(const Function&)>& isIt) {
    const Functions& orvik = *TableOf("Orvik");
    const Functions& m2vx = *TableOf("M2VX");
    return std::any_of(orvik.begin(), orvik.end(), isIt) || std::any_of(m2vx.begin(), m2vx.end(), isIt);
}

} // namespace

const Functions* TableOf(std::string_view classId) {
    static const Functions orvik =
        Collect(false, {AddIdentity, AddNetwork, AddOrvikFormat, AddFrames, AddOrvikExposure, AddOrvikProcessing,
                        AddProcessing, AddOrvikOverlay, AddMemory, AddSettingsSets, AddTests, AddOrvikDevice});
    static const Functions m2vx =
        Collect(true, {AddIdentity, AddNetwork, AddM2VXFormat, AddFrames, AddM2VXExposure, AddM2VXProcessing,
                       AddProcessing, AddM2VXOverlay, AddMemory, AddSettingsSets, AddTests, AddM2VXDevice});
    return classId == "Orvik" ? &orvik : classId == "M2VX" ? &m2vx : nullptr;
}

bool IsFunction(std::string_view name) {
    const std::string_view row = name.substr(0, name.find('.'));
    return HasAny([&](const Function& each) { return each.name == row; });
}

bool IsTrigger(std::string_view name) {
    return HasAny([&](const Function& each) { return each.name == name && each.trigger; });
}

} // namespace Host
