// The control itself, the stream and its video frames, raw access, and the camera's identity.

#include "Tests/Operations/Operations.h"

using namespace SDK4;
using namespace SDK4::Control;

namespace Test {

namespace {

/// Raw memory access with a buffer of @p size bytes. The result is the returned count and the words.
Call RawMemory(void (IGigEVisionPort::*operation)(unsigned int, unsigned char*, unsigned int*), unsigned int size) {
    return [operation, size](IDynamicObject& camera) {
        Bytes buffer(size, 7);
        unsigned int length = size;
        (Part<IGigEVisionPort>(camera).*operation)(0x01020304, buffer.data(), &length);
        return std::to_string(length) + ": " + TextOfWords(buffer.data(), size / 4);
    };
}

unsigned char someBytes[4];
unsigned int someLength = 4;

State Block(std::uint32_t address, std::size_t length, const char* text) {
    return {{{address, TextBlock(length, text)}}};
}
State Versions(std::uint32_t address) { return {{{address, Words({5, 6})}}}; }

} // namespace

// clang-format off
std::vector<Operation> AccessOperations() {
    return {
        {"IControl::GetClassID",        On(&IControl::GetClassID),        "Orvik",        Never()},
        {"IStreamControl::Start",       On(&IStreamControl::Start),       done,           Always("W 00088134=1")},
        {"IStreamControl::Stop",        On(&IStreamControl::Stop),        done,           Always("W 00088138=0")},
        {"IDSMediaType::GetMediaType",  On(&IDSMediaType::GetMediaType),  "a media type", Never()},

        {"IVideoFrame::GetType",         On(&IVideoFrame::GetType),         "0",    Never()},
        {"IVideoFrame::GetWidth",        On(&IVideoFrame::GetWidth),        "1",    Kept("R 28030000/8")},
        {"IVideoFrame::GetHeight",       On(&IVideoFrame::GetHeight),       "2",    Kept("R 28030000/8")},
        {"IVideoFrame::GetFormat",       On(&IVideoFrame::GetFormat),       "17301505", Cached("R 28020000/4")},
        {"IVideoFrame::GetTimePerFrame", On(&IVideoFrame::GetTimePerFrame), "40000000", Cached("R 28040000/4"), With(0x28040000, 40000)},
        {"IVideoFrame::GetTimePerFrame wrapped", On(&IVideoFrame::GetTimePerFrame), "704", Cached("R 28040000/4"), With(0x28040000, 4294968)},

        {"IGigEVisionPort::ReadRegister",  On(&IGigEVisionPort::ReadRegister, 0x01020304),     "1",      Always("r 01020304")},
        {"IGigEVisionPort::WriteRegister", On(&IGigEVisionPort::WriteRegister, 0x01020304, 9), done,     Always("w 01020304=9")},
        {"IGigEVisionPort::ReadMem",       RawMemory(&IGigEVisionPort::ReadMem, 8),            "8: 1,2", Always("R 01020304/8")},
        {"IGigEVisionPort::WriteMem",      RawMemory(&IGigEVisionPort::WriteMem, 4), "4: 117901063", Always("W 01020304=117901063")},
        {"IGigEVisionPort::ReadMem null buffer",  On(&IGigEVisionPort::ReadMem, 0, nullptr, &someLength), invalid, Never()},
        {"IGigEVisionPort::ReadMem null length",  On(&IGigEVisionPort::ReadMem, 0, someBytes, nullptr),   invalid, Never()},
        {"IGigEVisionPort::WriteMem null buffer", On(&IGigEVisionPort::WriteMem, 0, nullptr, &someLength), invalid, Never()},
        {"IGigEVisionPort::WriteMem null length", On(&IGigEVisionPort::WriteMem, 0, someBytes, nullptr),  invalid, Never()},

        {"IGufi::GetDeviceName",   On(&IGufi::GetDeviceName),   "CAM 1",  Kept("R 64010000/24"), Block(0x64010000, 24, "\t CAM 1")},
        {"IGufi::GetSerialNumber", On(&IGufi::GetSerialNumber), "000815  ", Kept("R 64020000/16"), Block(0x64020000, 16, "  000815  ")},
        {"IGufi::GetSoftwareBuild", On(&IGufi::GetSoftwareBuild), "Build of a full bloc", Kept("R 65020000/24"), Block(0x65020000, 24, "Build of a full bloc")},
        {"IGufi::GetFunctionModelID",      On(&IGufi::GetFunctionModelID), "131072", Kept("R 64030000/4")},
        {"IGufi::GetFunctionModelVersion", On(&IGufi::GetFunctionModelVersion), "5,6", Kept("R 64040000/8"), Versions(0x64040000)},
        {"IGufi::GetRevision",             On(&IGufi::GetRevision),             "5,6", Kept("R 65010000/8"), Versions(0x65010000)},
        {"IGufi::GetSoftwareVersion",      On(&IGufi::GetSoftwareVersion),      "5,6", Kept("R 65030000/8"), Versions(0x65030000)},
        {"IGufi::GetHardwareVersion",      On(&IGufi::GetHardwareVersion),      "5,6", Kept("R 65050000/8"), Versions(0x65050000)},
        {"IGufi::GetFirmwareVersion",      On(&IGufi::GetFirmwareVersion),      "5,6", Kept("R 65040000/8"), Versions(0x65040000)},
    };
}
// clang-format on

} // namespace Test
