#include "KarvelloUI/Stores/HomeAccessSecurityScope.h"

#include "Tests/KarvelloUI/Stores/StoresFixture.h"

namespace KarvelloUI {

namespace {

using namespace StoresTests;
using Platform::Environment;

class HomeAccessSecurityScopeTest : public StoresFixture {
protected:
    HomeAccessSecurityScopeResult start(const Environment& environment, std::optional<bool> required = {}) const
    {
        return HomeAccessSecurityScope::start(m_home, m_bookmarks, environment, required);
    }

    HomeAccessSecurityScopeResult unavailable() const
    {
        return {.skippedItem = CleanerCore::SkippedItem{m_home,
                    "Could not start security-scoped access for the home folder grant. Revoke and re-grant home folder "
                    "access from Settings, then rescan."}};
    }

    const Environment m_sandbox{{{"APP_SANDBOX_CONTAINER_ID", "x"}}};
};

} // namespace

TEST_F(HomeAccessSecurityScopeTest, IsOpenUntilItIsStopped)
{
    const auto result = start(m_sandbox);
    EXPECT_EQ(result, (HomeAccessSecurityScopeResult{.scope = {.accessedURL = m_home}}));
    EXPECT_TRUE(result.scope.didStart());
    EXPECT_EQ(m_bookmarks.openCount(), 1);
    result.scope.stop(m_bookmarks);
    EXPECT_EQ(m_bookmarks.openCount(), 0);
}

TEST_F(HomeAccessSecurityScopeTest, IsNothingWithoutAGrant)
{
    EXPECT_EQ(
        HomeAccessSecurityScope::start(std::nullopt, m_bookmarks, m_sandbox, true), HomeAccessSecurityScopeResult());
    EXPECT_EQ(m_bookmarks.startCount(), 0);
}

TEST_F(HomeAccessSecurityScopeTest, TellsWhatCouldNotBeOpenedWhereThatIsRequired)
{
    m_bookmarks.refusesAccess = true;
    EXPECT_EQ(start(Environment(), true), unavailable());
    EXPECT_EQ(start(m_sandbox), unavailable());
    EXPECT_FALSE(start(m_sandbox).scope.didStart());
}

TEST_F(HomeAccessSecurityScopeTest, TellsNothingWhereNoAccessIsRequired)
{
    m_bookmarks.refusesAccess = true;
    EXPECT_EQ(start(Environment()), HomeAccessSecurityScopeResult());
    EXPECT_EQ(start(m_sandbox, false), HomeAccessSecurityScopeResult());
    start(Environment()).scope.stop(m_bookmarks);
}

} // namespace KarvelloUI
