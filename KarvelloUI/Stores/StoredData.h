#pragma once

#include "Platform/Services/UserDefaults.h"

#include <cstdint>
#include <expected>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace KarvelloUI {

/// What becomes of data that was set aside.
enum class MalformedBackup : std::uint8_t {
    /// A later start that finds nothing else tries it again, and drops it if it still cannot be read. A save drops it.
    isReadAgain,
    /// It stays until other data takes its place.
    isKeptForInspection,
};

/// Bytes under a key of the stored preferences. What cannot be read is set aside under the backup key. Reasons are words
/// for people.
class StoredData {
public:
    /// Takes the bytes over and says whether it could read them.
    using Reader = std::function<bool(const std::string& bytes)>;

    /// `defaults` must outlive this object.
    StoredData(Platform::UserDefaults& defaults, std::string key, MalformedBackup backup);

    /// Gives `reader` what is stored. The reason if that was unreadable, and is set aside now.
    [[nodiscard]] std::optional<std::string> load(const Reader& reader);
    /// Gives `reader` what somebody else has stored since the last look, nothing for a key that is empty by now. What
    /// cannot be read is left alone.
    void update(const std::function<bool(const std::string* bytes)>& reader);
    /// A failure changes nothing.
    [[nodiscard]] std::expected<void, std::string> save(const std::string& bytes);
    /// Takes the backup away, too. A failure changes nothing.
    [[nodiscard]] std::expected<void, std::string> remove();

    [[nodiscard]] const std::string& key() const { return m_key; }
    [[nodiscard]] const std::string& backupKey() const { return m_backupKey; }

    /// Why bytes could not be read, and why a value has no bytes.
    static constexpr const char* kUnreadable = "The data couldn’t be read because it isn’t in the correct format.";
    static constexpr const char* kUnwritable = "The data couldn’t be written because it isn’t in the correct format.";

private:
    [[nodiscard]] std::string setAside(const std::string& bytes);
    void restore(const Reader& reader, const std::string& backup);

    Platform::UserDefaults& m_defaults;
    std::string m_key;
    std::string m_backupKey;
    MalformedBackup m_backup;
    /// What the key held at the last look.
    std::optional<std::string> m_seen;
    /// Under the key still, because it could not be set aside: the next save does it.
    std::optional<std::string> m_malformed;
};

} // namespace KarvelloUI
