#include "KarvelloUI/Screens/Insights/FindingText.h"

namespace KarvelloUI {

std::string findingText(const DashboardWords& copy, std::string_view detail)
{
    if (detail == "Configuration profile") {
        return copy.say("Configuration profile");
    }
    if (detail == "Installer package") {
        return copy.say("Installer package");
    }
    if (detail == "Application bundle") {
        return copy.say("Application bundle");
    }
    if (detail == "Executable command script") {
        return copy.say("Executable command script");
    }
    if (detail == "Shell script") {
        return copy.say("Shell script");
    }
    if (detail == "Automation workflow") {
        return copy.say("Automation workflow");
    }
    if (detail == "Disk image") {
        return copy.say("Disk image");
    }
    if (detail == "Web shortcut") {
        return copy.say("Web shortcut");
    }
    if (detail == "Suspicious filename pattern") {
        return copy.say("Suspicious filename pattern");
    }
    return std::string(detail);
}

} // namespace KarvelloUI
