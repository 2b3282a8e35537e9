#include "Tests/KarvelloUI/Sessions/RandomSessionsFixture.h"

namespace SessionTests {

TEST(RandomSessions, KeepDiskSessionsAndLogInAgreement)
{
    Ledger ofCleaner;
    Ledger ofInsights;
    std::size_t trashed = 0;
    std::size_t restored = 0;
    std::size_t comparedReports = 0;
    for (const unsigned seed : {1U, 2U, 3U}) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RandomSessions sessions(seed);
        for (int step = 0; step < 400 && !testing::Test::HasFailure(); ++step) {
            SCOPED_TRACE("step " + std::to_string(step));
            sessions.step();
            sessions.expectSoundSelections();
        }
        sessions.comeToRest();
        ofCleaner += sessions.cleanerLedger();
        ofInsights += sessions.insightsLedger();
        trashed += sessions.mostTrashed();
        restored += sessions.restoredCount();
        comparedReports += sessions.comparedReports();
    }
    // All that can happen has happened; how often is a matter of how fast the threads are.
    EXPECT_GT(trashed, 20U);
    EXPECT_GT(restored, 3U);
    EXPECT_GT(comparedReports, 10U);
    for (const auto& ledger : {ofCleaner, ofInsights}) {
        EXPECT_GT(ledger.scansApplied, 5U);
        EXPECT_GT(ledger.scansDropped, 2U);
        EXPECT_GT(ledger.changesDropped, 0U);
        EXPECT_GT(ledger.changesBegun - ledger.changesDropped, 3U);
    }
}

} // namespace SessionTests
