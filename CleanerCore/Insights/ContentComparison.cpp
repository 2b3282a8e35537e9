#include "CleanerCore/Insights/ContentComparison.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

namespace CleanerCore {

using Platform::FileError;
using Platform::FileErrorKind;
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
    Class all;
    for (auto* const file : files) {
        all.copies.push_back({.file = file, .open = nullptr});
    }
    m_classes.push_back(std::move(all));
    while (!m_classes.empty()) {
        auto next = std::move(m_classes.back());
        m_classes.pop_back();
        follow(std::move(next));
    }
    m_heldFiles = 0;
}

void ContentComparison::follow(Class equals)
{
    const auto size = equals.copies.front().file->state.size;
    while (equals.copies.size() > 1 && equals.offset < size) {
        const auto length =
            static_cast<std::size_t>(std::min(static_cast<std::int64_t>(kPieceBytes), size - equals.offset));
        std::vector<Copy> different;
        if (!readPiece(equals, length, different)) {
            m_classes.clear();
            return;
        }
        if (different.size() > 1) {
            m_classes.push_back({.copies = std::move(different), .offset = equals.offset, .hash = equals.hash});
        } else if (!different.empty()) {
            leave(different.front(), std::nullopt);
        }
        if (equals.copies.size() > 1) {
            equals.hash.update(m_leaderPiece.first(length));
            equals.offset += static_cast<std::int64_t>(length);
        }
    }
    const bool isLikeOthers = equals.copies.size() > 1;
    const auto digest = isLikeOthers ? std::optional(equals.hash.finish()) : std::nullopt;
    for (auto& copy : equals.copies) {
        leave(copy, digest);
    }
}

bool ContentComparison::readPiece(Class& equals, std::size_t length, std::vector<Copy>& different)
{
    const auto leaderPiece = m_leaderPiece.first(length);
    const auto otherPiece = m_otherPiece.first(length);
    std::vector<Copy> same;
    same.reserve(equals.copies.size());
    for (auto& copy : equals.copies) {
        if (isStopped()) {
            return false;
        }
        const bool isLeader = same.empty();
        const auto piece = isLeader ? leaderPiece : otherPiece;
        if (!readPiece(copy, equals.offset, piece)) {
            continue;
        }
        const bool isSame = isLeader || std::memcmp(leaderPiece.data(), otherPiece.data(), length) == 0;
        (isSame ? same : different).push_back(std::move(copy));
    }
    equals.copies = std::move(same);
    return true;
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
