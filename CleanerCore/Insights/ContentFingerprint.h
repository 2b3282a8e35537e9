#pragma once

#include "CleanerCore/Insights/FileReading.h"
#include "CleanerCore/Insights/SearchedFile.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace CleanerCore {

/// How much of a file one sample of its fingerprint holds.
constexpr std::int64_t kFingerprintSampleBytes = 65'536;

/// Takes a file's fingerprint, a SHA-256 over its size and two samples: the start and the middle. There is deliberately
/// none at the end. Where one sample is the whole file, the fingerprint is the SHA-256 of the contents instead, which
/// tells files of one size apart just as well and need not be computed again. Sets what belongs to fingerprinting in
/// `file`; a stop leaves it pending. `buffer` holds at least a sample.
void takeFingerprint(SearchedFile& file, FileReading& reading, std::span<std::byte> buffer);

} // namespace CleanerCore
