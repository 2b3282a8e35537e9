#pragma once

#include "CleanerCore/Insights/FileReading.h"
#include "CleanerCore/Insights/SearchedFile.h"
#include "Platform/Base/SHA256.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace CleanerCore {

/// Finds out which of some files of one size are equal. Their ends are looked at first, since that is where a file often
/// differs from its older version. Then they are read side by side, a piece of each at a time; what differs goes on
/// apart, what is like no other is left there and then, and of those that stay equal one is hashed for all. A few files are held open; the others are opened for each piece, so there may be any number of them.
class ContentComparison {
public:
    static constexpr std::size_t kPieceBytes = std::size_t{256} * 1024;
    /// How much of the end is looked at first, of files that have more than one piece.
    static constexpr std::size_t kEndBytes = std::size_t{64} * 1024;
    /// Two pieces: one of the file that leads, one of the file that is compared.
    static constexpr std::size_t kBufferBytes = 2 * kPieceBytes;

    /// `buffer` holds at least `kBufferBytes`.
    ContentComparison(FileReading& reading, std::span<std::byte> buffer, std::size_t maximumHeldFiles);

    /// Sets what belongs to hashing in each of the files. A stop leaves those pending that are not done.
    void compare(std::span<SearchedFile* const> files);

private:
    /// One of the files, while it still has a companion.
    struct Copy {
        SearchedFile* file = nullptr;
        std::unique_ptr<Platform::ReadableFile> open;
    };
    /// Files that are equal up to `offset`, which `hash` has taken in.
    struct Class {
        std::vector<Copy> copies;
        std::int64_t offset = 0;
        Platform::SHA256 hash;
    };

    [[nodiscard]] bool isStopped() const { return m_reading.stop.stop_requested(); }
    /// Puts those with the same end on the list, a class each. False after a stop.
    [[nodiscard]] bool splitByEnd(std::vector<Copy> copies);
    /// Takes a class to the end, or until fewer than two are left; those that split off are put on the list. False after
    /// a stop.
    [[nodiscard]] bool follow(Class equals);
    /// Reads the same piece of all, and takes out those that differ from the first one that can be read. Nothing after a
    /// stop.
    [[nodiscard]] std::optional<std::vector<Copy>> splitByPiece(
        std::vector<Copy>& copies, std::int64_t offset, std::size_t length);
    /// Goes on with these as one class, unless it is only one.
    void proceed(Class equals);
    [[nodiscard]] bool readPiece(Copy& copy, std::int64_t offset, std::span<std::byte> piece);
    [[nodiscard]] std::expected<void, Platform::FileError> open(Copy& copy, const Platform::FileURL& url);
    void leave(Copy& copy, std::optional<Platform::SHA256::Digest> digest);
    void fail(Copy& copy, const Platform::FileError& error);
    void close(Copy& copy);

    FileReading& m_reading;
    std::span<std::byte> m_leaderPiece;
    std::span<std::byte> m_otherPiece;
    std::size_t m_maximumHeldFiles;
    std::size_t m_heldFiles = 0;
    std::vector<Class> m_classes;
};

} // namespace CleanerCore
