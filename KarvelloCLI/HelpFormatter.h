#pragma once

#include <CLI/CLI.hpp>

#include <cstddef>
#include <string>

namespace KarvelloCLI {

inline constexpr const char* kProgram = "karvello-cli";

/// Lines that fit eighty columns, with the descriptions in one column.
class HelpFormatter final : public CLI::Formatter {
public:
    HelpFormatter() { column_width(kDescriptionColumn); }

    std::string make_description(const CLI::App* app) const override { return app->get_description() + "\n"; }
    std::string make_usage(const CLI::App* app, std::string name) const override;
    std::string make_option(const CLI::Option* option, bool isPositional) const override;
    std::string make_subcommand(const CLI::App* command) const override;
    std::string make_footer(const CLI::App* app) const override { return app->get_footer(); }

private:
    static constexpr std::size_t kDescriptionColumn = 28;
    static constexpr std::size_t kWidth = 80;

    static std::string entry(const std::string& left, const std::string& description);
};

} // namespace KarvelloCLI
