#pragma once

#include "Platform/Services/UserDefaults.h"

#include <cerrno>
#include <cstddef>
#include <optional>

namespace TestSupport {

/// Does what `inner` does, which must outlive it, but for the saves that a test lets fail: those do not reach `inner`.
class FailingUserDefaults final : public Platform::UserDefaults {
public:
    explicit FailingUserDefaults(Platform::UserDefaults& inner)
        : m_inner(inner)
    {
    }

    /// The n-th save from now fails, counted from 1.
    void failSave(std::size_t nth, int systemError = ENOSPC)
    {
        m_systemError = systemError;
        m_failing = m_saveCount + nth;
    }
    void failAllSaves(int systemError = ENOSPC)
    {
        m_systemError = systemError;
        m_failing.reset();
        m_failsAll = true;
    }
    void failNoSave()
    {
        m_failing.reset();
        m_failsAll = false;
    }

    /// The saves so far, failed ones included.
    [[nodiscard]] std::size_t saveCount() const { return m_saveCount; }
    /// A test with a fault that never struck proves nothing.
    [[nodiscard]] std::size_t failureCount() const { return m_failureCount; }

    [[nodiscard]] std::optional<Platform::DefaultsValue> value(std::string_view key) const override
    {
        return m_inner.value(key);
    }
    [[nodiscard]] std::expected<void, Platform::FileError> apply(
        std::span<const Platform::DefaultsChange> changes) override
    {
        ++m_saveCount;
        if (m_failsAll || m_failing == m_saveCount) {
            ++m_failureCount;
            return std::unexpected(Platform::FileError::fromSystemError(
                m_systemError, Platform::FileOperation::write, "/home/ada/.config/Karvello/preferences.json"));
        }
        return m_inner.apply(changes);
    }
    [[nodiscard]] Observation observe(Observer observer) override { return m_inner.observe(std::move(observer)); }

private:
    Platform::UserDefaults& m_inner;
    std::size_t m_saveCount = 0;
    std::size_t m_failureCount = 0;
    std::optional<std::size_t> m_failing;
    int m_systemError = 0;
    bool m_failsAll = false;
};

} // namespace TestSupport
