#include "Tests/Support/FaultyFileManager.h"

#include <array>
#include <functional>
#include <mutex>
#include <utility>

namespace TestSupport {

using Platform::DirectoryEnumerator;
using Platform::EnumerationErrorAnswer;
using Platform::EnumerationErrorHandler;
using Platform::FileError;
using Platform::FileOperation;
using Platform::FileURL;
using Platform::ItemReference;

/// Counts calls and decides which of them fail. It outlives the file manager where an enumerator still needs it.
class FaultyFileManager::Ledger {
public:
    void add(Fault fault)
    {
        const std::scoped_lock lock(m_mutex);
        m_needsPaths = m_needsPaths || fault.path.has_value();
        m_faults.push_back({.fault = std::move(fault), .seen = 0});
    }

    void recordCalls()
    {
        const std::scoped_lock lock(m_mutex);
        m_isRecording = true;
        m_needsPaths = true;
    }

    /// The error number with which this call fails; 0 lets it pass. The path is asked for only where it matters.
    int enter(FileManagerCall call, const std::function<FileURL()>& url)
    {
        const std::scoped_lock lock(m_mutex);
        ++m_counts[static_cast<std::size_t>(call)];
        const auto path = m_needsPaths ? url().path() : std::string();
        if (m_isRecording) {
            m_calls.push_back({.call = call, .path = path});
        }
        int systemError = 0;
        for (auto& [fault, seen] : m_faults) {
            if (fault.call != call || (fault.path && *fault.path != path)) {
                continue;
            }
            ++seen;
            if (seen == fault.nth || (seen > fault.nth && fault.duration == FaultDuration::fromThenOn)) {
                systemError = fault.systemError;
            }
        }
        m_failures += systemError != 0 ? 1 : 0;
        return systemError;
    }

    [[nodiscard]] std::size_t count(FileManagerCall call) const
    {
        const std::scoped_lock lock(m_mutex);
        return m_counts[static_cast<std::size_t>(call)];
    }

    [[nodiscard]] std::size_t failureCount() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_failures;
    }

    [[nodiscard]] std::vector<Call> calls() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_calls;
    }

private:
    struct ArmedFault {
        Fault fault;
        std::size_t seen;
    };

    mutable std::mutex m_mutex;
    std::vector<ArmedFault> m_faults;
    std::array<std::size_t, static_cast<std::size_t>(FileManagerCall::entryResourceValues) + 1> m_counts{};
    std::vector<Call> m_calls;
    std::size_t m_failures = 0;
    bool m_isRecording = false;
    bool m_needsPaths = false;
};

/// Passes everything on, and leaves out of the inner walk what a fault hides.
class FaultyFileManager::Enumerator final : public DirectoryEnumerator {
public:
    Enumerator(
        std::unique_ptr<DirectoryEnumerator> inner, EnumerationErrorHandler onError, std::shared_ptr<Ledger> ledger)
        : m_inner(std::move(inner))
        , m_onError(std::move(onError))
        , m_ledger(std::move(ledger))
    {
    }

    bool next() override
    {
        m_failure.reset();
        m_isLookedAt = false;
        while (!m_isStopped && m_inner->next()) {
            // The entries of one folder come together, and all name the same handle. Holding it keeps its address from
            // being given to another folder.
            auto folder = m_inner->reference().sharedFolder();
            const bool beginsListing = folder != m_folder;
            m_isHiding = m_isHiding && !beginsListing;
            m_folder = std::move(folder);
            m_isHiding = m_isHiding || (beginsListing && strikes(FileManagerCall::listFolder))
                || strikes(FileManagerCall::nextEntry);
            if (!m_isHiding) {
                return true;
            }
            m_inner->skipDescendants();
        }
        return false;
    }

    [[nodiscard]] std::string_view name() const override { return m_inner->name(); }
    [[nodiscard]] std::size_t level() const override { return m_inner->level(); }
    [[nodiscard]] Platform::ListedType listedType() const override { return m_inner->listedType(); }
    [[nodiscard]] FileURL url() const override { return m_inner->url(); }
    [[nodiscard]] ItemReference reference() const override { return m_inner->reference(); }
    void skipDescendants() override { m_inner->skipDescendants(); }
    void setContextOfDescendants(std::uint64_t context) override { m_inner->setContextOfDescendants(context); }
    [[nodiscard]] std::uint64_t folderContext() const override { return m_inner->folderContext(); }

    const std::expected<Platform::ResourceValues, FileError>& resourceValues() override
    {
        if (!std::exchange(m_isLookedAt, true)) {
            const auto url = [this] { return m_inner->url(); };
            if (const int error = m_ledger->enter(FileManagerCall::entryResourceValues, url); error != 0) {
                m_failure = std::unexpected(FileError::fromSystemError(error, FileOperation::read, url().path()));
            }
        }
        return m_failure ? *m_failure : m_inner->resourceValues();
    }

private:
    /// Whether a fault hits the folder of the inner walk's item; the handler has heard of it then.
    bool strikes(FileManagerCall call)
    {
        const auto folder = [this] { return FileURL::folder(m_inner->url().deletingLastPathComponent().path()); };
        const int error = m_ledger->enter(call, folder);
        if (error == 0) {
            return false;
        }
        const auto url = folder();
        m_isStopped = m_onError
            && m_onError(url, FileError::fromSystemError(error, FileOperation::read, url.path()))
                == EnumerationErrorAnswer::stop;
        return true;
    }

    std::unique_ptr<DirectoryEnumerator> m_inner;
    EnumerationErrorHandler m_onError;
    std::shared_ptr<Ledger> m_ledger;
    std::optional<std::expected<Platform::ResourceValues, FileError>> m_failure;
    /// The folder of the inner walk's item.
    std::shared_ptr<const Platform::FolderHandle> m_folder;
    /// What is left of that folder is dropped.
    bool m_isHiding = false;
    bool m_isLookedAt = false;
    bool m_isStopped = false;
};

