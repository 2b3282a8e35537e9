#pragma once

#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace TestSupport {

/// What a scan asks of the file system. Those from `listFolder` on are asked of an enumerator.
enum class FileManagerCall : std::uint8_t {
    existence,
    resourceValues,
    identityValues,
    attributes,
    volumeSupportsCaseSensitiveNames,
    makeEnumerator,
    contentsOfDirectory,
    resolvingSymbolicLinks,
    writeAtomically,
    readFile,
    /// Opening only: what is read from an open file does not fail here.
    openFile,
    createDirectory,
    moveItem,
    /// The listing of one folder, counted when its first entry comes (an empty folder is not counted). Its failure
    /// hides the whole folder: the error handler hears of it in place of the entries.
    listFolder,
    /// A step to a next entry. Its failure breaks the listing of the entry's folder off: the entry and those behind it
    /// in the same folder do not come, and the error handler hears of the folder.
    nextEntry,
    /// The first look at an entry's values.
    entryResourceValues,
};

enum class FaultDuration : std::uint8_t { once, fromThenOn };

struct Fault {
    FileManagerCall call = FileManagerCall::existence;
    /// An `errno`.
    int systemError = 0;
    /// Which call fails, counted from 1 among those that `path` lets through.
    std::size_t nth = 1;
    FaultDuration duration = FaultDuration::once;
    /// Only calls for this path count, if given. Where several threads work, this is what makes a fault hit the same
    /// item each time. `nextEntry` and `listFolder` go by the folder's path.
    std::optional<std::string> path = {};
};

/// A file manager that does what `inner` does, but for the calls that a test lets fail, and that tells what was called.
/// It knows no rule of its own. All functions, and those of its enumerators, may be called from several threads; set
/// the faults before the work begins.
///
/// A failing call does not reach `inner`, with the failure in the form that the call has: an error, `missing`, false, a
/// null enumerator, or the unresolved URL.
class FaultyFileManager final : public Platform::FileManager {
public:
    struct Call {
        FileManagerCall call;
        std::string path;
    };

    /// `inner` must outlive this object.
    explicit FaultyFileManager(const Platform::FileManager& inner);
    ~FaultyFileManager() override;

    void fail(Fault fault);
    /// From now on `calls` keeps each call with its path; without it only counts are kept, which costs no memory.
    void recordCalls();

    /// The calls so far, failed ones included.
    [[nodiscard]] std::size_t count(FileManagerCall call) const;
    /// How many calls were made to fail: a test with a fault that never struck proves nothing.
    [[nodiscard]] std::size_t failureCount() const;
    [[nodiscard]] std::vector<Call> calls() const;

    [[nodiscard]] Platform::Existence existence(const Platform::FileURL& url) const override;
    [[nodiscard]] std::expected<Platform::ResourceValues, Platform::FileError> resourceValues(
        const Platform::ItemReference& item) const override;
    [[nodiscard]] std::expected<Platform::IdentityValues, Platform::FileError> identityValues(
        const Platform::ItemReference& item) const override;
    [[nodiscard]] std::expected<Platform::FileAttributes, Platform::FileError> attributes(
        const Platform::ItemReference& item) const override;
    [[nodiscard]] bool volumeSupportsCaseSensitiveNames(const Platform::FileURL& folder) const override;
    [[nodiscard]] std::unique_ptr<Platform::DirectoryEnumerator> enumerator(const Platform::ItemReference& folder,
        Platform::EnumerationOptions options, Platform::EnumerationErrorHandler onError) const override;
    [[nodiscard]] std::expected<std::vector<Platform::FileURL>, Platform::FileError> contentsOfDirectory(
        const Platform::FileURL& folder) const override;
    [[nodiscard]] Platform::FileURL resolvingSymbolicLinks(const Platform::FileURL& url) const override;
    [[nodiscard]] std::expected<void, Platform::FileError> writeAtomically(
        std::string_view bytes, const Platform::FileURL& url) const override;
    [[nodiscard]] std::expected<std::string, Platform::FileError> readFile(
        const Platform::FileURL& url, std::size_t maximumBytes) const override;
    [[nodiscard]] std::expected<std::unique_ptr<Platform::ReadableFile>, Platform::FileError> openFile(
        const Platform::FileURL& url, Platform::ReadingPlan plan) const override;
    [[nodiscard]] std::expected<void, Platform::FileError> createDirectory(
        const Platform::FileURL& folder) const override;
    [[nodiscard]] std::expected<void, Platform::FileError> moveItem(
        const Platform::FileURL& source, const Platform::FileURL& destination) const override;

private:
    class Ledger;
    class Enumerator;

    const Platform::FileManager& m_inner;
    std::shared_ptr<Ledger> m_ledger;
};

} // namespace TestSupport
