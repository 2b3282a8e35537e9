#pragma once

#include "CleanerCore/Insights/FileReading.h"
#include "CleanerCore/Insights/SearchedFile.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace CleanerCore {

/// How much of a file one sample of its fingerprint holds.
constexpr std::int64_t kFingerprintSampleBytes = 65'536;

/// The buffer for `takeFingerprints` of so many files.
constexpr std::size_t fingerprintBufferBytes(std::size_t files)
{
    return files * static_cast<std::size_t>(kFingerprintSampleBytes);
}

/// Takes the fingerprints of some files of one size: a SHA-256 over the size and two samples, the start and the middle.
/// There is deliberately none at the end. Where one sample is the whole file, the fingerprint is the SHA-256 of the
/// contents instead, which tells files of one size apart just as well and need not be computed again.
///
/// Sets what belongs to fingerprinting in each file; a stop leaves those pending that are not done.
void takeFingerprints(std::span<SearchedFile> files, FileReading& reading, std::span<std::byte> buffer);

} // namespace CleanerCore
