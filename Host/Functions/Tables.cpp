#include "Host/Functions/Tables.h"

#include <algorithm>
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
    const auto has = [&](const char* family) {
        const Functions& table = *TableOf(family);
        return std::any_of(table.begin(), table.end(), [&](const Function& each) { return each.name == row; });
    };
    return has("Orvik") || has("M2VX");
}

} // namespace Host
