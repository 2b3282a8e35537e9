#include "Platform/Services/FileUserDefaults.h"

#include "Platform/Files/FileLock.h"
#include "Platform/Files/SetAside.h"
#include "Platform/Services/UserDirectories.h"

#include <cerrno>
#include <chrono>
#include <fmt/format.h>
#include <tuple>
#include <utility>

namespace Platform {

namespace {

constexpr std::chrono::milliseconds kLockWait{2000};

constexpr std::string_view kOversized = "oversized";
constexpr std::string_view kUnreadable = "unreadable";
constexpr std::string_view kUndecodable = "undecodable";

} // namespace

FileURL FileUserDefaults::defaultFileURL(const Environment& environment)
{
    return configurationDirectoryForCurrentUser(environment).appending("Karvello/preferences.json");
}

FileUserDefaults::FileUserDefaults(const FileManager& fileManager, FileURL fileURL)
    : m_fileManager(fileManager)
    , m_fileURL(std::move(fileURL))
{
    if (auto contents = read()) {
        m_held = *std::move(contents);
    }
}

std::optional<DefaultsValue> FileUserDefaults::value(std::string_view key) const
{
    return held()->document.value(key);
}

std::expected<void, FileError> FileUserDefaults::apply(std::span<const DefaultsChange> changes)
{
    std::expected<SharedContents, FileError> saved;
    std::vector<std::string> keys;
    {
        const std::lock_guard turn(m_turn);
        saved = save(changes);
        if (saved) {
            keys = hold(*saved);
        }
    }
    m_observers.notify(keys);
    refreshIfWanted();
    if (!saved) {
        return std::unexpected(std::move(saved.error()));
    }
    return {};
}

UserDefaults::Observation FileUserDefaults::observe(Observer observer)
{
    return m_observers.add(std::move(observer));
}

void FileUserDefaults::refresh()
{
    m_wantsRefresh = true;
    refreshIfWanted();
}

/// Whoever has the turn while a refresh is asked for comes here after it, so none is forgotten.
void FileUserDefaults::refreshIfWanted()
{
    while (m_wantsRefresh) {
        std::vector<std::string> keys;
        {
            const std::unique_lock turn(m_turn, std::try_to_lock);
            if (!turn) {
                return;
            }
            m_wantsRefresh = false;
            if (auto contents = read()) {
                keys = hold(*std::move(contents));
            }
        }
        m_observers.notify(keys);
    }
}

FileUserDefaults::SharedContents FileUserDefaults::held() const
{
    const std::lock_guard guard(m_memory);
    return m_held;
}

/// Gives the keys whose values are others now.
std::vector<std::string> FileUserDefaults::hold(SharedContents contents)
{
    auto before = held();
    if (contents == before) {
        return {};
    }
    auto keys = before->document.keysThatDiffer(contents->document);
    const std::lock_guard guard(m_memory);
    m_held.swap(contents);
    return keys;
}

/// What the file holds now. The bytes themselves tell whether it is another file than before: times are too coarse for
/// that, and file numbers are given out again.
std::expected<FileUserDefaults::SharedContents, FileUserDefaults::Unreadable> FileUserDefaults::read() const
{
    auto before = held();
    auto bytes = m_fileManager.readFile(m_fileURL, kMaximumBytes);
    if (!bytes) {
        if (bytes.error().kind != FileErrorKind::noSuchFile) {
            const auto reason = reasonToSetAside(bytes.error());
            return std::unexpected(Unreadable{std::move(bytes.error()), reason});
        }
        return before->bytes ? std::make_shared<const Contents>() : before;
    }
    if (before->bytes == *bytes) {
        return before;
    }
    auto document = DefaultsDocument::parse(*bytes);
    if (!document) {
        return std::unexpected(
            Unreadable{{.kind = FileErrorKind::corrupt, .operation = FileOperation::read, .path = m_fileURL.path()},
                kUndecodable});
    }
    return std::make_shared<const Contents>(*std::move(document), *std::move(bytes));
}

std::string_view FileUserDefaults::reasonToSetAside(const FileError& error) const
{
    if (error.kind == FileErrorKind::tooLarge) {
        return kOversized;
    }
    if (error.kind == FileErrorKind::inputOutput) {
        return kUnreadable;
    }
    const auto values = m_fileManager.resourceValues(m_fileURL);
    return values && !values->isRegularFile.value_or(false) ? kUnreadable : std::string_view();
}

/// Gives what the file holds with the changes.
std::expected<FileUserDefaults::SharedContents, FileError> FileUserDefaults::save(
    std::span<const DefaultsChange> changes) const
{
    if (auto current = read(); current && !(*current)->document.isChangedBy(changes)) {
        return *std::move(current);
    }
    if (auto made = m_fileManager.createDirectory(m_fileURL.deletingLastPathComponent()); !made) {
        return std::unexpected(std::move(made.error()));
    }
    const auto lock = FileLock::acquire(lockURL(), kLockWait);
    if (!lock && lock.error() == FileLockFailure::busy) {
        return std::unexpected(FileError::fromSystemError(EWOULDBLOCK, FileOperation::write, m_fileURL.path()));
    }
    // Where there can be no lock at all the write goes on: it fails in words where nothing can be written, and else a
    // preference is lost only if another process saves within the same milliseconds.
    auto current = read();
    auto base = current ? *current : held();
    if (!base->document.isChangedBy(changes)) {
        return base;
    }
    auto document = base->document;
    document.apply(changes);
    auto bytes = document.encoded();
    if (!bytes || bytes->size() > kMaximumBytes) {
        const auto kind = bytes ? FileErrorKind::tooLarge : FileErrorKind::corrupt;
        return std::unexpected(FileError{.kind = kind, .operation = FileOperation::write, .path = m_fileURL.path()});
    }
    if (auto replaced = replace(*bytes, current ? nullptr : &current.error()); !replaced) {
        return std::unexpected(std::move(replaced.error()));
    }
    return std::make_shared<const Contents>(std::move(document), *std::move(bytes));
}

std::expected<void, FileError> FileUserDefaults::replace(std::string_view bytes, const Unreadable* damage) const
{
    if (damage == nullptr) {
        return m_fileManager.writeAtomically(bytes, m_fileURL);
    }
    if (damage->reason.empty()) {
        return std::unexpected(damage->error);
    }
    const auto kept = setAside(m_fileManager, m_fileURL, damage->reason);
    if (!kept) {
        return std::unexpected(kept.error());
    }
    auto written = m_fileManager.writeAtomically(bytes, m_fileURL);
    if (!written) {
        std::ignore = m_fileManager.moveItem(*kept, m_fileURL);
    }
    return written;
}

FileURL FileUserDefaults::lockURL() const
{
    return m_fileURL.deletingLastPathComponent().appending(fmt::format("{}.lock", m_fileURL.lastPathComponent()));
}

} // namespace Platform
