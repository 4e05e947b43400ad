#pragma once

#include <CLI/CLI.hpp>

#include <string>

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

} // namespace Common
