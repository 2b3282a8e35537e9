#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "KarvelloUI/Copy/AppLanguage.h"

#include <cstdint>
#include <fmt/format.h>
#include <string>
#include <string_view>

namespace KarvelloUI {

/// Every text of Karvello in one language. Making one costs nothing, so nobody keeps it. Texts are whole sentences:
/// callers neither join nor cut them. Sizes are bytes; a negative one counts as 0.
struct KarvelloCopy {
    AppLanguage language;

    [[nodiscard]] std::string_view locale() const { return Platform::rawValue(language); }

    // Catalogue/AuditLogCopy.cpp
    [[nodiscard]] std::string auditLogTitle() const;
    [[nodiscard]] std::string auditLogEmpty() const;
    [[nodiscard]] std::string auditLogLoading() const;
    [[nodiscard]] std::string auditLogExportBody() const;
    [[nodiscard]] std::string auditLogExportPanelMessage() const;
    [[nodiscard]] std::string auditLogExportFailedMessage(std::string_view reason) const;
    [[nodiscard]] std::string auditOperationName(CleanerCore::CleanupAuditOperation operation) const;
    [[nodiscard]] std::string auditSourceName(CleanerCore::CleanupAuditSource source) const;
    [[nodiscard]] std::string auditEntrySummary(const CleanerCore::CleanupAuditEntry& entry) const;
    /// `occurredAt` is the entry's date as the screen shows it.
    [[nodiscard]] std::string auditEntryAccessibilityLabel(
        const CleanerCore::CleanupAuditEntry& entry, std::string_view occurredAt) const;

    // Catalogue/SmartCleanupCopy.cpp
    [[nodiscard]] std::string smartCleanupSizeDetail(std::int64_t bytes) const;
    [[nodiscard]] std::string smartCleanupOpenSectionCTA(std::string_view sectionTitle) const;
    [[nodiscard]] std::string smartCleanupLowDiskBody(std::int64_t freeBytes, std::string_view sectionTitle) const;
    [[nodiscard]] std::string smartCleanupDuplicatesBody(std::int64_t groupCount) const;
    /// The two of the permission guide say something else when nothing was blocked.
    [[nodiscard]] std::string smartCleanupPermissionBody(std::int64_t blockedCount) const;
    [[nodiscard]] std::string smartCleanupPermissionDetail(std::int64_t blockedCount) const;
    [[nodiscard]] std::string smartCleanupCandidatesBody(std::int64_t candidateCount) const;
    [[nodiscard]] std::string smartCleanupLargeFilesBody(std::int64_t fileCount) const;
    [[nodiscard]] std::string smartCleanupDownloadsBody(std::int64_t itemCount) const;

    friend bool operator==(const KarvelloCopy&, const KarvelloCopy&) = default;

private:
    /// The rule of every entry: Korean stands in the code, and what is not Korean comes from the English.
    [[nodiscard]] std::string text(std::string_view korean, std::string_view english) const
    {
        return language == AppLanguage::korean ? std::string(korean) : localizedEnglishCopy(language, english);
    }

    /// The same for a sentence with values, which is put together before it is looked up.
    template <typename... Values>
    [[nodiscard]] std::string sentence(fmt::format_string<const Values&...> korean,
        fmt::format_string<const Values&...> english, const Values&... values) const
    {
        return language == AppLanguage::korean ? fmt::format(korean, values...)
                                               : localizedEnglishCopy(language, fmt::format(english, values...));
    }

    [[nodiscard]] std::string byteSize(std::int64_t bytes) const;
};

} // namespace KarvelloUI
