#include "KarvelloMac/MacOptions.h"

#include <QCommandLineParser>
#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <iterator>
#include <string_view>
#include <utility>

namespace KarvelloMac {

using Destination = KarvelloUI::KarvelloDashboardLaunchDestination;

namespace {

constexpr std::array<std::pair<Destination, std::string_view>, 4> kActions{{
    {Destination::dashboard, "open-dashboard"},
    {Destination::cleanupReview, "open-cleanup"},
    {Destination::memoryReview, "open-memory"},
    {Destination::systemReview, "open-system"},
}};

/// What the toolkit takes for itself, the identity among it by which a session manager starts the application again.
constexpr auto kToolkitOptions =
    std::to_array<std::string_view>({"display", "geometry", "platform", "platformpluginpath", "platformtheme", "plugin",
        "qwindowgeometry", "qwindowicon", "qwindowtitle", "session", "style", "stylesheet"});

QStringList withoutToolkitOptions(const QStringList& arguments)
{
    QStringList own;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        const std::string word = argument->toStdString();
        const auto dashes = std::min<std::size_t>(word.find_first_not_of('-'), 2);
        const auto name = std::string_view(word).substr(dashes == 0 ? word.size() : dashes);
        const auto key = name.substr(0, name.find('='));
        if (std::ranges::find(kToolkitOptions, key) == kToolkitOptions.end()) {
            own.append(*argument);
        } else if (key == name && std::next(argument) != arguments.end()) {
            ++argument;
        }
    }
    return own;
}

} // namespace

std::expected<MacOptions, std::string> MacOptions::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Looks for clutter in your home, shows it, and moves to the Trash what you confirm."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help."));
    const QCommandLineOption version(QStringLiteral("version"), QStringLiteral("Show the version."));
    const QCommandLineOption open(QStringLiteral("open"),
        QStringLiteral("Where to begin: dashboard, cleanupReview, memoryReview or systemReview."),
        QStringLiteral("destination"), QStringLiteral("dashboard"));
    parser.addOptions({open, help, version});
    if (!parser.parse(withoutToolkitOptions(arguments))) {
        return std::unexpected(parser.errorText().toStdString());
    }
    if (!parser.positionalArguments().isEmpty()) {
        return std::unexpected(
            fmt::format("Unknown argument '{}'.", parser.positionalArguments().constFirst().toStdString()));
    }
    MacOptions options;
    if (parser.isSet(help)) {
        // There is no application object yet, which would know the program's name.
        options.information =
            parser.helpText().replace(QStringLiteral("<executable_name>"), QStringLiteral("karvello")).toStdString();
    } else if (parser.isSet(version)) {
        options.information = "karvello " KARVELLO_VERSION "\n";
    }
    const std::string name = parser.value(open).toStdString();
    const auto destination = Platform::fromRawValue<Destination>(name);
    if (!destination) {
        return std::unexpected(fmt::format(
            "There is nothing to open that is called '{}': dashboard, cleanupReview, memoryReview or systemReview.",
            name));
    }
    options.destination = *destination;
    return options;
}

std::string actionOf(Destination destination)
{
    for (const auto& [known, action] : kActions) {
        if (known == destination) {
            return std::string(action);
        }
    }
    return std::string(kActions.front().second);
}

std::optional<Destination> destinationOf(const std::string& action)
{
    for (const auto& [destination, known] : kActions) {
        if (known == action) {
            return destination;
        }
    }
    return std::nullopt;
}

} // namespace KarvelloMac
