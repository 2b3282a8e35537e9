#pragma once

#include "CleanerCore/Audit/CleanupAuditCoding.h"
#include "CleanerCore/Audit/LossyCleanupAuditEntryList.h"
#include "Platform/Base/JSONReader.h"
#include "Platform/Base/JSONWriter.h"

#include <string_view>

/// What must hold for any bytes whatever. The fuzzers look for bytes for which it does not; the tests replay the corpus.
namespace FuzzTargets {

/// What was saved from a log can be written, and reads back as the same entries.
[[nodiscard]] inline bool auditLogHolds(std::string_view bytes)
{
    using CleanerCore::LossyCleanupAuditEntryList;
    const auto list = LossyCleanupAuditEntryList::read(bytes);
    if (!list) {
        return true;
    }
    const auto written = Platform::encodeJSON(list->entries);
    const auto again = written ? LossyCleanupAuditEntryList::read(*written) : list;
    return written && again && again->entries == list->entries
        && again->completeness == LossyCleanupAuditEntryList::Completeness::strict;
}

/// What was read can be written, and what was written can be read and written the same way.
[[nodiscard]] inline bool jsonHolds(std::string_view bytes)
{
    namespace JSONReader = Platform::JSONReader;
    const auto textOf = [](const Platform::JSONValue& value) {
        Platform::JSONWriter writer;
        writer.value(value);
        return std::move(writer).finish();
    };
    std::ignore = JSONReader::parse(bytes, 512, JSONReader::RepeatedKeys::makeTheObjectNull);
    const auto value = JSONReader::parse(bytes);
    if (!value) {
        return true;
    }
    const auto written = textOf(*value);
    const auto again = written ? JSONReader::parse(*written) : value;
    if (!written || !again) {
        return false;
    }
    const auto rewritten = textOf(*again);
    const auto third = rewritten ? JSONReader::parse(*rewritten) : value;
    return rewritten && third && textOf(*third) == rewritten;
}

} // namespace FuzzTargets
