#include "Common/Suggestion.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <numeric>
#include <utility>

namespace Common {

namespace {

/// The edit distance of two texts, ignoring case.
std::size_t Distance(std::string_view from, std::string_view to) {
    std::array<std::size_t, 64> row{}; // no name is that long
    from = from.substr(0, row.size() - 1);
    to = to.substr(0, row.size() - 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < to.size(); ++j) {
            const bool same = std::tolower(from[i]) == std::tolower(to[j]);
            const std::size_t replaced = diagonal + (same ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row[to.size()];
}

} // namespace

std::string Suggestion(std::string_view unknown, const std::vector<std::string>& known) {
    const std::string* nearest = nullptr;
    std::size_t least = std::max<std::size_t>(2, unknown.size() / 2) + 1;
    for (const std::string& name : known) {
        if (const std::size_t distance = Distance(unknown, name); distance < least) {
            least = distance;
            nearest = &name;
        }
    }
    return nearest == nullptr ? "" : "; did you mean \"" + *nearest + "\"?";
}

} // namespace Common
