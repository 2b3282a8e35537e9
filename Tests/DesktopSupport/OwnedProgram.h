#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QProcess>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace DesktopTestSupport {

/// A program that a test has started, with a small environment of its own. It ends with this object, and with the test
/// program whatever becomes of that.
class OwnedProgram {
public:
    /// It finds the usual programs, and nothing else of this process's environment.
    OwnedProgram(const std::string& program, const std::vector<std::string>& arguments,
        const std::map<std::string, std::string>& environment = {});
    OwnedProgram(const OwnedProgram&) = delete;
    OwnedProgram& operator=(const OwnedProgram&) = delete;
    ~OwnedProgram();

    [[nodiscard]] std::int32_t process() const { return static_cast<std::int32_t>(m_process.processId()); }
    /// The next line of its output, without the end; empty if none comes within some seconds.
    [[nodiscard]] std::string line();
    /// Whether it says this in the line that comes next.
    [[nodiscard]] bool says(std::string_view words) { return line() == words; }
    void tell(std::string_view line);
    /// Whether it ends by itself within some seconds, without a fault.
    [[nodiscard]] bool ends();
    /// Whether it neither says anything nor ends for a while.
    [[nodiscard]] bool staysQuiet();

private:
    QProcess m_process;
};

} // namespace DesktopTestSupport
