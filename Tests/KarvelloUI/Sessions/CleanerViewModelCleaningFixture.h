#pragma once

#include "Tests/KarvelloUI/Sessions/CleanerViewModelFixture.h"

#include <set>
#include <string>
#include <vector>

namespace CleanerViewModelTests {

/// The same session, with what tests of cleaning and restoring do again and again.
class CleanerViewModelCleaningTest : public CleanerViewModelTest {
protected:
    void clean()
    {
        session->cleanSelected(CleanerCore::CleaningMode::moveToTrash);
        settle();
    }
    void select(std::vector<std::string> names)
    {
        session->clearSelection();
        for (const auto& name : names) {
            session->setSelected(candidate(name), true);
        }
    }
    [[nodiscard]] std::set<std::string, std::less<>> cleanedIDs() const
    {
        std::set<std::string, std::less<>> ids;
        for (const auto& item : session->lastCleanResult()->cleanedItems) {
            ids.insert(item.candidate.id);
        }
        return ids;
    }
    void undo(const std::set<std::string, std::less<>>& ids)
    {
        session->undoLastTrashClean(ids);
        settle();
    }
};

} // namespace CleanerViewModelTests
