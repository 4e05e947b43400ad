#include "Host/Format.h"

#include "Common/Number.h"
#include "Common/Text.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace Host {

namespace {

/// The text in the bytes: at least four printable characters, padded with NULs. Empty for anything else.
std::string TextIn(std::span<const std::uint8_t> bytes) {
    const auto printable = [](std::uint8_t byte) { return byte >= 0x20 && byte < 0x7F; }; // ASCII
    const auto end = std::find_if_not(bytes.begin(), bytes.end(), printable);
    const bool padded = std::all_of(end, bytes.end(), [](std::uint8_t byte) { return byte == 0; });
    return padded && end - bytes.begin() >= 4 ? std::string(bytes.begin(), end) : std::string();
}

std::string QuotedText(const std::string& text) { return '"' + Common::Escaped(text) + '"'; }

std::string Word(std::uint32_t word) { return word < 0x10000 ? std::to_string(word) : Common::Hex(word); }

/// The number of bytes of a long text to put on the first line: up to the last place to break, else all that fit.
std::size_t EndOfLine(const std::string& text, std::size_t width) {
    constexpr std::string_view breaks = " ,|_"; // behind which a line may end
    std::size_t most = 1;
    std::size_t best = 0;
    for (std::size_t size = 1; size < text.size(); ++size) {
        const std::string line = Common::CutAtCharacter(text, size);
        const bool fits = Common::Width(line) <= width;
        const char last = text[size - 1];
        if (!fits && last != ' ') { // a blank at the end is dropped
            break;
        }
        most = fits ? std::max(line.size(), most) : most;
        best = breaks.find(last) != std::string_view::npos ? size : best;
    }
    return best != 0 ? best : most;
}

} // namespace

std::string PrintSeconds(std::chrono::milliseconds time) {
    const auto tenths = time.count() / 100;
    return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + " s";
}

std::string Pad(std::string text, std::size_t width) {
    const std::size_t taken = Common::Width(text);
    return text.append(taken < width ? width - taken : 0, ' ');
}

std::vector<std::string> Wrap(std::string text, std::size_t width) {
    std::vector<std::string> lines;
    while (Common::Width(text) > width) {
        const std::size_t end = EndOfLine(text, width);
        std::string line = text.substr(0, end);
        lines.push_back(line.erase(line.find_last_not_of(' ') + 1));
        text.erase(0, end);
    }
    lines.push_back(std::move(text));
    return lines;
}

std::string FormatBytes(std::span<const std::uint8_t> bytes) {
    if (const std::string text = TextIn(bytes); !text.empty()) {
        return QuotedText(text);
    }
    std::string words;
    std::size_t at = 0;
    for (; bytes.size() - at >= sizeof(std::uint32_t); at += sizeof(std::uint32_t)) {
        const auto rest = bytes.subspan(at);
        if (const std::string text = at == 4 ? TextIn(rest) : ""; !text.empty()) { // a text after its leading word
            return words + QuotedText(text);
        }
        std::uint32_t word = 0;
        std::memcpy(&word, rest.data(), sizeof word);
        words += Word(word) + " ";
        if (at == 44 && rest.size() > sizeof word) {
            return words + "... (" + std::to_string(bytes.size()) + " bytes)";
        }
    }
    for (; at < bytes.size(); ++at) {
        words += std::to_string(bytes[at]) + " ";
    }
    if (!words.empty()) {
        words.pop_back();
    }
    return words;
}

} // namespace Host
