#include "Register.h"

#include <algorithm>
#include <cstring>

namespace Simulation {

// Words lie in memory in the host's byte order: that is how the port hands them on.
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

Value Record(const Words& fields) { return {0, {ToBytes(fields)}}; }

Value Indexed(const std::vector<Words>& instances) {
    Value value{sizeof(std::uint32_t), {}};
    std::transform(instances.begin(), instances.end(), std::back_inserter(value.instances), ToBytes);
    return value;
}

Value Text(std::size_t length, std::string_view text) {
    Bytes bytes(text.begin(), text.end());
    bytes.resize(length);
    return {0, {bytes}};
}

Value LedText(std::size_t length, std::string_view text) {
    Bytes bytes = ToBytes({static_cast<std::uint32_t>(text.size())});
    bytes.insert(bytes.end(), text.begin(), text.end());
    bytes.resize(length);
    return {0, {bytes}};
}

} // namespace Simulation
