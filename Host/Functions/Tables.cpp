#include "Tables.h"

namespace Host {

namespace {

Functions OrvikFunctions() {
    Functions functions;
    FunctionTable table(functions);
    AddIdentity(table);
    AddNetwork(table);
    AddFrames(table);
    AddOrvikExposure(table);
    return functions;
}

Functions M2VXFunctions() {
    Functions functions;
    FunctionTable table(functions);
    AddIdentity(table);
    AddNetwork(table);
    AddFrames(table);
    return functions;
}

} // namespace

const Functions* TableOf(std::string_view classId) {
    static const Functions orvik = OrvikFunctions();
    static const Functions m2vx = M2VXFunctions();
    return classId == "Orvik" ? &orvik : classId == "M2VX" ? &m2vx : nullptr;
}

} // namespace Host
