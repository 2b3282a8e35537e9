#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/DefaultsDocument.h"
#include "Platform/Services/DefaultsObservers.h"
#include "Platform/Services/Environment.h"
#include "Platform/Services/UserDefaults.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Platform {

/// The preferences in one file, a `DefaultsDocument`, that several processes may share. A change is merged into what the
/// file holds at that moment, under a lock file beside it, and replaces the file whole. A process that does not get the
/// lock within two seconds (the holder must have been stopped, since a turn takes milliseconds) gets an error.
///
/// A file that cannot be understood (no JSON, too large, a folder or a link in its place) is left alone until something
/// is to be saved, and is then kept beside the new one (`setAside`). Until then, and where the file may not be read, the
/// values are those that were read last: none at the start. A file that may not be read is never moved: saving fails.
class FileUserDefaults final : public UserDefaults {
public:
    static constexpr std::size_t kMaximumBytes = std::size_t{8} * 1024 * 1024;

    /// "Karvello/preferences.json" in the user's folder for configuration.
    [[nodiscard]] static FileURL defaultFileURL(const Environment& environment);

    /// `fileManager` must outlive this object. Reads the file and touches nothing.
    FileUserDefaults(const FileManager& fileManager, FileURL fileURL);

    [[nodiscard]] std::optional<DefaultsValue> value(std::string_view key) const override;
    /// A change that the file holds already writes nothing. The folder is made if it is missing, for its user alone.
    [[nodiscard]] std::expected<void, FileError> apply(std::span<const DefaultsChange> changes) override;
    [[nodiscard]] Observation observe(Observer observer) override;

    /// Takes over what another process made of the file. Never waits: if a save is under way on another thread, that
    /// thread looks at the file again when it is done.
    void refresh();

    [[nodiscard]] const FileURL& fileURL() const { return m_fileURL; }

private:
    struct Contents {
        DefaultsDocument document;
        /// Nothing where there is no file.
        std::optional<std::string> bytes;
    };
    using SharedContents = std::shared_ptr<const Contents>;

    struct Unreadable {
        FileError error;
        /// What its name tells when it is set aside; empty where it may not be moved.
        std::string_view reason;
    };

    [[nodiscard]] SharedContents held() const;
    [[nodiscard]] std::vector<std::string> hold(SharedContents contents);
    [[nodiscard]] std::expected<SharedContents, Unreadable> read() const;
    [[nodiscard]] std::string_view reasonToSetAside(const FileError& error) const;
    [[nodiscard]] std::expected<SharedContents, FileError> save(std::span<const DefaultsChange> changes) const;
    [[nodiscard]] std::expected<void, FileError> replace(std::string_view bytes, const Unreadable* damage) const;
    [[nodiscard]] FileURL lockURL() const;
    void refreshIfWanted();

    const FileManager& m_fileManager;
    FileURL m_fileURL;
    /// Held while the file is read or written, which may take long.
    std::mutex m_turn;
    std::atomic<bool> m_wantsRefresh = false;
    /// Guards the pointer only.
    mutable std::mutex m_memory;
    SharedContents m_held = std::make_shared<const Contents>();
    DefaultsObservers m_observers;
};

} // namespace Platform
