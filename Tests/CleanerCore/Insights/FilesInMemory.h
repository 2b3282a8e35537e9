#pragma once

#include "CleanerCore/Insights/FileRecord.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/ForwardingFileManager.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

/// Regular files whose contents are held here, at any path and of any size.
class FilesInMemory final : public TestSupport::ForwardingFileManager {
public:
    struct File {
        std::string contents;
        /// Longer than the contents: the rest is zeros.
        std::int64_t size = 0;
        std::uint64_t number = 0;
    };

    FilesInMemory()
        : ForwardingFileManager(posix())
    {
    }

    /// `number` is that of another file for a second name of it.
    FileRecord add(std::string_view path, std::string contents, std::optional<std::uint64_t> number = {},
        std::optional<std::int64_t> size = {})
    {
        const File file{.contents = std::move(contents), .size = 0, .number = number.value_or(m_files.size() + 1'000)};
        auto& added = m_files[std::string(path)] = file;
        added.size = size.value_or(static_cast<std::int64_t>(added.contents.size()));
        FileRecord record{Platform::FileURL(path)};
        record.logicalSizeBytes = added.size;
        record.allocatedSizeBytes = 4096;
        record.lastModified = Platform::Date{0};
        record.fileNumber = added.number;
        record.deviceNumber = 1;
        return record;
    }
    void clear() { m_files.clear(); }
    [[nodiscard]] const File& file(const std::string& path) const { return m_files.at(path); }

    [[nodiscard]] std::expected<std::unique_ptr<Platform::ReadableFile>, Platform::FileError> openFile(
        const Platform::FileURL& url, Platform::ReadingPlan /*plan*/) const override
    {
        const auto found = m_files.find(url.path());
        if (found == m_files.end()) {
            return std::unexpected(
                Platform::FileError::fromSystemError(ENOENT, Platform::FileOperation::read, url.path()));
        }
        return std::make_unique<Reader>(found->second);
    }
    [[nodiscard]] Platform::FingerprintReadings fingerprintReadings(const Platform::ItemReference& item) const override
    {
        const auto& found = m_files.at(item.url().path());
        return {
            .identityValues = Platform::IdentityValues{.values = {.fileSize = found.size}},
            .attributes = Platform::FileAttributes{.systemFileNumber = found.number, .systemNumber = 1},
        };
    }

private:
    class Reader final : public Platform::ReadableFile {
    public:
        explicit Reader(const File& file)
            : m_file(file)
            , m_state{.fileNumber = file.number, .deviceNumber = 1, .size = file.size, .modified = {}, .changed = {}}
        {
        }

        [[nodiscard]] const Platform::ContentState& stateAtOpening() const override { return m_state; }
        [[nodiscard]] std::expected<Platform::ContentState, Platform::FileError> currentState() const override
        {
            return m_state;
        }
        [[nodiscard]] std::expected<std::size_t, Platform::FileError> read(
            std::int64_t offset, std::span<std::byte> buffer) override
        {
            const auto count =
                static_cast<std::size_t>(std::clamp<std::int64_t>(m_file.size - offset, 0, std::ssize(buffer)));
            std::memset(buffer.data(), 0, count);
            const auto length = std::ssize(m_file.contents);
            if (offset < length) {
                std::memcpy(buffer.data(), m_file.contents.data() + offset,
                    std::min(count, static_cast<std::size_t>(length - offset)));
            }
            return count;
        }

    private:
        const File& m_file;
        Platform::ContentState m_state;
    };

    static const Platform::FileManager& posix()
    {
        static const Platform::PosixFileManager fileManager;
        return fileManager;
    }

    std::map<std::string, File> m_files;
};

} // namespace CleanerCore
