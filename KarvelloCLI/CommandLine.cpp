#include "KarvelloCLI/CommandLine.h"

#include "KarvelloCLI/TerminalText.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cmath>

namespace KarvelloCLI {

namespace {

constexpr const char* kProgram = "karvello-cli";
constexpr unsigned kMostJobs = 256;

constexpr const char* kIntroduction = "Karvello looks for files that can be made anew (caches, logs, build leftovers)\n"
                                      "and shows what they take. A scan only looks: it changes nothing on disk.\n";

constexpr const char* kProgramFooter =
    "\nExamples:\n"
    "  karvello-cli scan                   your home, the well-known places only\n"
    "  karvello-cli scan --mode direct     your home, package and developer caches too\n"
    "  karvello-cli scan --root ~/builds   the items of one folder\n"
    "  karvello-cli scan --format json --output scan.json\n";

constexpr const char* kScanIntroduction =
    "Look for what could be cleaned up, without changing anything.\n"
    "\n"
    "Without options your home is scanned in the mode standard. With --root or\n"
    "--folder only these folders are scanned, unless --mode or --home asks for the\n"
    "home as well.\n";

constexpr const char* kScanFooter = "\nExit status:\n"
                                    "  0    done\n"
                                    "  1    done in part: something could not be read or written, or one of several\n"
                                    "       folders was refused. What is protected, in use or too young is left out\n"
                                    "       by rule; that is no failure\n"
                                    "  2    wrong usage\n"
                                    "  3    refused: no folder that was given may be scanned, or none exists\n"
                                    "  130  interrupted; what was found until then has been shown\n";

template <Platform::RawRepresentable E>
CLI::Validator oneOf()
{
    return CLI::Validator(
        [](std::string& value) -> std::string {
            if (Platform::fromRawValue<E>(value)) {
                return {};
            }
            return fmt::format(
                "“{}” is not one of {}", TerminalText(value).string(), fmt::join(Platform::RawValues<E>::names, ", "));
        },
        std::string{});
}

CLI::Validator oneOfTheLanguages()
{
    return CLI::Validator(
        [](std::string& value) -> std::string {
            if (std::ranges::find(kLanguageCodes, value) != kLanguageCodes.end()) {
                return {};
            }
            return fmt::format("“{}” is not one of {}", TerminalText(value).string(), fmt::join(kLanguageCodes, ", "));
        },
        std::string{});
}

CLI::Validator notEmpty(std::string complaint)
{
    return CLI::Validator(
        [complaint = std::move(complaint)](std::string& value) { return value.empty() ? complaint : std::string{}; },
        std::string{});
}

CLI::Validator secondsFromZero()
{
    return CLI::Validator(
        [](std::string& value) -> std::string {
            double seconds = -1;
            if (CLI::detail::lexical_cast(value, seconds) && std::isfinite(seconds) && seconds >= 0) {
                return {};
            }
            return fmt::format("“{}” is no number of seconds", TerminalText(value).string());
        },
        std::string{});
}

CLI::Validator countOfJobs()
{
    return CLI::Validator(
        [](std::string& value) -> std::string {
            unsigned jobs = 0;
            if (CLI::detail::lexical_cast(value, jobs) && jobs >= 1 && jobs <= kMostJobs) {
                return {};
            }
            return fmt::format("“{}” is no number from 1 to {}", TerminalText(value).string(), kMostJobs);
        },
        std::string{});
}

/// The words of an enumeration's option, read into its value once the whole line is known to be good.
template <Platform::RawRepresentable E>
CLI::Option* addChoice(CLI::App& app, const std::string& name, E& target, const std::string& description)
{
    return app
        .add_option_function<std::string>(
            name, [&target](const std::string& value) { target = *Platform::fromRawValue<E>(value); }, description)
        ->check(oneOf<E>())
        ->type_name(fmt::format("{}", fmt::join(Platform::RawValues<E>::names, "|")));
}

CLI::Option* addFolders(
    CLI::App& app, const std::string& name, std::vector<std::string>& target, const std::string& description)
{
    // One folder for each mention: a name in brackets stays one name, and what follows is no folder by accident.
    return app.add_option(name, target, description)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->allow_extra_args(false)
        ->check(notEmpty("needs a folder"))
        ->type_name("DIR");
}

void addCommonOptions(CLI::App& app, CommonOptions& options)
{
    const std::string group = "Output";
    addChoice(app, "--format", options.format, "A table to read, or a file for programs (table)")->group(group);
    app.add_flag("--redacted", options.isRedacted, "Show tokens in place of paths and names")->group(group);
    app.add_option("--output", options.output, "Write the result to this file, whole or not at all")
        ->check(notEmpty("needs a file"))
        ->type_name("FILE")
        ->group(group);
    app.add_flag("--verbose", options.isVerbose, "List every item, the skipped ones too")->group(group);
    addChoice(app, "--progress", options.progress, "A line on standard error while it works (auto)")->group(group);
    addChoice(app, "--color", options.color, "Colours; auto: on a terminal, unless NO_COLOR is set")->group(group);
    app.add_option(
           "--language", options.language, fmt::format("The form of sizes: {} (en)", fmt::join(kLanguageCodes, ", ")))
        ->check(oneOfTheLanguages())
        ->type_name("CODE")
        ->group(group);
    app.add_option("--jobs", options.jobs, "How many processors to keep busy (all of them)")
        ->check(countOfJobs())
        ->type_name("N")
        ->group(group);
}

void addScanOptions(CLI::App& app, ScanOptions& options)
{
    const std::string where = "What to scan";
    app.add_option_function<std::string>(
           "--mode",
           [&options](const std::string& value) {
               options.mode = Platform::fromRawValue<CleanerCore::CleanupScanMode>(value);
           },
           "How far to look: well-known places; more of them, for review; and package and developer caches "
           "too (standard)")
        ->check(oneOf<CleanerCore::CleanupScanMode>())
        ->type_name("standard|aggressive|direct")
        ->group(where);
    app.add_option("--home", options.home, "The home folder to scan (yours)")
        ->check(notEmpty("needs a folder"))
        ->type_name("DIR")
        ->group(where);
    addFolders(app, "--folder", options.folders,
        "A folder of your own, with care: items that did not change for a day, none of them preselected. May be "
        "repeated")
        ->group(where);
    CLI::Option* const root = addFolders(app, "--root", options.roots,
        "A folder to judge as it is: items of any age unless --min-age is given, none of them preselected. May be "
        "repeated");
    root->group(where);

    const std::string forRoots = "For --root";
    app.add_option("--min-age", options.minimumAge, "Leave out what changed in the last so many seconds (0)")
        ->check(secondsFromZero())
        ->type_name("SECONDS")
        ->needs(root)
        ->group(forRoots);
    app.add_flag("--hidden", options.includesHiddenFiles, "Count hidden files and folders")
        ->needs(root)
        ->group(forRoots);
    app.add_flag("--packages", options.includesPackageDescendants, "Count what lies inside application bundles")
        ->needs(root)
        ->group(forRoots);
}

/// Lines that fit eighty columns, with the descriptions in one column.
class HelpFormatter final : public CLI::Formatter {
public:
    HelpFormatter() { column_width(kDescriptionColumn); }

