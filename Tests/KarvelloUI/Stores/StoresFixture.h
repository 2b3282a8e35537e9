#pragma once

#include "KarvelloUI/Copy/AppLanguage.h"
#include "KarvelloUI/Stores/PreferenceStore.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Linux/LinuxBookmarks.h"
#include "Platform/Services/FileUserDefaults.h"
#include "Tests/Support/FailingUserDefaults.h"
#include "Tests/Support/RecordingBookmarks.h"
#include "Tests/Support/TemporaryTree.h"

#include <QCoreApplication>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloUI::StoresTests {

inline constexpr Platform::Date kNow{800'000'000};

/// Lets the stores hear of what was posted to them.
inline void runEvents()
{
    static int argumentCount = 1;
    static std::string name = "tests";
    static char* arguments[] = {name.data(), nullptr};
    static QCoreApplication application(argumentCount, static_cast<char**>(arguments));
    QCoreApplication::sendPostedEvents();
}

/// A home with folders, the preferences of a user in a file beside it, and bookmarks of the real system.
class StoresFixture : public testing::Test {
protected:
    [[nodiscard]] LanguageProvider language() const
    {
        return [this] { return m_language; };
    }

    void seed(std::string_view key, std::string_view bytes)
    {
        ASSERT_TRUE(m_document.set(key, Platform::DefaultsData{std::string(bytes)}));
    }

    /// What another process that starts now finds.
    [[nodiscard]] std::optional<std::string> onDisk(std::string_view key) const
    {
        return Platform::FileUserDefaults(m_files, m_document.fileURL()).data(key);
    }

    void TearDown() override
    {
        EXPECT_EQ(m_bookmarks.openCount(), 0);
        EXPECT_FALSE(m_bookmarks.wentBelowZero());
    }

    TestSupport::TemporaryTree m_tree{"home/Library/Caches/a\nhome/Documents/b\nhome/file\n"};
    Platform::PosixFileManager m_files;
    Platform::FileURL m_home = m_tree.url("home/");
    Platform::FileUserDefaults m_document{m_files, m_tree.url("config/preferences.json")};
    TestSupport::FailingUserDefaults m_defaults{m_document};
    Platform::LinuxBookmarks m_systemBookmarks;
    TestSupport::RecordingBookmarks m_bookmarks{m_systemBookmarks};
    AppLanguage m_language = AppLanguage::english;
};

inline constexpr std::string_view kUnreadable = "The data couldn’t be read because it isn’t in the correct format.";
inline constexpr std::string_view kDiskFull =
    "The file “preferences.json” couldn’t be saved because the volume is out of space.";

/// Each with one of the keys under another name.
[[nodiscard]] inline std::vector<std::string> eachWithoutOneOf(
    std::string_view json, const std::vector<std::string_view>& keys)
{
    std::vector<std::string> texts;
    for (const auto key : keys) {
        std::string text(json);
        const auto quoted = "\"" + std::string(key) + "\"";
        const auto position = text.find(quoted);
        EXPECT_NE(position, std::string::npos) << key;
        texts.push_back(text.replace(position, quoted.size(), "\"unknown\""));
    }
    return texts;
}

[[nodiscard]] inline std::string replacing(std::string_view text, std::string_view piece, std::string_view replacement)
{
    std::string changed(text);
    const auto position = changed.find(piece);
    EXPECT_NE(position, std::string::npos) << piece;
    return position == std::string::npos ? changed : changed.replace(position, piece.size(), replacement);
}

} // namespace KarvelloUI::StoresTests
