#pragma once

#include "Tests/Platform/Linux/TrashFixture.h"
#include "Tests/Support/ForwardingFileManager.h"

#include <fcntl.h>
#include <functional>

namespace TrashTests {

/// Runs `between` at the n-th look at an item's identity, before it is answered: where an attacker would strike.
class InterruptedFileManager final : public TestSupport::ForwardingFileManager {
public:
    InterruptedFileManager(const Platform::FileManager& inner, int nth, std::function<void()> between)
        : ForwardingFileManager(inner)
        , m_left(nth)
        , m_between(std::move(between))
    {
    }

    [[nodiscard]] Platform::FingerprintReadings fingerprintReadings(const Platform::ItemReference& item) const override
    {
        auto readings = inner().fingerprintReadings(item);
        if (--m_left == 0) {
            m_between();
        }
        return readings;
    }

private:
    mutable int m_left;
    std::function<void()> m_between;
};

/// For tests in which somebody changes the disk in the middle of a move.
class InterruptedTrashTest : public TrashTest {
protected:
    void exchange(const std::string& a, const std::string& b)
    {
        ASSERT_EQ(renameat2(AT_FDCWD, m_tree.path(a).c_str(), AT_FDCWD, m_tree.path(b).c_str(), RENAME_EXCHANGE), 0);
    }
};

} // namespace TrashTests
