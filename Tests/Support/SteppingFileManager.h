#pragma once

#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/ForwardingDirectoryEnumerator.h"
#include "Tests/Support/ForwardingFileManager.h"

#include <cstddef>
#include <functional>
#include <utility>

namespace TestSupport {

/// Does what `inner` does, and lets a test act right before each step: a call of the file manager that looks at the
/// disk, or a move of one of its enumerators. For one thread.
class SteppingFileManager final : public ForwardingFileManager {
public:
    /// Told the number of the step, from 1, and which call it is; `nextEntry` for a move of an enumerator, and
    /// `identityValues` where the whole fingerprint is read.
    using Step = std::function<void(std::size_t, FileManagerCall)>;

    SteppingFileManager(const Platform::FileManager& inner, Step step)
        : ForwardingFileManager(inner)
        , m_step(std::move(step))
    {
    }

    [[nodiscard]] std::size_t count() const { return m_count; }

    [[nodiscard]] Platform::Existence existence(const Platform::FileURL& url) const override
    {
        step(FileManagerCall::existence);
        return ForwardingFileManager::existence(url);
    }
    [[nodiscard]] std::expected<Platform::ResourceValues, Platform::FileError> resourceValues(
        const Platform::ItemReference& item) const override
    {
        step(FileManagerCall::resourceValues);
        return ForwardingFileManager::resourceValues(item);
    }
    [[nodiscard]] std::expected<Platform::IdentityValues, Platform::FileError> identityValues(
        const Platform::ItemReference& item) const override
    {
        step(FileManagerCall::identityValues);
        return ForwardingFileManager::identityValues(item);
    }
    [[nodiscard]] std::expected<Platform::FileAttributes, Platform::FileError> attributes(
        const Platform::ItemReference& item) const override
    {
        step(FileManagerCall::attributes);
        return ForwardingFileManager::attributes(item);
    }
    [[nodiscard]] Platform::FingerprintReadings fingerprintReadings(const Platform::ItemReference& item) const override
    {
        step(FileManagerCall::identityValues);
        return inner().fingerprintReadings(item);
    }
    [[nodiscard]] bool volumeSupportsCaseSensitiveNames(const Platform::FileURL& folder) const override
    {
        step(FileManagerCall::volumeSupportsCaseSensitiveNames);
        return ForwardingFileManager::volumeSupportsCaseSensitiveNames(folder);
    }
    [[nodiscard]] std::unique_ptr<Platform::DirectoryEnumerator> enumerator(const Platform::ItemReference& folder,
        Platform::EnumerationOptions options, Platform::EnumerationErrorHandler onError) const override
    {
        step(FileManagerCall::makeEnumerator);
        auto items = ForwardingFileManager::enumerator(folder, options, std::move(onError));
        return items ? std::make_unique<Enumerator>(std::move(items), *this) : nullptr;
    }
    [[nodiscard]] Platform::FileURL resolvingSymbolicLinks(const Platform::FileURL& url) const override
    {
        step(FileManagerCall::resolvingSymbolicLinks);
        return ForwardingFileManager::resolvingSymbolicLinks(url);
    }

private:
    class Enumerator final : public ForwardingDirectoryEnumerator {
    public:
        Enumerator(std::unique_ptr<Platform::DirectoryEnumerator> inner, const SteppingFileManager& fileManager)
            : ForwardingDirectoryEnumerator(std::move(inner))
            , m_fileManager(fileManager)
        {
        }

        bool next() override
        {
            m_fileManager.step(FileManagerCall::nextEntry);
            return ForwardingDirectoryEnumerator::next();
        }

    private:
        const SteppingFileManager& m_fileManager;
    };

    void step(FileManagerCall call) const { m_step(++m_count, call); }

    Step m_step;
    mutable std::size_t m_count = 0;
};

} // namespace TestSupport
