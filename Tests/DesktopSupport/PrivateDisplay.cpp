#include "Tests/DesktopSupport/PrivateDisplay.h"

#include <map>

namespace DesktopTestSupport {

namespace {

std::vector<std::string> serverArguments(const std::vector<std::string>& options)
{
    // The server chooses a free number and says it.
    std::vector<std::string> arguments{"-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp", "-noreset"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return arguments;
}

} // namespace

PrivateDisplay::PrivateDisplay(Manager manager, const std::vector<std::string>& serverOptions)
    : m_server("Xvfb", serverArguments(serverOptions), {{"HOME", m_home.path("home")}})
    , m_name(":" + m_server.line())
{
    if (m_name == ":") {
        m_name.clear();
    } else if (manager == Manager::openbox) {
        m_manager.emplace("openbox", std::vector<std::string>{"--sm-disable", "--startup", "echo ready"},
            std::map<std::string, std::string>{{"HOME", m_home.path("home")}, {"DISPLAY", m_name},
                {"XDG_CONFIG_HOME", m_home.path("home")}, {"XDG_CACHE_HOME", m_home.path("home")},
                {"XDG_DATA_HOME", m_home.path("home")}});
        // Long before, it says that it manages windows, and overlooks those that come meanwhile.
        std::string said;
        do {
            said = m_manager->line();
        } while (!said.empty() && said != "ready");
        m_name = said.empty() ? said : m_name;
    }
}

} // namespace DesktopTestSupport
