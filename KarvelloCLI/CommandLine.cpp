#include "KarvelloCLI/CommandLine.h"

#include "KarvelloCLI/HelpFormatter.h"
#include "KarvelloCLI/OptionChecks.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/SharedOptions.h"
#include "KarvelloCLI/TerminalText.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <memory>
#include <optional>

namespace KarvelloCLI {

namespace {

constexpr const char* kIntroduction =
    "Karvello looks for files that can be made anew (caches, logs, build leftovers),\n"
    "shows what they take, and moves to the Trash what you choose. Nothing is ever\n"
    "deleted: what was moved can be put back until the Trash is emptied.\n";

constexpr const char* kProgramFooter =
    "\nExamples:\n"
    "  karvello-cli scan                   your home, the well-known places only\n"
    "  karvello-cli scan --mode direct     your home, package and developer caches too\n"
    "  karvello-cli scan --root ~/builds   the items of one folder\n"
    "  karvello-cli scan --format json --output scan.json\n"
    "  karvello-cli clean --default        what a scan marks with *, after a question\n"
    "  karvello-cli restore                what can be put back\n"
    "  karvello-cli insights               where the space went\n"
    "  karvello-cli status --watch 2       how the machine is, every two seconds\n";

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

constexpr const char* kCleanIntroduction =
    "Move findings of a scan to the Trash, after showing each and asking.\n"
    "\n"
    "Scans with the same options as scan, shows what would move, and asks. The\n"
    "space returns when the Trash is emptied; until then, restore puts things back.\n";

constexpr const char* kCleanFooter = "\nExit status:\n"
                                     "  0    done\n"
                                     "  1    done in part: something was refused, or could not be read or written\n"
                                     "  2    wrong usage\n"
                                     "  3    refused: nothing was moved\n"
                                     "  130  interrupted; what was moved until then has been shown and logged\n";

constexpr const char* kRestoreIntroduction =
    "List what clean moved to the Trash, or put it back where it was.\n"
    "\n"
    "Without --id and --all, lists the items that the log keeps, the newest first:\n"
    "those that can be put back, and why others cannot. Nothing is ever replaced.\n";

constexpr const char* kRestoreFooter = "\nExit status:\n"
                                       "  0    done\n"
                                       "  1    done in part: something was refused, or could not be read or written\n"
                                       "  2    wrong usage\n"
                                       "  3    refused: nothing was put back\n"
                                       "  130  interrupted; what was put back until then has been shown and logged\n";

constexpr const char* kHistoryIntroduction = "Show the log of what clean and restore did.\n"
                                             "\n"
                                             "The log keeps the last 100 runs, the newest first.\n";

constexpr const char* kHistoryFooter = "\nExit status:\n"
                                       "  0    done\n"
                                       "  1    the log could not be read, or not all of it; nothing was changed in it\n"
                                       "  2    wrong usage\n";

void addScanOptions(CLI::App& app, ScanOptions& options)
{
    const std::string where = "What to scan";
    addChoice<CleanerCore::CleanupScanMode>(app, "--mode", options.mode,
        "How far to look: well-known places; more of them, for review; and package and developer caches "
        "too (standard)")
        ->group(where);
    addHome(app, options.home, "The home folder to scan (yours)")->group(where);
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

void addConfirmation(CLI::App& app, bool& target, const std::string& group)
{
    app.add_flag("--yes", target, "Do not ask; needed where there is no terminal to ask on")->group(group);
}

struct CleanWords {
    bool wantsPreselected = false;
    bool wantsAll = false;
};

void addCleanOptions(CLI::App& app, CleanOptions& options, CleanWords& words)
{
    const std::string group = "What to move (one kind is needed)";
    app.add_flag("--default", words.wantsPreselected, "What a scan marks with *: safe to make anew")->group(group);
    addRepeated(app, "--id", options.ids, "One item, by its id in the JSON or CSV of scan. May be repeated")
        ->check(notEmpty(say("needs an id")))
        ->type_name("ID")
        ->group(group);
    app.add_flag("--all", words.wantsAll, "All findings, those for manual review too")->group(group);
    addConfirmation(app, options.isConfirmed, group);
    addScanOptions(app, options.scan);
    addCommonOptions(app, options.scan.common);
}

void addRestoreOptions(CLI::App& app, RestoreOptions& options, bool& wantsAll)
{
    const std::string group = "What to put back";
    addRepeated(app, "--id", options.ids, "One item, by its id in the list. May be repeated")
        ->check(notEmpty(say("needs an id")))
        ->type_name("ID")
        ->group(group);
    app.add_flag("--all", wantsAll, "Everything that can be put back")->group(group);
    app.add_option_function<std::string>(
           "--entry", [&options](const std::string& value) { options.entry = Platform::UUID::fromString(value); },
           "Only of this entry of the log")
        ->check(entryId())
        ->type_name("UUID")
        ->group(group);
    addHome(app, options.home, "The home folder that was cleaned (yours)")->group(group);
    addConfirmation(app, options.isConfirmed, group);
    addCommonOptions(app, options.common);
}

void addHistoryOptions(CLI::App& app, HistoryOptions& options)
{
    app.add_option("--limit", options.limit, "The newest so many entries (all)")
        ->check(countFrom(1))
        ->type_name("N")
        ->group("What to show");
    addCommonOptions(app, options.common);
}

void addStatusOptions(CLI::App& app, StatusOptions& options)
{
    addCommonOptions(app, options.common);
    app.add_option("--watch", options.watch, "A reading every so many seconds, until interrupted")
        ->check(watchInterval())
        ->excludes(app.get_option("--output"))
        ->type_name("SECONDS")
        ->group("What to show");
}

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
    return {std::move(message), say("Try '{} --help'.", about)};
}

/// A table shows where things are, which is what it is for.
std::optional<std::string> complaintOnRedaction(const CommonOptions& options)
{
    return options.isRedacted && options.format == OutputFormat::table
        ? std::optional(say("--redacted needs --format json or csv here: what moves is shown by its path."))
        : std::nullopt;
}

std::optional<std::string> settle(CleanOptions& options, const CleanWords& words)
{
    const int kinds = int{words.wantsPreselected} + int{words.wantsAll} + int{!options.ids.empty()};
    if (kinds != 1) {
        return kinds == 0 ? say("What shall be moved? One of --default, --id and --all is needed.")
                          : say("--default, --id and --all exclude each other.");
    }
    options.selection = words.wantsAll ? CleanSelection::all
        : words.wantsPreselected       ? CleanSelection::preselected
                                       : CleanSelection::byId;
    return complaintOnRedaction(options.scan.common);
}

std::optional<std::string> settle(RestoreOptions& options, bool wantsAll)
{
    if (wantsAll && !options.ids.empty()) {
        return say("--id and --all exclude each other.");
    }
    options.selection = wantsAll ? RestoreSelection::all
        : options.ids.empty()    ? RestoreSelection::none
                                 : RestoreSelection::byId;
    if (options.isConfirmed && options.selection == RestoreSelection::none) {
        return say("--yes needs --id or --all.");
    }
    return complaintOnRedaction(options.common);
}

} // namespace

std::expected<Command, UsageError> parseCommandLine(std::span<const std::string> arguments)
{
    CLI::App app(kIntroduction, kProgram);
    const auto formatter = std::make_shared<HelpFormatter>();
    const std::string version = fmt::format("{} {}", kProgram, KARVELLO_VERSION);
    const auto furnish = [&](CLI::App& command, const char* footer) {
        command.formatter(formatter);
        command.set_help_flag("-h,--help", "Show this help");
        command.set_version_flag("--version", version, "Show the version");
        command.footer(footer);
    };
    furnish(app, kProgramFooter);
    app.require_subcommand(0, 1);
    // A later mention wins, so that an alias can be overruled. Options inherit it.
    app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    const auto addCommand = [&](const char* name, const char* introduction, const char* footer) {
        CLI::App* const command = app.add_subcommand(name, introduction);
        furnish(*command, footer);
        return command;
    };

    ScanOptions scanOptions;
    CLI::App* const scan = addCommand("scan", kScanIntroduction, kScanFooter);
    addScanOptions(*scan, scanOptions);
    addCommonOptions(*scan, scanOptions.common);

    CleanOptions cleanOptions;
    CleanWords cleanWords;
    CLI::App* const clean = addCommand("clean", kCleanIntroduction, kCleanFooter);
    addCleanOptions(*clean, cleanOptions, cleanWords);

    RestoreOptions restoreOptions;
    bool restoresAll = false;
    CLI::App* const restore = addCommand("restore", kRestoreIntroduction, kRestoreFooter);
    addRestoreOptions(*restore, restoreOptions, restoresAll);

    HistoryOptions historyOptions;
    CLI::App* const history = addCommand("history", kHistoryIntroduction, kHistoryFooter);
    addHistoryOptions(*history, historyOptions);

    InsightsOptions insightsOptions;
    CLI::App* const insights = addCommand("insights", kInsightsIntroduction, kInsightsFooter);
    addInsightsOptions(*insights, insightsOptions);

    StatusOptions statusOptions;
    CLI::App* const status = addCommand("status", kStatusIntroduction, kStatusFooter);
    addStatusOptions(*status, statusOptions);

    AppsOptions appsOptions;
    CLI::App* const apps = addCommand("apps", kAppsIntroduction, kAppsFooter);
    addCommonOptions(*apps, appsOptions.common);

    if (arguments.empty()) {
        return Information{helpOf(app)};
    }
    const std::vector<CLI::App*> commands{scan, clean, restore, history, insights, status, apps};
    const bool isKnown = std::ranges::find(commands, arguments.front(), [](const CLI::App* each) {
        return each->get_name();
    }) != commands.end();
    if (!arguments.front().starts_with('-') && !isKnown) {
        return std::unexpected(
            usageError(say("There is no command “{}”.", TerminalText(arguments.front()).string()), nullptr));
    }

    const auto parsedCommand = [&commands]() -> const CLI::App* {
        const auto found = std::ranges::find_if(commands, [](const CLI::App* each) { return each->parsed(); });
        return found != commands.end() ? *found : nullptr;
    };
    // The library takes the words from the back.
    std::vector<std::string> words(arguments.rbegin(), arguments.rend());
    try {
        app.parse(std::move(words));
    } catch (const CLI::CallForHelp&) {
        const CLI::App* const command = parsedCommand();
        return Information{helpOf(command != nullptr ? *command : app)};
    } catch (const CLI::CallForVersion& call) {
        return Information{std::string(call.what()) + "\n"};
    } catch (const CLI::ArgumentMismatch& error) {
        const std::string_view what = error.what();
        return std::unexpected(usageError(say("{} needs a value.", what.substr(0, what.find(':'))), parsedCommand()));
    } catch (const CLI::ParseError& error) {
        // The library's sentences hold the user's words as they came.
        const TerminalText message(sayReason(error.what()), TerminalText::Kind::sentence);
        return std::unexpected(usageError(say("{}.", message.string()), parsedCommand()));
    }
    if (scan->parsed()) {
        return scanOptions;
    }
    if (clean->parsed()) {
        if (const auto complaint = settle(cleanOptions, cleanWords)) {
            return std::unexpected(usageError(*complaint, clean));
        }
        return cleanOptions;
    }
    if (restore->parsed()) {
        if (const auto complaint = settle(restoreOptions, restoresAll)) {
            return std::unexpected(usageError(*complaint, restore));
        }
        return restoreOptions;
    }
    if (history->parsed()) {
        return historyOptions;
    }
    if (insights->parsed()) {
        return insightsOptions;
    }
    if (status->parsed()) {
        return statusOptions;
    }
    if (apps->parsed()) {
        return appsOptions;
    }
    return Information{helpOf(app)};
}

} // namespace KarvelloCLI