FaultyFileManager::FaultyFileManager(const Platform::FileManager& inner)
    : m_inner(inner)
    , m_ledger(std::make_shared<Ledger>())
{
}

FaultyFileManager::~FaultyFileManager() = default;

void FaultyFileManager::fail(Fault fault)
{
    m_ledger->add(std::move(fault));
}

void FaultyFileManager::recordCalls()
{
    m_ledger->recordCalls();
}

std::size_t FaultyFileManager::count(FileManagerCall call) const
{
    return m_ledger->count(call);
}

std::size_t FaultyFileManager::failureCount() const
{
    return m_ledger->failureCount();
}

std::vector<FaultyFileManager::Call> FaultyFileManager::calls() const
{
    return m_ledger->calls();
}

namespace {

std::unexpected<FileError> failure(int error, FileOperation operation, const FileURL& url)
{
    return std::unexpected(FileError::fromSystemError(error, operation, url.path()));
}

} // namespace

Platform::Existence FaultyFileManager::existence(const FileURL& url) const
{
    const int error = m_ledger->enter(FileManagerCall::existence, [&] { return url; });
    return error != 0 ? Platform::Existence::missing : m_inner.existence(url);
}

std::expected<Platform::ResourceValues, FileError> FaultyFileManager::resourceValues(const ItemReference& item) const
{
    if (const int error = m_ledger->enter(FileManagerCall::resourceValues, [&] { return item.url(); }); error != 0) {
        return failure(error, FileOperation::read, item.url());
    }
    return m_inner.resourceValues(item);
}

std::expected<Platform::IdentityValues, FileError> FaultyFileManager::identityValues(const ItemReference& item) const
{
    if (const int error = m_ledger->enter(FileManagerCall::identityValues, [&] { return item.url(); }); error != 0) {
        return failure(error, FileOperation::read, item.url());
    }
    return m_inner.identityValues(item);
}

std::expected<Platform::FileAttributes, FileError> FaultyFileManager::attributes(const ItemReference& item) const
{
    if (const int error = m_ledger->enter(FileManagerCall::attributes, [&] { return item.url(); }); error != 0) {
        return failure(error, FileOperation::read, item.url());
    }
    return m_inner.attributes(item);
}

bool FaultyFileManager::volumeSupportsCaseSensitiveNames(const FileURL& folder) const
{
    const int error = m_ledger->enter(FileManagerCall::volumeSupportsCaseSensitiveNames, [&] { return folder; });
    return error == 0 && m_inner.volumeSupportsCaseSensitiveNames(folder);
}

std::unique_ptr<DirectoryEnumerator> FaultyFileManager::enumerator(
    const ItemReference& folder, Platform::EnumerationOptions options, EnumerationErrorHandler onError) const
{
    if (m_ledger->enter(FileManagerCall::makeEnumerator, [&] { return folder.url(); }) != 0) {
        return nullptr;
    }
    auto inner = m_inner.enumerator(folder, options, onError);
    return inner ? std::make_unique<Enumerator>(std::move(inner), std::move(onError), m_ledger) : nullptr;
}

std::expected<std::vector<FileURL>, FileError> FaultyFileManager::contentsOfDirectory(const FileURL& folder) const
{
    if (const int error = m_ledger->enter(FileManagerCall::contentsOfDirectory, [&] { return folder; }); error != 0) {
        return failure(error, FileOperation::read, folder);
    }
    return m_inner.contentsOfDirectory(folder);
}

FileURL FaultyFileManager::resolvingSymbolicLinks(const FileURL& url) const
{
    const int error = m_ledger->enter(FileManagerCall::resolvingSymbolicLinks, [&] { return url; });
    return error != 0 ? url : m_inner.resolvingSymbolicLinks(url);
}

std::expected<void, FileError> FaultyFileManager::writeAtomically(std::string_view bytes, const FileURL& url) const
{
    if (const int error = m_ledger->enter(FileManagerCall::writeAtomically, [&] { return url; }); error != 0) {
        return failure(error, FileOperation::write, url);
    }
    return m_inner.writeAtomically(bytes, url);
}

std::expected<std::string, FileError> FaultyFileManager::readFile(const FileURL& url, std::size_t maximumBytes) const
{
    if (const int error = m_ledger->enter(FileManagerCall::readFile, [&] { return url; }); error != 0) {
        return failure(error, FileOperation::read, url);
    }
    return m_inner.readFile(url, maximumBytes);
}

std::expected<std::unique_ptr<Platform::ReadableFile>, FileError> FaultyFileManager::openFile(
    const FileURL& url, Platform::ReadingPlan plan) const
{
    if (const int error = m_ledger->enter(FileManagerCall::openFile, [&] { return url; }); error != 0) {
        return failure(error, FileOperation::read, url);
    }
    return m_inner.openFile(url, plan);
}

std::expected<void, FileError> FaultyFileManager::createDirectory(const FileURL& folder) const
{
    if (const int error = m_ledger->enter(FileManagerCall::createDirectory, [&] { return folder; }); error != 0) {
        return failure(error, FileOperation::write, folder);
    }
    return m_inner.createDirectory(folder);
}

std::expected<void, FileError> FaultyFileManager::moveItem(const FileURL& source, const FileURL& destination) const
{
    if (const int error = m_ledger->enter(FileManagerCall::moveItem, [&] { return source; }); error != 0) {
        return failure(error, FileOperation::write, source);
    }
    return m_inner.moveItem(source, destination);
}

} // namespace TestSupport
