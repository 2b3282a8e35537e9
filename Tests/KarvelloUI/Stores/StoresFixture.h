#pragma once

#include "KarvelloUI/Copy/AppLanguage.h"
#include "KarvelloUI/Stores/PreferenceStore.h"
#include "Platform/Base/Date.h"
#include "Platform/Linux/LinuxBookmarks.h"
#include "Tests/KarvelloUI/Stores/PreferencesFixture.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/RecordingBookmarks.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace StoresTests {

inline constexpr Platform::Date kNow{800'000'000};

/// A home with folders beside the preferences, and bookmarks of the real system.
class StoresFixture : public PreferencesTest {
protected:
    StoresFixture() { m_tree.add("home/Library/Caches/a\nhome/Documents/b\nhome/file\n"); }

    [[nodiscard]] KarvelloUI::LanguageProvider language() const
    {
        return [this] { return m_language; };
    }

    void seed(std::string_view key, std::string_view bytes)
    {
        ASSERT_TRUE(m_file.set(key, Platform::DefaultsData{std::string(bytes)}));
    }

    /// What another process that starts now finds.
    [[nodiscard]] std::optional<std::string> onDisk(std::string_view key) const
    {
        return Platform::FileUserDefaults(m_files, m_file.fileURL()).data(key);
    }

    void TearDown() override
    {
        EXPECT_EQ(m_bookmarks.openCount(), 0);
        EXPECT_FALSE(m_bookmarks.wentBelowZero());
    }

    TestSupport::EventLoop m_loop;
    Platform::FileURL m_home = m_tree.url("home/");
    Platform::LinuxBookmarks m_systemBookmarks;
    TestSupport::RecordingBookmarks m_bookmarks{m_systemBookmarks};
    KarvelloUI::AppLanguage m_language = KarvelloUI::AppLanguage::english;
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

} // namespace StoresTests
