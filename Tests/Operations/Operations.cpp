#include "Operations.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace Test {

namespace {

constexpr std::uint32_t functionModel = 0x64030000;

std::string Join(const std::string& first, const std::string& second) {
    return first + (first.empty() || second.empty() ? "" : "; ") + second;
}

} // namespace

Accesses Accesses::Stales(std::string names) const {
    Accesses result = *this;
    result.stale = std::move(names);
    return result;
}

Accesses Accesses::AskingForTheModel() const {
    Accesses result = *this;
    result.first = Join("R 64030000/4", first);
    result.firstUncached = Join("R 64030000/4", firstUncached);
    return result;
}

Accesses Always(std::string accesses) { return {accesses, accesses, accesses, accesses, ""}; }
Accesses Settling(std::string first, std::string again) { return {first, again, first, first, ""}; }
Accesses Cached(std::string accesses) { return Settling(accesses, ""); }
Accesses Kept(std::string accesses) { return {accesses, "", accesses, "", ""}; }

State With(std::uint32_t address, std::uint32_t word) { return {{{address, Words({word})}}}; }
State Colour() { return {{{functionModel, Words({0x00030000})}}, "Orvik-31200C"}; }
State Streaming() { return {{}, "Orvik-31200M", On(&SDK4::IStreamControl::Start)}; }
State WithoutMemory() { return With(functionModel, 0); }

const std::vector<Operation>& Operations() {
    static const std::vector<Operation> all = [] {
        std::vector<Operation> rows;
        for (auto* group :
             {AccessOperations, NetworkOperations, ImagingOperations, ProcessingOperations, DeviceOperations}) {
            const std::vector<Operation> more = group();
            rows.insert(rows.end(), more.begin(), more.end());
        }
        return rows;
    }();
    return all;
}

const Operation& FindOperation(const std::string& name) {
    for (const Operation& operation : Operations()) {
        if (operation.name == name)
            return operation;
    }
    throw std::out_of_range("no row " + name);
}

void Prepare(RecordingPort& port, const State& state) {
    constexpr std::uint32_t colorCoding = 0x28020000;
    constexpr std::uint32_t aet = 0x46010000, agc = 0x46020000, awb = 0x46040000, acc = 0x46050000;
    port.Set(functionModel, 0x00020000);
    for (const std::uint32_t address : {colorCoding, aet, agc, awb, acc})
        port.Set(address, 0);
    for (const auto& [address, bytes, index] : state.presets) {
        if (index < 0)
            port.Set(address, bytes);
        else
            port.SetInstance(address, static_cast<std::uint32_t>(index), bytes);
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
