#pragma once

#include "CleanerCore/Insights/FileRecord.h"
#include "Platform/Base/SHA256.h"
#include "Platform/Files/FileError.h"
#include "Platform/Files/ReadableFile.h"

#include <cstdint>
#include <optional>

namespace CleanerCore {

/// How far a stage of a search has come with a file.
enum class SearchStep : std::uint8_t {
    /// Not there yet: where the search was stopped, it never will be.
    pending,
    done,
    failed,
};

/// One file on its way through the search for duplicates.
struct SearchedFile {
    const FileRecord* record = nullptr;

    SearchStep fingerprinting = SearchStep::pending;
    Platform::SHA256::Digest fingerprint{};
    /// The fingerprint is the SHA-256 of the whole contents.
    bool isFingerprintOfAll = false;
    /// What the file was when the fingerprint was taken: anything else later on is another content.
    Platform::ContentState state;

    SearchStep hashing = SearchStep::pending;
    /// Nothing for a file that turned out to be like no other.
    std::optional<Platform::SHA256::Digest> digest;

    /// Why the step failed.
    std::optional<Platform::FileError> failure;
};

} // namespace CleanerCore
