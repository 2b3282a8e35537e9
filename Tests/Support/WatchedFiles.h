#pragma once

#include "Tests/Support/ForwardingFileManager.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

namespace TestSupport {

/// Does what `inner` does, and lets a test act or fail before each opening of a file and each read from it. The hooks
/// may be called from several threads; set them before the work begins.
class WatchedFiles final : public ForwardingFileManager {
public:
    struct Hooks {
        /// An `errno` to fail with, or 0.
        std::function<int(const Platform::FileURL&)> beforeOpening = {};
        /// The same for a read of `length` bytes at `offset`.
        std::function<int(const Platform::FileURL&, std::int64_t offset, std::size_t length)> beforeReading = {};
        std::function<void(const Platform::FileURL&)> beforeLastLook = {};
    };

    WatchedFiles(const Platform::FileManager& inner, Hooks hooks)
        : ForwardingFileManager(inner)
        , m_hooks(std::move(hooks))
    {
    }

    [[nodiscard]] std::size_t openings() const { return m_openings; }
    [[nodiscard]] std::int64_t bytesRead() const { return m_bytesRead; }
    /// The most files that were open at one time.
    [[nodiscard]] std::size_t mostOpenFiles() const { return m_mostOpen; }
    [[nodiscard]] std::size_t longestRead() const { return m_longestRead; }

    [[nodiscard]] std::expected<std::unique_ptr<Platform::ReadableFile>, Platform::FileError> openFile(
        const Platform::FileURL& url, Platform::ReadingPlan plan) const override
    {
        ++m_openings;
        if (const int error = m_hooks.beforeOpening ? m_hooks.beforeOpening(url) : 0; error != 0) {
            return std::unexpected(failure(error, url));
        }
        auto file = ForwardingFileManager::openFile(url, plan);
        if (file) {
            *file = std::make_unique<File>(*std::move(file), url, *this);
        }
        return file;
    }
    [[nodiscard]] Platform::FingerprintReadings fingerprintReadings(const Platform::ItemReference& item) const override
    {
        if (m_hooks.beforeLastLook) {
            m_hooks.beforeLastLook(item.url());
        }
        return inner().fingerprintReadings(item);
    }

private:
    class File final : public Platform::ReadableFile {
    public:
        File(std::unique_ptr<Platform::ReadableFile> inner, Platform::FileURL url, const WatchedFiles& owner)
            : m_inner(std::move(inner))
            , m_url(std::move(url))
            , m_owner(owner)
        {
            raise(m_owner.m_mostOpen, ++m_owner.m_open);
        }
        File(const File&) = delete;
        File& operator=(const File&) = delete;
        ~File() override { --m_owner.m_open; }

        [[nodiscard]] const Platform::ContentState& stateAtOpening() const override
        {
            return m_inner->stateAtOpening();
        }
        [[nodiscard]] std::expected<Platform::ContentState, Platform::FileError> currentState() const override
        {
            return m_inner->currentState();
        }
        [[nodiscard]] std::expected<std::size_t, Platform::FileError> read(
            std::int64_t offset, std::span<std::byte> buffer) override
        {
            const auto& hook = m_owner.m_hooks.beforeReading;
            if (const int error = hook ? hook(m_url, offset, buffer.size()) : 0; error != 0) {
                return std::unexpected(failure(error, m_url));
            }
            raise(m_owner.m_longestRead, buffer.size());
            const auto count = m_inner->read(offset, buffer);
            m_owner.m_bytesRead += count ? static_cast<std::int64_t>(*count) : 0;
            return count;
        }

    private:
        std::unique_ptr<Platform::ReadableFile> m_inner;
        Platform::FileURL m_url;
        const WatchedFiles& m_owner;
    };

    static Platform::FileError failure(int systemError, const Platform::FileURL& url)
    {
        return Platform::FileError::fromSystemError(systemError, Platform::FileOperation::read, url.path());
    }
    static void raise(std::atomic<std::size_t>& most, std::size_t value)
    {
        auto known = most.load();
        while (known < value && !most.compare_exchange_weak(known, value)) {}
    }

    Hooks m_hooks;
    mutable std::atomic<std::size_t> m_openings = 0;
    mutable std::atomic<std::int64_t> m_bytesRead = 0;
    mutable std::atomic<std::size_t> m_open = 0;
    mutable std::atomic<std::size_t> m_mostOpen = 0;
    mutable std::atomic<std::size_t> m_longestRead = 0;
};

} // namespace TestSupport
