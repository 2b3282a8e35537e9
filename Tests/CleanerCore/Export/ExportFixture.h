#pragma once

#include "CleanerCore/Export/ScanResultExporter.h"
#include "Platform/Base/JSONReader.h"
#include "Tests/Support/FileContents.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

/// What the tests of exports share.
namespace CleanerCore::ExportFixture {

using Format = ScanResultExportFormat;
using Mode = ReportExportPrivacyMode;
using SelectedIDs = std::unordered_set<std::string>;
using TestSupport::contentsOf;
using TestSupport::golden;

inline const Platform::Date kScannedAt = Platform::Date::fromUnixTime(1'794'780'245, 123'000'000);
inline const Platform::Date kExportedAt = Platform::Date::fromUnixTime(1'794'866'645, 0);

template <typename Report>
std::string exported(const Report& scanReport, const SelectedIDs& ids, Format format, Mode privacyMode)
{
    const auto data = ScanResultExporter::data(scanReport, ids, format, privacyMode, kExportedAt);
    EXPECT_TRUE(data);
    return data ? *data : "";
}

inline Platform::JSONValue parsed(const std::string& text)
{
    auto value = Platform::JSONReader::parse(text);
    EXPECT_TRUE(value);
    return value ? *std::move(value) : Platform::JSONValue();
}

inline std::optional<std::int64_t> summaryNumber(const std::string& json, std::string_view key)
{
    const auto document = parsed(json);
    const auto* const summary = document.member("summary");
    const auto* const number = summary != nullptr ? summary->member(key) : nullptr;
    return number != nullptr ? number->integer() : std::nullopt;
}

} // namespace CleanerCore::ExportFixture
