#pragma once

#include "CleanerCore/Insights/FileInsight.h"
#include "CleanerCore/Insights/FileRecord.h"
#include "Platform/Files/FileManager.h"

#include <stop_token>
#include <string>

namespace CleanerCore {

/// Makes what is shown of the records that got onto a list. Only they are looked at for their identity, which is what
/// an item must still have when it is cleaned; after a stop no more are, and what is made then cannot be cleaned.
class InsightMaker {
public:
    /// `fileManager` must outlive this object.
    InsightMaker(const Platform::FileManager& fileManager, std::stop_token stop)
        : m_fileManager(fileManager)
        , m_stop(std::move(stop))
    {
    }

    /// With the record's allocated size and the safety that goes with `kind`.
    [[nodiscard]] FileInsight insight(const FileRecord& record, FileInsightKind kind, std::string detail) const;

private:
    const Platform::FileManager& m_fileManager;
    std::stop_token m_stop;
};

} // namespace CleanerCore
