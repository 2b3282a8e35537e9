#include "KarvelloCLI/SharedOptions.h"

#include "KarvelloCLI/Say.h"

namespace KarvelloCLI {

CLI::Option* addRepeated(
    CLI::App& app, const std::string& name, std::vector<std::string>& target, const std::string& description)
{
    return app.add_option(name, target, description)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->allow_extra_args(false);
}

CLI::Option* addFolders(
    CLI::App& app, const std::string& name, std::vector<std::string>& target, const std::string& description)
{
    return addRepeated(app, name, target, description)->check(notEmpty(say("needs a folder")))->type_name("DIR");
}

CLI::Option* addHome(CLI::App& app, std::optional<std::string>& target, const std::string& description)
{
    return app.add_option("--home", target, description)->check(notEmpty(say("needs a folder")))->type_name("DIR");
}

void addCommonOptions(CLI::App& app, CommonOptions& options)
{
    const std::string group = "Output";
    addChoice<OutputFormat>(app, "--format", options.format, "A table to read, or a file for programs (table)")
        ->group(group);
    app.add_flag("--redacted", options.isRedacted, "Show tokens in place of paths and names")->group(group);
    app.add_option("--output", options.output, "Write the result to this file, whole or not at all")
        ->check(notEmpty(say("needs a file")))
        ->type_name("FILE")
        ->group(group);
    app.add_flag("--verbose", options.isVerbose, "List every item, the skipped ones too")->group(group);
    addChoice<When>(app, "--progress", options.progress, "A line on standard error while it works (auto)")
        ->group(group);
    addChoice<When>(app, "--color", options.color, "Colours; auto: on a terminal, unless NO_COLOR is set")
        ->group(group);
    addChoice<KarvelloUI::AppLanguage>(app, "--language", options.language,
        fmt::format("The language of the words: {} (that of the environment)",
            fmt::join(Platform::RawValues<KarvelloUI::AppLanguage>::names, ", ")))
        ->type_name("CODE")
        ->group(group);
    app.add_option("--jobs", options.jobs, "How many processors to keep busy (all of them)")
        ->check(countOfJobs())
        ->type_name("N")
        ->group(group);
}

} // namespace KarvelloCLI
