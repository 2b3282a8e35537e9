#include "Tests/KarvelloUI/Sessions/RandomSessionsFixture.h"

namespace SessionTests {

TEST(RandomSessions, KeepDiskSessionsAndLogInAgreement)
{
    for (const unsigned seed : {1U, 2U, 3U, 4U}) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RandomSessions sessions(seed);
        for (int step = 0; step < 500 && !testing::Test::HasFailure(); ++step) {
            SCOPED_TRACE("step " + std::to_string(step));
            sessions.step();
            sessions.expectSoundSelections();
        }
        sessions.comeToRest();
        // The walk was no walk in the park.
        EXPECT_GT(sessions.mostTrashed(), 20U);
        EXPECT_GT(sessions.restoredCount(), 0U);
        EXPECT_GT(sessions.comparedReports(), 20U);
        for (const auto* const ledger : {&sessions.cleanerLedger(), &sessions.insightsLedger()}) {
            EXPECT_GT(ledger->scansApplied, 5U);
            EXPECT_GT(ledger->scansDropped, 0U);
            EXPECT_GT(ledger->changesDropped, 0U);
            EXPECT_GT(ledger->changesBegun, ledger->changesDropped);
        }
    }
}

} // namespace SessionTests
