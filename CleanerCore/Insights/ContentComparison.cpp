#include "CleanerCore/Insights/ContentComparison.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

namespace CleanerCore {

using Platform::FileError;
using Platform::FileURL;
using Platform::SHA256;

ContentComparison::ContentComparison(FileReading& reading, std::span<std::byte> buffer, std::size_t maximumHeldFiles)
    : m_reading(reading)
    , m_leaderPiece(buffer.first(kPieceBytes))
    , m_otherPiece(buffer.subspan(kPieceBytes, kPieceBytes))
    , m_maximumHeldFiles(maximumHeldFiles)
{
}

void ContentComparison::compare(std::span<SearchedFile* const> files)
{
    std::vector<Copy> copies;
    copies.reserve(files.size());
    for (auto* const file : files) {
        copies.push_back({.file = file, .open = nullptr});
    }
    bool goesOn = splitByEnd(std::move(copies));
    while (goesOn && !m_classes.empty()) {
        auto next = std::move(m_classes.back());
        m_classes.pop_back();
        goesOn = follow(std::move(next));
    }
    m_classes.clear();
    m_heldFiles = 0;
}

bool ContentComparison::splitByEnd(std::vector<Copy> copies)
{
    const auto size = copies.front().file->state.size;
    const bool isOnePiece = size <= static_cast<std::int64_t>(kPieceBytes);
    while (!isOnePiece && copies.size() > 1) {
        auto different = splitByPiece(copies, size - static_cast<std::int64_t>(kEndBytes), kEndBytes);
        if (!different) {
            return false;
        }
        proceed({.copies = std::move(copies), .offset = 0, .hash = {}});
        copies = *std::move(different);
    }
    proceed({.copies = std::move(copies), .offset = 0, .hash = {}});
    return true;
}

bool ContentComparison::follow(Class equals)
{
    const auto size = equals.copies.front().file->state.size;
    while (equals.offset < size) {
        const auto length =
            static_cast<std::size_t>(std::min(static_cast<std::int64_t>(kPieceBytes), size - equals.offset));
        auto different = splitByPiece(equals.copies, equals.offset, length);
        if (!different) {
            return false;
        }
        if (!different->empty()) {
            proceed({.copies = *std::move(different), .offset = equals.offset, .hash = equals.hash});
        }
        if (equals.copies.size() < 2) {
            proceed(std::move(equals));
            return true;
        }
        equals.hash.update(m_leaderPiece.first(length));
        equals.offset += static_cast<std::int64_t>(length);
    }
    const auto digest = equals.hash.finish();
    for (auto& copy : equals.copies) {
        leave(copy, digest);
    }
    return true;
}

void ContentComparison::proceed(Class equals)
{
    if (equals.copies.size() > 1) {
        m_classes.push_back(std::move(equals));
    } else if (!equals.copies.empty()) {
        leave(equals.copies.front(), std::nullopt);
    }
}

std::optional<std::vector<ContentComparison::Copy>> ContentComparison::splitByPiece(
    std::vector<Copy>& copies, std::int64_t offset, std::size_t length)
{
    const auto leaderPiece = m_leaderPiece.first(length);
    const auto otherPiece = m_otherPiece.first(length);
    std::vector<Copy> same;
    std::vector<Copy> different;
    same.reserve(copies.size());
    for (auto& copy : copies) {
        if (isStopped()) {
            return std::nullopt;
        }
        const bool isLeader = same.empty();
        if (!readPiece(copy, offset, isLeader ? leaderPiece : otherPiece)) {
            continue;
        }
        const bool isSame = isLeader || std::memcmp(leaderPiece.data(), otherPiece.data(), length) == 0;
        (isSame ? same : different).push_back(std::move(copy));
    }
    copies = std::move(same);
    return different;
}

bool ContentComparison::readPiece(Copy& copy, std::int64_t offset, std::span<std::byte> piece)
{
    const auto url = copy.file->record->url();
    if (!copy.open) {
        if (const auto opened = open(copy, url); !opened) {
            fail(copy, opened.error());
            return false;
        }
    }
    if (const auto filled = m_reading.fill(*copy.open, url, offset, piece); !filled) {
        fail(copy, filled.error());
        return false;
    }
    if (m_heldFiles > m_maximumHeldFiles) {
        close(copy);
    }
    return true;
}

std::expected<void, FileError> ContentComparison::open(Copy& copy, const FileURL& url)
{
    auto opened = m_reading.fileManager.openFile(url, Platform::ReadingPlan::wholeFile);
    if (!opened) {
        return std::unexpected(opened.error());
    }
    copy.open = *std::move(opened);
    ++m_heldFiles;
    return requireSameState(copy.file->state, copy.open->stateAtOpening(), url);
}

/// The last look: what changed while it was read is not what was compared.
void ContentComparison::leave(Copy& copy, std::optional<SHA256::Digest> digest)
{
    const auto url = copy.file->record->url();
    const auto unchanged = copy.open ? requireStillInState(copy.file->state, *copy.open, url) : open(copy, url);
    if (!unchanged) {
        return fail(copy, unchanged.error());
    }
    copy.file->digest = digest;
    copy.file->hashing = SearchStep::done;
    close(copy);
}

void ContentComparison::fail(Copy& copy, const FileError& error)
{
    copy.file->failure = error;
    copy.file->hashing = SearchStep::failed;
    close(copy);
}

void ContentComparison::close(Copy& copy)
{
    if (copy.open) {
        copy.open.reset();
        --m_heldFiles;
    }
}

} // namespace CleanerCore
