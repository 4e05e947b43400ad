#include "Tables.h"

#include <initializer_list>

namespace Host {

namespace {

Functions Collect(std::initializer_list<void (*)(FunctionTable&)> subjects) {
    Functions functions;
    FunctionTable table(functions);
    for (const auto addRows : subjects) {
        addRows(table);
    }
    return functions;
}

} // namespace

const Functions* TableOf(std::string_view classId) {
    static const Functions orvik =
        Collect({AddIdentity, AddNetwork, AddOrvikFormat, AddFrames, AddOrvikExposure, AddOrvikProcessing,
                 AddProcessing, AddOrvikOverlay, AddMemory, AddSettingsSets, AddTests, AddOrvikDevice});
    static const Functions m2vx =
        Collect({AddIdentity, AddNetwork, AddM2VXFormat, AddFrames, AddM2VXExposure, AddM2VXProcessing, AddProcessing,
                 AddM2VXOverlay, AddMemory, AddSettingsSets, AddTests, AddM2VXDevice});
    return classId == "Orvik" ? &orvik : classId == "M2VX" ? &m2vx : nullptr;
}

} // namespace Host
