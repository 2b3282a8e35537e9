#pragma once

#include "Platform/Files/PosixFileManager.h"
#include "Platform/Linux/LinuxTrash.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/FileContents.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace TrashTests {

using Platform::FileError;
using Platform::FileErrorKind;
using Platform::FileURL;
using TestSupport::contentsOf;
using TestSupport::TemporaryTree;

/// What stands at a path, a link not followed.
inline bool stands(const std::string& path)
{
    struct stat found{};
    return lstat(path.c_str(), &found) == 0;
}

inline void write(const std::string& path, std::string_view text)
{
    std::ofstream(path, std::ios::binary) << text;
}

/// The names in a folder, in order; empty too for a folder that is not there.
inline std::vector<std::string> names(const std::string& folder)
{
    std::vector<std::string> found;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        found.push_back(entry.path().filename());
    }
    std::ranges::sort(found);
    return found;
}

inline mode_t modeOf(const std::string& path)
{
    struct stat found{};
    return lstat(path.c_str(), &found) == 0 ? found.st_mode & 07777U : 0;
}

/// A home with application data in `home/data`, and one root of items, `home/Caches`.
class TrashTest : public testing::Test {
protected:
    [[nodiscard]] Platform::FolderAnchor root(std::string_view path = "home/Caches/") const
    {
        const auto url = m_tree.url(path);
        const auto attributes = m_posix.attributes(url);
        EXPECT_TRUE(attributes);
        return {
            .url = url, .systemNumber = *attributes->systemNumber, .systemFileNumber = *attributes->systemFileNumber};
    }

    /// Accepts only what stands at the path now.
    [[nodiscard]] Platform::ItemTest isItem(const std::string& path) const
    {
        const auto expected = m_posix.fingerprintReadings(FileURL(path));
        return [expected](const Platform::FingerprintReadings& found) {
            return expected.attributes && found.attributes && found.identityValues
                && found.identityValues->fileResourceIdentifier == expected.identityValues->fileResourceIdentifier
                && found.identityValues->values.fileSize == expected.identityValues->values.fileSize
                && found.attributes->systemFileNumber == expected.attributes->systemFileNumber
                && found.attributes->modificationDate == expected.attributes->modificationDate;
        };
    }

    [[nodiscard]] Platform::ItemAnchor item(std::string_view path, std::string_view rootPath = "home/Caches/") const
    {
        const auto url = m_tree.url(path);
        return {.root = root(rootPath), .item = url, .isConfirmed = isItem(url.path())};
    }

    /// For an item that was just trashed.
    [[nodiscard]] Platform::RestoreAnchor restoring(
        const FileURL& trashed, std::string_view destination, std::string_view rootPath = "home/Caches/") const
    {
        return {.trashedItem = trashed,
            .isConfirmed = isItem(trashed.path()),
            .root = root(rootPath),
            .destination = m_tree.url(destination)};
    }

    /// The place in the Trash; "/" and a failed test where the item was refused.
    FileURL trashed(std::string_view path, std::string_view rootPath = "home/Caches/")
    {
        const auto result = m_trash.trashItem(item(path, rootPath));
        EXPECT_TRUE(result) << result.error().localizedDescription();
        return result && *result ? **result : FileURL();
    }

    /// Expects that the item is refused, that it stands where it stood and that the Trash shows no trace of it.
    void expectRefused(const Platform::ItemAnchor& anchor, FileErrorKind kind)
    {
        const auto before = names(infoFolder()).size();
        const auto result = m_trash.trashItem(anchor);
        ASSERT_FALSE(result) << "moved to " << (*result)->path();
        EXPECT_EQ(static_cast<int>(result.error().kind), static_cast<int>(kind))
            << result.error().localizedDescription();
        EXPECT_TRUE(stands(anchor.item.path()));
        EXPECT_EQ(names(infoFolder()).size(), before);
    }

    [[nodiscard]] std::string trashFolder() const { return m_tree.path("home/data/Trash"); }
    [[nodiscard]] std::string filesFolder() const { return trashFolder() + "/files"; }
    [[nodiscard]] std::string infoFolder() const { return trashFolder() + "/info"; }
    [[nodiscard]] std::string record(std::string_view name) const
    {
        return contentsOf(infoFolder() + "/" + std::string(name) + ".trashinfo");
    }

    TemporaryTree m_tree{R"(
        home/Caches/
        home/data/
    )"};
    Platform::PosixFileManager m_posix;
    Platform::LinuxTrash m_trash{m_posix, m_tree.url("home/data/")};
};

} // namespace TrashTests
