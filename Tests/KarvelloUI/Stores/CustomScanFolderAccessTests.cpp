#include "KarvelloUI/Stores/CustomScanFolderAccess.h"

#include "Tests/KarvelloUI/Stores/StoresFixture.h"

namespace KarvelloUI {

namespace {

using namespace StoresTests;
using Platform::Environment;

class CustomScanFolderAccessTest : public StoresFixture {
protected:
    CustomScanFolderAccessResult start(const Environment& environment, std::optional<bool> required = {}) const
    {
        return CustomScanFolderAccess::start(m_folders, m_bookmarks, environment, required);
    }

    CleanerCore::SkippedItem unavailable(std::string_view path) const
    {
        return {m_tree.url(path),
            "Could not start security-scoped access for custom folder. Remove and add the folder again, or grant Files "
            "& Folders or Full Disk Access."};
    }

    const Environment m_sandbox{{{"FLATPAK_ID", "x"}}};
    const std::vector<ResolvedCustomScanFolder> m_folders{
        {.folder = {}, .url = m_tree.url("home/Documents/")},
        {.folder = {}, .url = m_tree.url("home/missing/")},
        {.folder = {}, .url = m_tree.url("home/Library/")},
    };
};

} // namespace

TEST_F(CustomScanFolderAccessTest, IsOpenToEachFolderUntilItIsStopped)
{
    const auto result = start(m_sandbox);
    EXPECT_EQ(result.access.accessedURLs, (std::vector{m_tree.url("home/Documents/"), m_tree.url("home/Library/")}));
    EXPECT_EQ(result.skippedItems, std::vector{unavailable("home/missing/")});
    EXPECT_EQ(m_bookmarks.openCount(), 2);
    result.access.stop(m_bookmarks);
    EXPECT_EQ(m_bookmarks.openCount(), 0);
}

TEST_F(CustomScanFolderAccessTest, TellsWhatCouldNotBeOpenedOnlyWhereThatIsRequired)
{
    m_bookmarks.refusesAccess = true;
    const std::vector all{unavailable("home/Documents/"), unavailable("home/missing/"), unavailable("home/Library/")};
    EXPECT_EQ(start(m_sandbox), (CustomScanFolderAccessResult{.skippedItems = all}));
    EXPECT_EQ(start(Environment(), true), (CustomScanFolderAccessResult{.skippedItems = all}));
    EXPECT_EQ(start(Environment()), CustomScanFolderAccessResult());
    EXPECT_EQ(start(m_sandbox, false), CustomScanFolderAccessResult());
}

} // namespace KarvelloUI
