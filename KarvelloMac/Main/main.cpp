#include "KarvelloMac/ApplicationServices.h"
#include "KarvelloMac/KarvelloMacAppDelegate.h"
#include "KarvelloMac/MacOptions.h"
#include "KarvelloMac/TerminationSignals.h"
#include "PlatformDesktop/BusProbe.h"
#include "PlatformDesktop/SessionBus.h"
#include "PlatformDesktop/SingleInstance.h"

#include <QApplication>
#include <chrono>
#include <cstdio>
#include <fmt/format.h>
#include <memory>

using namespace KarvelloMac;

namespace {

bool hasDisplay(const Platform::Environment& environment)
{
    return environment.value("DISPLAY") || environment.value("WAYLAND_DISPLAY") || environment.value("QT_QPA_PLATFORM");
}

/// Before there is a window Qt talks to the session bus on this thread, and waits for whoever is behind the address as long
/// as that one likes. Without an answer there is no bus for this process. To be called before the first thread.
void leaveDeafBus()
{
    constexpr std::chrono::seconds kPatience(3);
    const auto address = PlatformDesktop::SessionBus::addressIn(Platform::Environment::current());
    if (address && !PlatformDesktop::BusProbe::mayAnswer(*address, kPatience)) {
        qputenv(PlatformDesktop::SessionBus::kAddressVariable, PlatformDesktop::SessionBus::kNoBus);
    }
}

int runApplication(int& argc, char** argv, const MacOptions& options, const Platform::Environment& environment)
{
    // Before the first thread.
    TerminationSignals signals;
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Karvello"));
    const auto bus = std::make_shared<PlatformDesktop::DesktopBus>(
        PlatformDesktop::DesktopBus::Settings{.hasSessionBus = PlatformDesktop::SessionBus::isOffered(environment)});
    std::unique_ptr<KarvelloMacAppDelegate> delegate;
    PlatformDesktop::SingleInstance instance(bus, PlatformDesktop::SingleInstance::Settings::current(environment),
        [&delegate](const PlatformDesktop::SingleInstance::Activation& activation) {
            if (delegate) {
                qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(activation.token));
                delegate->applicationShouldHandleReopen(destinationOf(activation.action.value_or(std::string()))
                        .value_or(KarvelloMacAppDelegate::Destination::dashboard));
            }
        });
    // One that runs and does not answer cannot be helped; its files are shared safely.
    if (instance.acquire() == PlatformDesktop::SingleInstance::Role::otherRunning
        && instance.activateOther(actionOf(options.destination))) {
        return 0;
    }
    ApplicationServices services(environment, bus);
    delegate = std::make_unique<KarvelloMacAppDelegate>(services, options.destination);
    signals.watch([&delegate] { delegate->quit(); });
    delegate->applicationDidFinishLaunching();
    const int status = QApplication::exec();
    delegate.reset();
    // Threads that a dead disk or bus holds up are waited for. Meanwhile another instance may start, and this one be ended.
    signals.release();
    instance.release();
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int index = 0; index < argc; ++index) {
        arguments.append(QString::fromLocal8Bit(argv[index]));
    }
    const auto options = MacOptions::parse(arguments);
    if (!options) {
        fmt::print(stderr, "karvello: {}\n", options.error());
        return 2;
    }
    if (options->information) {
        fmt::print("{}", *options->information);
        return 0;
    }
    leaveDeafBus();
    const auto environment = Platform::Environment::current();
    if (!hasDisplay(environment)) {
        fmt::print(
            stderr, "karvello: there is no display to show a window on. 'karvello-cli' does the same in a terminal.\n");
        return 1;
    }
    return runApplication(argc, argv, *options, environment);
}
