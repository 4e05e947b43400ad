#pragma once

// Every operation that takes numbers, to be called with any.

#include "Tests/Operations/Operations.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Test {

inline const std::string CantRead = "SDK4_ERR_CANTGETFEATURE";

/// The words that hosts get wrong; as signed numbers the last four are INT_MAX, INT_MIN, -2 and -1.
inline constexpr std::uint32_t OddWords[] = {0,   1,   2,     3,          4,          6,          7,  128,
                                             255, 256, 65536, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFE, ~0u};

/// An argument that consists of one word, or a record with this word in every field.
template <typename T> T Filled(std::uint32_t word) {
    if constexpr (std::is_class_v<T>) {
        T record{};
        std::fill_n(reinterpret_cast<std::uint32_t*>(&record), sizeof record / sizeof word, word);
        return record;
    } else {
        return static_cast<T>(word);
    }
}

/// An operation with a word for its first argument and another for the rest of them.
struct Wild {
    template <typename Interface, typename Result, typename... Parameters>
    Wild(Result (Interface::*operation)(Parameters...))
        : arguments(sizeof...(Parameters)),
          with([operation](std::uint32_t first, std::uint32_t rest) {
              return Bound(operation, first, rest, std::index_sequence_for<Parameters...>{});
          }) {}

    std::size_t arguments;
    std::function<Call(std::uint32_t first, std::uint32_t rest)> with;

private:
    template <typename Interface, typename Result, typename... Parameters, std::size_t... I>
    static Call Bound(Result (Interface::*operation)(Parameters...), std::uint32_t first, std::uint32_t rest,
                      std::index_sequence<I...>) {
        return On(operation, Filled<Parameters>(I == 0 ? first : rest)...);
    }
};

/// Operations whose first argument names one of so many instances; without a refusal, those of which any may be meant.
struct Group {
    std::uint32_t instances;
    std::string refusal;
    std::vector<Wild> operations;
};

/// Without the software trigger, which would wait out every readout time that is set here.
std::vector<Group> OrvikGroups();
std::vector<Group> M2VXGroups();

} // namespace Test
