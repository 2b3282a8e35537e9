#pragma once

#include "Platform/Files/AtomicFile.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Services/FileUserDefaults.h"
#include "Tests/Support/ForwardingFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace DefaultsTests {

using Platform::DefaultsChange;
using Platform::DefaultsData;
using Platform::DefaultsDictionary;
using Platform::DefaultsValue;
using Platform::FileErrorKind;
using Platform::FileUserDefaults;

/// Waits for no disk: a test with hundreds of saves asks what is in the file, not whether it outlives a loss of power.
class UnsyncedFileManager final : public TestSupport::ForwardingFileManager {
public:
    using ForwardingFileManager::ForwardingFileManager;

    [[nodiscard]] std::expected<void, Platform::FileError> writeAtomically(
        std::string_view bytes, const Platform::FileURL& url) const override
    {
        return Platform::replaceFile(url, bytes, Platform::WriteDurability::leftToSystem);
    }
};

inline std::vector<std::string> keysOf(std::span<const std::string> keys)
{
    return {keys.begin(), keys.end()};
}

class FileUserDefaultsTest : public testing::Test {
protected:
    [[nodiscard]] std::string text() const
    {
        std::ifstream file(m_file.path(), std::ios::binary);
        return {std::istreambuf_iterator(file), {}};
    }
    void setText(std::string_view text) const
    {
        std::filesystem::create_directories(m_tree.path("config/Karvello"));
        std::ofstream(m_file.path(), std::ios::binary) << text;
    }

    /// What lies in the folder, but for the lock.
    [[nodiscard]] std::set<std::string> names() const
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_tree.path("config/Karvello"))) {
            names.insert(entry.path().filename());
        }
        names.erase("preferences.json.lock");
        return names;
    }

    TestSupport::TemporaryTree m_tree{"config/"};
    Platform::PosixFileManager m_posix;
    UnsyncedFileManager m_files{m_posix};
    Platform::FileURL m_file = m_tree.url("config/Karvello/preferences.json");
};

} // namespace DefaultsTests
