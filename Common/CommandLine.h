#pragma once

#include "Common/Completion.h"

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

// What the command lines of the programs have in common. Included only where they are parsed, since CLI11 is slow to
// compile.
namespace Common {

constexpr const char* commonOptions = "Options of every command"; ///< their group in the help

/// The help of a command ends with the options of every command. There is one blank line between groups.
class HelpFormatter final : public CLI::Formatter {
public:
    [[nodiscard]] std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override {
        std::string help = CLI::Formatter::make_help(app, std::move(name), mode);
        for (auto at = help.find("\n\n\n"); at != std::string::npos; at = help.find("\n\n\n", at)) {
            help.erase(at, 1);
        }
        return help;
    }

    [[nodiscard]] std::string make_footer(const CLI::App* app) const override {
        const auto isCommon = [](const CLI::Option* option) { return option->get_group() == commonOptions; };
        const CLI::App* const all = app->get_parent();
        const std::string common = all == nullptr ? "" : make_group(commonOptions, false, all->get_options(isCommon));
        const std::string own = CLI::Formatter::make_footer(app);
        return common + (common.empty() || own.empty() ? "" : "\n") + own;
    }
};

/// The options of a program or a command, for completion.
inline std::vector<OptionSyntax> OptionsIn(const CLI::App& app) {
    std::vector<OptionSyntax> options;
    for (const CLI::Option* option : app.get_options([](const CLI::Option* each) { return each->nonpositional(); })) {
        OptionSyntax& syntax = options.emplace_back(OptionSyntax{option->get_name(), {}, {}});
        if (option->get_items_expected_max() == 0) {
            continue;
        }
        const std::string type = option->get_type_name(); // "LEVEL:{off,error}"
        const std::size_t brace = type.find('{');
        syntax.value = type.substr(0, type.find(':'));
        if (brace != std::string::npos) {
            syntax.choices = CLI::detail::split(type.substr(brace + 1, type.size() - brace - 2), ',');
        }
    }
    return options;
}

} // namespace Common
