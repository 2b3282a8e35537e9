#pragma once

#include "KarvelloCLI/Options.h"

#include <optional>

namespace KarvelloCLI {

/// The words around the options in the help.
inline constexpr const char* kStatusIntroduction =
    "Show how the machine is: processors, memory, thermal state, uptime, disk.\n"
    "\n"
    "With --watch, again and again until it is interrupted: on a terminal one line that\n"
    "shows the course of the last readings, elsewhere a line for each.\n";

inline constexpr const char* kStatusFooter = "\nExit status:\n"
                                             "  0    done\n"
                                             "  1    the result could not be written\n"
                                             "  2    wrong usage\n"
                                             "  130  interrupted, as every --watch is in the end\n";

inline constexpr const char* kAppsIntroduction =
    "Show your running applications: what each takes of the processors and of the\n"
    "memory, and whether it may be asked to quit. Nobody is asked.\n";

inline constexpr const char* kAppsFooter = "\nExit status:\n"
                                           "  0    done\n"
                                           "  1    the programs could not be read, or the result not written\n"
                                           "  2    wrong usage\n"
                                           "  130  interrupted\n";

struct StatusOptions {
    CommonOptions common;
    /// Seconds from one reading to the next, without an end. Absent: one reading.
    std::optional<double> watch;
};

struct AppsOptions {
    CommonOptions common;
};

} // namespace KarvelloCLI
