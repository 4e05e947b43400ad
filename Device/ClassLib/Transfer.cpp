#include "Transfer.h"

#include "IntentionalLeak.h"
#include "Log.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace SDK4 {

namespace {

constexpr unsigned int leadingWord = 4;

bool IsSpace(char character) { return std::isspace(static_cast<unsigned char>(character)) != 0; }

std::string Trimmed(const std::string& text) {
    const auto begin = std::find_if_not(text.begin(), text.end(), IsSpace);
    const auto end = std::find_if_not(text.rbegin(), std::make_reverse_iterator(begin), IsSpace).base();
    return {begin, end};
}

} // namespace

std::string Transfer<std::string, void>::Read(IControlPort& port, std::uint32_t address) {
    std::vector<std::uint8_t> block(declared);
    std::uint64_t count = length;
    port.ReadMem(address, block.data(), &count);
    const auto delivered = static_cast<unsigned int>(std::min<std::uint64_t>(count, declared));
    if (delivered < leadingWord) {
        return {};
    }
    length = delivered;
    [[maybe_unused]] const IntentionalLeak cache; // owned by a list entry, see ReleaseStorage.h
    return Trimmed({block.begin() + leadingWord, block.begin() + length});
}

void Transfer<std::string, void>::Write(IControlPort& port, std::uint32_t address, const std::string& text) const {
    if (text.size() + leadingWord > declared) {
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    }
    std::vector<std::uint8_t> block(declared);
    std::copy(text.begin(), text.end(), block.begin() + leadingWord);
    std::uint64_t count = declared;
    port.WriteMem(address, block.data(), &count);
}

} // namespace SDK4
