#include "KarvelloCLI/InsightsOptions.h"

#include "KarvelloCLI/OptionChecks.h"
#include "KarvelloCLI/SharedOptions.h"

#include <fmt/format.h>

namespace KarvelloCLI {

namespace {

constexpr std::int64_t kMebibyte = 1'048'576;
constexpr std::int64_t kGibibyte = 1024 * kMebibyte;
constexpr double kLongestReviewAge = 30 * 86400.0;

std::string withDefault(std::string_view description, std::int64_t value)
{
    return fmt::format("{} ({})", description, value);
}

/// As an option takes it: "100M".
std::string withDefaultSize(std::string_view description, std::int64_t bytes)
{
    return bytes % kGibibyte == 0 ? fmt::format("{} ({}G)", description, bytes / kGibibyte)
                                  : fmt::format("{} ({}M)", description, bytes / kMebibyte);
}

CLI::Option* addCount(
    CLI::App& app, const std::string& name, std::int64_t& target, std::int64_t least, const std::string& description)
{
    return app.add_option(name, target, description)->check(countFrom(least))->type_name("N");
}

CLI::Option* addSize(
    CLI::App& app, const std::string& name, std::int64_t& target, std::int64_t least, const std::string& description)
{
    return app.add_option(name, target, description)->transform(byteCountFrom(least))->type_name("BYTES");
}

} // namespace

const char* const kInsightsIntroduction =
    "Show where the space went, without changing anything.\n"
    "\n"
    "Looks at your own folders (downloads, documents, pictures and the like): how much\n"
    "each holds, the largest files, older downloads, files with the same contents, and\n"
    "installers and scripts. With --root only these folders are looked at, unless\n"
    "--home asks for the home as well. Sizes are bytes; 100M is 100 times 1,048,576.\n";

const char* const kInsightsFooter = "\nExit status:\n"
                                    "  0    done; what was cut short by a limit says so\n"
                                    "  1    done in part: something could not be read or written, or one of several\n"
                                    "       folders was refused\n"
                                    "  2    wrong usage\n"
                                    "  3    refused: no folder that was given may be looked at, or none exists\n"
                                    "  130  interrupted; what was found until then has been shown\n";

std::vector<std::string> InsightsOptions::paths() const
{
    std::vector<std::string> paths = roots;
    for (const auto& path : {home, common.output}) {
        if (path) {
            paths.push_back(*path);
        }
    }
    return paths;
}

void addInsightsOptions(CLI::App& app, InsightsOptions& options)
{
    CleanerCore::InsightConfiguration& limits = options.configuration;
    const std::string where = "What to look at";
    addHome(app, options.home, "The home whose folders to look at (yours)")->group(where);
    addFolders(app, "--root", options.roots, "A folder to look at in place of those of the home. May be repeated")
        ->group(where);
    addChoice<InsightPart>(app, "--only", options.only, "One part alone; the others are not worked out")->group(where);

    const std::string what = "What is shown";
    addSize(app, "--min-large", limits.minimumLargeFileBytes, 1,
        withDefaultSize("Large files begin here", limits.minimumLargeFileBytes))
        ->group(what);
    addSize(app, "--min-duplicate", limits.minimumDuplicateFileBytes, 1,
        withDefaultSize("Files to compare begin here", limits.minimumDuplicateFileBytes))
        ->group(what);
    app.add_option("--min-age", limits.minimumReviewFileAge,
           fmt::format("Leave files out of the lists that changed in the last so many seconds ({})",
               limits.minimumReviewFileAge))
        ->check(secondsFromZero(kLongestReviewAge))
        ->type_name("SECONDS")
        ->group(what);
    addCount(app, "--max-results", limits.maximumResultCount, 20,
        withDefault("The length of each list", limits.maximumResultCount))
        ->group(what);
    addCount(app, "--max-recent", limits.maximumRecentReviewSkippedItems, 0,
        withDefault("How many files that changed too lately are named", limits.maximumRecentReviewSkippedItems))
        ->group(what);

    const std::string effort = "How far to go";
    addCount(app, "--max-visits", limits.maximumVisitedItemsPerRoot, 128,
        withDefault("Items to visit in each folder", limits.maximumVisitedItemsPerRoot))
        ->group(effort);
    addCount(app, "--max-hash-files", limits.maximumDuplicateHashFiles, 1,
        withDefault("Files to read whole", limits.maximumDuplicateHashFiles))
        ->group(effort);
    addSize(app, "--max-hash-bytes", limits.maximumDuplicateHashBytes, kMebibyte,
        withDefaultSize("Bytes to read whole, in all", limits.maximumDuplicateHashBytes))
        ->group(effort);
    addSize(app, "--max-hash-file-bytes", limits.maximumDuplicateFullHashBytesPerFile, kMebibyte,
        withDefaultSize("The largest file to read whole", limits.maximumDuplicateFullHashBytesPerFile))
        ->group(effort);
    addCommonOptions(app, options.common);
}

} // namespace KarvelloCLI
