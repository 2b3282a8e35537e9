#include "KarvelloMac/MacOptions.h"

#include <QCommandLineParser>
#include <array>
#include <fmt/format.h>
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
    if (!parser.parse(arguments)) {
        return std::unexpected(parser.errorText().toStdString());
    }
    if (!parser.positionalArguments().isEmpty()) {
        return std::unexpected(
            fmt::format("Unknown argument '{}'.", parser.positionalArguments().constFirst().toStdString()));
    }
    MacOptions options;
    if (parser.isSet(help)) {
        options.information = parser.helpText().toStdString();
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
