#pragma once

// Every operation that takes numbers, for calls with arbitrary arguments.

#include "Tests/Operations/Operations.h"
#include "Tests/Operations/Published.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Test {

inline const std::string cantRead = "SDK4_ERR_CANTGETFEATURE";

/// Words at the edges of ranges. As signed numbers, the last four are INT_MAX, INT_MIN, -2 and -1.
inline constexpr std::uint32_t oddWords[] = {0,   1,   2,     3,          4,          6,          7,  128,
                                             255, 256, 65536, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFE, ~0u};

/// The word as an argument, or a record with the word in every field.
template <typename T> T Filled(std::uint32_t word) {
    if constexpr (std::is_class_v<T>) {
        T record{};
        std::fill_n(reinterpret_cast<std::uint32_t*>(&record), sizeof record / sizeof word, word);
        return record;
    } else {
        return static_cast<T>(word);
    }
}

/// An operation, called with one word as its first argument and another for the rest.
struct Wild {
    std::string name; ///< as in the table of operations
    std::size_t arguments;
    std::function<Call(std::uint32_t first, std::uint32_t rest)> with;
};

template <typename Interface, typename Result, typename... Parameters, std::size_t... I>
Call Bound(Result (Interface::*operation)(Parameters...), std::uint32_t first, std::uint32_t rest,
           std::index_sequence<I...>) {
    return On(operation, Filled<Parameters>(I == 0 ? first : rest)...);
}

/// The operations that a camera has, except the software trigger, which would wait for every readout time set here.
inline std::vector<Wild> WildCalls(IDynamicObject& camera, bool isM2VX) {
    std::vector<Wild> calls;
    ForEachOperation([&]<typename Interface, typename Result, typename... Parameters>(
                         const std::string& name, Result (Interface::*operation)(Parameters...)) {
        if constexpr (sizeof...(Parameters) > 0 && !(std::is_pointer_v<Parameters> || ...)) {
            if (Has<Interface>(camera) && name != "ITrigger::SetSoftTrigger") {
                calls.push_back({(isM2VX ? "M2VX::" : "") + name, sizeof...(Parameters),
                                 [operation](std::uint32_t first, std::uint32_t rest) {
                                     return Bound(operation, first, rest, std::index_sequence_for<Parameters...>{});
                                 }});
            }
        }
    });
    return calls;
}

/// The error code for first arguments from @p first on. Empty if any number may be valid.
struct Refusal {
    std::uint32_t first = 0;
    std::string code{};
};

inline Refusal RefusalOf(const std::string& operation) {
    static const std::pair<std::string, Refusal> instances[] = {
        {"IOverlay::", {2, invalid}},
        {"ISignalAnalysis::GetMeasureWindow", {2, invalid}},
        {"ISignalAnalysis::SetMeasureWindow", {2, invalid}},
        {"IGPIO::", {6, invalid}},
        {"IRoa::GetReadoutAreaLimits", {3, invalid}},
        {"IInternalTests::GetTemperature", {1, invalid}},
        {"M2VX::IOverlay::", {4, invalid}},
        {"M2VX::IImageCorrection::GetShadingCorrection", {4, invalid}},
        {"M2VX::IImageCorrection::SetShadingCorrection", {4, invalid}},
        {"M2VX::IABC::GetABCThreshold", {2, invalid}},
        {"M2VX::IABC::SetABCThreshold", {2, invalid}},
        {"M2VX::IInternalTests::GetTestPattern", {2, invalid}},
        {"M2VX::IInternalTests::SetTestPattern", {2, invalid}},
        {"M2VX::IDefectPixel::GetDefectPixel", {2, cantRead}}, // only the position within a pair; the pair has no limit
        {"M2VX::IDefectPixel::SetDefectPixel", {2, cantRead}},
        {"M2VX::IMotorControl::", {256, invalid}}};
    for (const auto& [name, refusal] : instances) {
        if (operation == name || (name.ends_with(':') && operation.starts_with(name))) {
            return refusal;
        }
    }
    const auto row = std::find_if(Operations().begin(), Operations().end(), [&](const Operation& each) {
        return each.name.substr(0, each.name.find(' ')) == operation;
    });
    return {0, row != Operations().end() && row->result == notImplemented ? notImplemented : ""};
}

} // namespace Test
