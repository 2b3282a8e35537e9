#pragma once

#include "Tests/Support/TemporaryTree.h"

#include <cstddef>
#include <string>
#include <vector>

namespace KarvelloCLITests {

/// A tree that costs little and takes long to scan: something is found at once, then each of many nested roots holds all
/// the files of the innermost.
class SlowScan {
public:
    explicit SlowScan(std::size_t levels)
    {
        m_tree.add("first/file size=1");
        m_arguments = {"--root", m_tree.path("first")};
        for (std::size_t level = 0; level < levels; ++level) {
            m_arguments.insert(m_arguments.end(), {"--root", m_tree.path(m_path)});
            m_path += "d/";
        }
        m_tree.add(m_path + "file count=2000 size=1");
    }

    [[nodiscard]] std::vector<std::string> arguments(
        const std::string& command, const std::vector<std::string>& more) const
    {
        std::vector<std::string> all = m_arguments;
        all.insert(all.begin(), command);
        all.insert(all.end(), more.begin(), more.end());
        return all;
    }

private:
    TestSupport::TemporaryTree m_tree;
    std::string m_path;
    std::vector<std::string> m_arguments;
};

} // namespace KarvelloCLITests
