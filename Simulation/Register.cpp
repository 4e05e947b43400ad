#include "Simulation/Register.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace Simulation {

// Words are in the host's byte order, as the port passes them.
Bytes ToBytes(const Words& words) {
    Bytes bytes(words.size() * sizeof(std::uint32_t));
    if (!bytes.empty()) {
        std::memcpy(bytes.data(), words.data(), bytes.size());
    }
    return bytes;
}

Words ToWords(const Bytes& bytes) {
    Words words(bytes.size() / sizeof(std::uint32_t));
    if (!words.empty()) {
        std::memcpy(words.data(), bytes.data(), words.size() * sizeof(std::uint32_t));
    }
    return words;
}

Value Word(std::uint32_t value) { return Record({value}); }

Value Record(const Words& fields) { return {{{{}, ToBytes(fields)}}}; }

Value Indexed(const std::vector<Words>& instances) {
    Value value;
    for (const Words& instance : instances) {
        const auto index = static_cast<std::uint32_t>(value.instances.size());
        value.instances.push_back({ToBytes({index}), ToBytes(instance)});
    }
    return value;
}

Value Selected(const std::vector<std::pair<Words, Words>>& instances) {
    Value value;
    for (const auto& [selector, words] : instances) {
        value.instances.push_back({ToBytes(selector), ToBytes(words)});
    }
    return value;
}

Value Table(std::uint32_t columns, const std::vector<Words>& entries) {
    Value value = Indexed(entries);
    for (std::uint32_t i = 0; i < value.instances.size(); ++i) {
        value.instances[i].selector = ToBytes({i / columns, i % columns});
    }
    value.swapped = true;
    return value;
}

Value KeepingRequest(Value value) {
    value.keepsRequest = true;
    return value;
}

Value Text(std::size_t length, std::string_view text) {
    Bytes bytes(text.begin(), text.end());
    bytes.resize(length);
    return {{{{}, bytes}}};
}

Value PrefixedText(std::size_t size, std::string_view text) {
    Bytes bytes = ToBytes({static_cast<std::uint32_t>(text.size())});
    bytes.insert(bytes.end(), text.begin(), text.end());
    bytes.resize(size);
    return {{{{}, bytes}}};
}

Limits Range(std::int64_t lowest, std::int64_t highest) { return {lowest, highest, {}}; }

Limits Codes(std::uint32_t first, std::uint32_t last) {
    Words codes(std::size_t{last} - first + 1);
    std::iota(codes.begin(), codes.end(), first);
    return Codes(codes);
}

Limits Codes(const Words& codes) {
    Limits limits;
    limits.codes = codes;
    return limits;
}

std::int64_t Number(std::uint32_t word, const Limits& limits) {
    return limits.lowest < 0 ? static_cast<std::int32_t>(word) : std::int64_t{word};
}

bool Admit(const std::vector<Limits>& limits, Words& words) {
    for (std::size_t i = 0; i < std::min(words.size(), limits.size()); ++i) {
        const Limits& own = limits[i];
        if (!own.codes.empty() && std::find(own.codes.begin(), own.codes.end(), words[i]) == own.codes.end()) {
            return false;
        }
        words[i] = static_cast<std::uint32_t>(std::clamp(Number(words[i], own), own.lowest, own.highest));
    }
    return true;
}

std::size_t SizeOf(const Register& entry) {
    const Instance& instance = entry.powerUp.instances.front();
    return instance.selector.size() + instance.value.size();
}

} // namespace Simulation