    std::string make_description(const CLI::App* app) const override { return app->get_description() + "\n"; }

    std::string make_usage(const CLI::App* app, std::string name) const override
    {
        const std::string full = app->get_parent() != nullptr ? fmt::format("{} {}", kProgram, app->get_name()) : name;
        const bool hasCommands = !app->get_subcommands({}).empty();
        return fmt::format("Usage: {} {}\n", full, hasCommands ? "COMMAND [OPTIONS]" : "[OPTIONS]");
    }

    std::string make_option(const CLI::Option* option, bool /*isPositional*/) const override
    {
        std::string left = "  " + make_option_name(option, false);
        if (!option->get_type_name().empty()) {
            left += " " + option->get_type_name();
        }
        return entry(left, option->get_description());
    }

    std::string make_subcommand(const CLI::App* command) const override
    {
        const std::string description = command->get_description();
        return entry("  " + command->get_name(), description.substr(0, description.find('\n')));
    }

    std::string make_footer(const CLI::App* app) const override { return app->get_footer(); }

private:
    static constexpr std::size_t kDescriptionColumn = 28;
    static constexpr std::size_t kWidth = 80;

    static std::string entry(const std::string& left, const std::string& description)
    {
        std::string text = left;
        std::string separator = left.size() + 2 <= kDescriptionColumn
            ? std::string(kDescriptionColumn - left.size(), ' ')
            : fmt::format("\n{:{}}", "", kDescriptionColumn);
        for (const TerminalText& line : TerminalText(description).wrapped(kWidth - kDescriptionColumn)) {
            text += separator + line.string();
            separator = fmt::format("\n{:{}}", "", kDescriptionColumn);
        }
        return text + "\n";
    }
};

/// The library puts two blank lines between groups, where one is enough.
std::string helpOf(const CLI::App& app)
{
    std::string text = app.help();
    for (auto position = text.find("\n\n\n"); position != std::string::npos; position = text.find("\n\n\n", position)) {
        text.erase(position, 1);
    }
    return text;
}

UsageError usageError(std::string message, const CLI::App* command)
{
    const std::string about = command != nullptr ? fmt::format("{} {}", kProgram, command->get_name()) : kProgram;
    return {std::move(message), fmt::format("Try '{} --help'.", about)};
}

} // namespace

std::expected<Command, UsageError> parseCommandLine(std::span<const std::string> arguments)
{
    ScanOptions scanOptions;

    CLI::App app(kIntroduction, kProgram);
    const auto formatter = std::make_shared<HelpFormatter>();
    app.formatter(formatter);
    app.set_help_flag("-h,--help", "Show this help");
    // A later mention wins, so that an alias can be overruled. Options inherit it.
    app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    app.set_version_flag("--version", fmt::format("{} {}", kProgram, KARVELLO_VERSION), "Show the version");
    app.footer(kProgramFooter);

    CLI::App* const scan = app.add_subcommand("scan", kScanIntroduction);
    scan->formatter(formatter);
    scan->set_help_flag("-h,--help", "Show this help");
    scan->set_version_flag("--version", fmt::format("{} {}", kProgram, KARVELLO_VERSION), "Show the version");
    scan->footer(kScanFooter);
    addScanOptions(*scan, scanOptions);
    addCommonOptions(*scan, scanOptions.common);

    if (arguments.empty()) {
        return Information{helpOf(app)};
    }
    if (!arguments.front().starts_with('-') && arguments.front() != scan->get_name()) {
        return std::unexpected(
            usageError(fmt::format("There is no command “{}”.", TerminalText(arguments.front()).string()), nullptr));
    }

    // The library takes the words from the back.
    std::vector<std::string> words(arguments.rbegin(), arguments.rend());
    try {
        app.parse(std::move(words));
    } catch (const CLI::CallForHelp&) {
        return Information{scan->parsed() ? helpOf(*scan) : helpOf(app)};
    } catch (const CLI::CallForVersion& version) {
        return Information{std::string(version.what()) + "\n"};
    } catch (const CLI::ArgumentMismatch& error) {
        const std::string_view what = error.what();
        return std::unexpected(usageError(fmt::format("{} needs a value.", what.substr(0, what.find(':'))), scan));
    } catch (const CLI::ParseError& error) {
        // The library's sentences hold the user's words as they came.
        const TerminalText message(error.what(), TerminalText::Kind::sentence);
        return std::unexpected(usageError(message.string() + ".", scan->parsed() ? scan : nullptr));
    }
    if (!scan->parsed()) {
        return Information{helpOf(app)};
    }
    return scanOptions;
}

} // namespace KarvelloCLI
