#include "Tests/Operations/Operations.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace Test {

namespace {

constexpr std::uint32_t functionModel = 0x64030000;
const std::string ownGetter = "its getter"; // of the row's operation

std::string Join(const std::string& first, const std::string& second) {
    return first + (first.empty() || second.empty() ? "" : "; ") + second;
}

template <typename Port> void PrepareOrvikModes(Port& port) {
    constexpr std::uint32_t colorCoding = 0x28020000;
    constexpr std::uint32_t aet = 0x46010000, agc = 0x46020000, awb = 0x46040000, acc = 0x46050000;
    port.Set(functionModel, 0x00020000u);
    for (const std::uint32_t address : {colorCoding, aet, agc, awb, acc}) {
        port.Set(address, 0u);
    }
}

void PrepareOrvik(RecordingPort& port) {
    PrepareOrvikModes(port);
    // These have several instances, each with its own value.
    for (const std::uint32_t indexed : {0x17010000u, 0x17020000u, 0x17030000u, 0x17040000u, 0x1E030000u, 0x66020000u,
                                        0x66030000u, 0x660F0000u, 0x66110000u}) {
        port.SetInstance(indexed, 0, {});
    }
}

template <typename Port> void PrepareM2VXModes(Port& port) {
    constexpr std::uint32_t colorCoding = 0x28020000, exposureMode = 0x0A020000, agc = 0x46020000, abc = 0x47040000,
                            filter = 0x16070000, histogram = 0x180C0000, shading = 0x1B010000, blanking = 0x1B030000;
    for (const auto& [mode, value] : {std::pair{colorCoding, 6u},
                                      {exposureMode, 3u},
                                      {agc, 0u},
                                      {abc, 2u},
                                      {filter, 1u},
                                      {histogram, 0u},
                                      {shading, 1u},
                                      {blanking, 1u}}) {
        port.Set(mode, value);
    }
}

void PrepareM2VX(RecordingPort& port) {
    PrepareM2VXModes(port);
    constexpr std::uint32_t overlayShow = 0x17010000, overlayPosition = 0x17020000, overlayStyle = 0x17030000,
                            overlaySize = 0x17040000, shadingCorrection = 0x1B020000, abcThreshold = 0x47090000,
                            testPattern = 0x5A010000, motor = 0x6E140000;
    for (const std::uint32_t indexed : {overlayShow, overlayPosition, overlayStyle, overlaySize, shadingCorrection,
                                        abcThreshold, testPattern, motor}) {
        for (const std::uint32_t i : {0u, 1u, 2u, 3u, 255u}) {
            port.SetInstance(indexed, i, Words({10 * i + 5, 10 * i + 6}));
        }
    }
}

} // namespace

Accesses Accesses::Stales(std::string names) const {
    Accesses result = *this;
    result.affected = std::move(names);
    return result;
}

Accesses Accesses::AskingModel() const {
    Accesses result = *this;
    result.first = Join("R 64030000/4", first);
    result.firstUncached = Join("R 64030000/4", firstUncached);
    return result;
}

Accesses Always(std::string accesses) { return {accesses, accesses, accesses, accesses, ""}; }
Accesses Settling(std::string first, std::string again) { return {first, again, first, first, ""}; }
Accesses Cached(std::string accesses) { return Settling(accesses, ""); }
Accesses Kept(std::string accesses) { return {accesses, "", accesses, "", ""}; }
Accesses ReadThrough(std::string accesses) { return {"", "", accesses, accesses, ""}; }

Accesses Sets(std::string accesses, const std::string& instance) {
    return Always(std::move(accesses)).Changes(ownGetter + (instance.empty() ? "" : " ") + instance);
}

State With(std::uint32_t address, std::uint32_t word, int index) { return {{{address, Words({word}), index}}}; }
State Colour() { return {{{functionModel, Words({0x00030000})}}, "Orvik-31200C"}; }
State Streaming() { return After(On(&SDK4::IStreamControl::Start)); }
State After(Call call) { return {{}, "Orvik-31200M", std::move(call)}; }
State Disabling(const char* property) { return After(On(&SDK4::Control::IPropertyState::SetEnabled, property, false)); }
State WithoutMemory() { return With(functionModel, 0); }

const std::vector<Operation>& Operations() {
    static const std::vector<Operation> all = [] {
        std::vector<Operation> rows;
        for (auto* group : {AccessOperations, NetworkOperations, ImagingOperations, ProcessingOperations,
                            DeviceOperations, M2VXImagingOperations, M2VXDeviceOperations}) {
            const std::vector<Operation> more = group();
            rows.insert(rows.end(), more.begin(), more.end());
        }
        return rows;
    }();
    return all;
}

const Operation& FindOperation(const std::string& name) {
    for (const Operation& operation : Operations()) {
        if (operation.name == name) {
            return operation;
        }
    }
    throw std::out_of_range("no row " + name);
}

State OnM2VX(State state) {
    state.model = State::m2vxModel;
    return state;
}

std::vector<Operation> OnM2VX(const std::vector<std::vector<Operation>>& groups) {
    std::vector<Operation> rows;
    for (const auto& group : groups) {
        for (Operation row : group) {
            if (row.accesses.affected.starts_with(ownGetter)) {
                const std::string setter = row.name.substr(0, row.name.find(' '));
                row.accesses.affected.replace(0, ownGetter.size(), "Get" + setter.substr(setter.rfind("::Set") + 5));
            }
            row.name = "M2VX::" + row.name;
            row.state = OnM2VX(row.state);
            rows.push_back(row);
        }
    }
    return rows;
}

void Prepare(RecordingPort& port, const State& state) {
    if (state.IsM2VX()) {
        PrepareM2VX(port);
    } else {
        PrepareOrvik(port);
    }
    for (const auto& [address, bytes, index] : state.presets) {
        if (index < 0) {
            port.Set(address, bytes);
        } else {
            port.SetInstance(address, static_cast<std::uint32_t>(index), bytes);
        }
    }
}

void Prepare(FlatPort& port, const State& state) {
    if (state.IsM2VX()) {
        PrepareM2VXModes(port);
    } else {
        PrepareOrvikModes(port);
    }
    for (const auto& [address, bytes, index] : state.presets) {
        if (index < 0) {
            port.Set(address, bytes);
        }
    }
}

std::string Outcome(const Call& call, IDynamicObject& camera) {
    try {
        return call(camera);
    } catch (const SDK4::X4Error& error) {
        return SDK4::ErrorName(error.code);
    }
}

std::string Text(const char* text) { return text == nullptr ? "null" : text; }
std::string Text(SDK4::IMediaType* mediaType) { return mediaType == nullptr ? "null" : "a media type"; }

std::string TextOfWords(const void* words, std::size_t count) {
    std::string text;
    for (std::size_t at = 0; at < count; ++at) {
        std::uint32_t word;
        std::memcpy(&word, static_cast<const char*>(words) + at * 4, 4);
        text += (at == 0 ? "" : ",") + std::to_string(word);
    }
    return text;
}

} // namespace Test
