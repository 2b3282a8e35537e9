#pragma once

#include "CleanerCore/Audit/CleanupAuditCoding.h"
#include "CleanerCore/Audit/CleanupAuditStore.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/FileContents.h"
#include "Tests/Support/ForwardingFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace AuditTests {

using CleanerCore::CleanedItem;
using CleanerCore::CleaningMode;
using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditOperation;
using CleanerCore::CleanupAuditSource;
using CleanerCore::CleanupAuditStore;
using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;
using CleanerCore::FileResourceIdentity;
using Platform::Date;
using Platform::FileURL;
using Platform::UUID;
using TestSupport::contentsOf;

using Entries = std::vector<CleanupAuditEntry>;

inline CleanupCandidate loggedCandidate(std::string_view path, std::int64_t sizeBytes = 10)
{
    return CleanupCandidate({
        .url = FileURL::folder(path),
        .category = CleanupCategory::userCaches,
        .sizeBytes = sizeBytes,
        .lastModified = Date{700'000'000.25},
        .resourceIdentity = FileResourceIdentity{.fileResourceIdentifier = "0a1b", .systemFileNumber = 7},
        .isSelectedByDefault = true,
        .safety = CleanupSafety::safe,
    });
}

/// In the Trash, with all that a restore needs.
inline CleanedItem trashedItem(std::string_view path, std::int64_t sizeBytes = 10)
{
    const auto trash = FileURL::folder("/home/ada/.local/share/Trash/files");
    auto item = CleanedItem{.candidate = loggedCandidate(path, sizeBytes),
        .destinationURL = {},
        .restoreSourceRootURL = trash,
        .restoreSourceIdentity = FileResourceIdentity{.fileResourceIdentifier = "0a1b"}};
    item.destinationURL = trash.child(item.candidate.url.lastPathComponent(), Platform::DirectoryHint::isFolder);
    return item;
}

/// A clean of `itemCount` items, `age` seconds older than the newest entry of a test.
inline CleanupAuditEntry entry(double age = 0, int itemCount = 1)
{
    CleanupAuditEntry made{.id = UUID::random(), .occurredAt = Date{800'000'000 - age}};
    made.mode = CleaningMode::moveToTrash;
    made.requestedItemCount = itemCount;
    made.requestedBytes = 10 * itemCount;
    made.succeededItemCount = itemCount;
    made.affectedBytes = 10 * itemCount;
    for (int index = 0; index < itemCount; ++index) {
        made.cleanedItems.push_back(trashedItem(fmt::format("/home/ada/.cache/item-{}", index)));
    }
    return made;
}

inline std::vector<std::string> ids(const Entries& entries)
{
    std::vector<std::string> texts;
    for (const auto& each : entries) {
        texts.push_back(each.id.string());
    }
    return texts;
}

inline void setContent(const FileURL& url, std::string_view bytes)
{
    std::ofstream file(url.path(), std::ios::binary | std::ios::trunc);
    file << bytes;
    ASSERT_TRUE(file.flush().good()) << url.path();
}

/// The entries of a text that holds nothing but sound ones.
inline Entries strictEntries(std::string_view json)
{
    const auto entries = Platform::decodeJSON<Entries>(json);
    EXPECT_TRUE(entries) << (entries ? "" : entries.error().localizedDescription());
    return entries ? *entries : Entries();
}

inline std::string encoded(const auto& value)
{
    const auto json = Platform::encodeJSON(value);
    EXPECT_TRUE(json) << (json ? "" : json.error().localizedDescription());
    return json.value_or("");
}

/// The members of the object that a text holds; a failure of the test and none if it holds another value.
inline Platform::JSONValue::Object membersOf(std::string_view json)
{
    const auto document = Platform::JSONReader::parse(json);
    const auto* const members = document ? document->object() : nullptr;
    EXPECT_NE(members, nullptr) << json;
    return members != nullptr ? *members : Platform::JSONValue::Object();
}

/// The disk without the wait for it: what a write leaves is the same. For tests that write thousands of times.
class UnsyncedFileManager final : public TestSupport::ForwardingFileManager {
public:
    using ForwardingFileManager::ForwardingFileManager;

    [[nodiscard]] std::expected<void, Platform::FileError> writeAtomically(
        std::string_view bytes, const FileURL& url) const override
    {
        const auto temporary = fmt::format("{}.new-{}", url.path(), UUID::random().string());
        {
            std::ofstream file(temporary, std::ios::binary);
            file << bytes;
        }
        std::filesystem::rename(temporary, url.path());
        return {};
    }
};

/// A store on a log in a folder of its own.
class AuditStoreTest : public testing::Test {
protected:
    /// The names beside the log but the lock's.
    [[nodiscard]] std::vector<std::string> namesBesideLog() const
    {
        std::vector<std::string> names;
        for (const auto& item : std::filesystem::directory_iterator(m_tree.path("Karvello"))) {
            const auto name = item.path().filename().string();
            if (name != "cleanup-audit-log.json" && name != "cleanup-audit-log.json.lock") {
                names.push_back(name);
            }
        }
        std::ranges::sort(names);
        return names;
    }

    /// The one file that was moved aside for `reason`; fails the test if there is none or another one.
    [[nodiscard]] FileURL movedAside(std::string_view reason) const
    {
        const auto names = namesBesideLog();
        const auto prefix = fmt::format("cleanup-audit-log.json.{}-", reason);
        if (names.size() != 1 || !names.front().starts_with(prefix)) {
            ADD_FAILURE() << "not one " << prefix << "...: " << fmt::format("{}", fmt::join(names, ", "));
            return {};
        }
        return m_tree.url("Karvello/" + names.front());
    }

    void setLog(std::string_view bytes) const { setContent(m_log, bytes); }
    [[nodiscard]] std::string log() const { return contentsOf(m_log.path()); }

    TestSupport::TemporaryTree m_tree{"Karvello/"};
    Platform::PosixFileManager m_posix;
    UnsyncedFileManager m_fileManager{m_posix};
    FileURL m_log = m_tree.url("Karvello/cleanup-audit-log.json");
    CleanupAuditStore m_store{m_fileManager, m_log};
};

} // namespace AuditTests
