#include "KarvelloUI/Stores/StoredData.h"

#include <array>
#include <span>
#include <utility>

namespace KarvelloUI {

namespace {

using Platform::DefaultsChange;
using Platform::DefaultsData;

DefaultsChange setting(const std::string& key, const std::string& bytes)
{
    return {.key = key, .value = DefaultsData{bytes}};
}

DefaultsChange removing(const std::string& key)
{
    return {.key = key, .value = std::nullopt};
}

std::expected<void, std::string> applyAll(Platform::UserDefaults& defaults, std::span<const DefaultsChange> changes)
{
    if (const auto applied = defaults.apply(changes); !applied) {
        return std::unexpected(applied.error().localizedDescription());
    }
    return {};
}

} // namespace

StoredData::StoredData(Platform::UserDefaults& defaults, std::string key, MalformedBackup backup)
    : m_defaults(defaults)
    , m_key(std::move(key))
    , m_backupKey(m_key + ".malformedBackup")
    , m_backup(backup)
{
}

std::optional<std::string> StoredData::load(const Reader& reader)
{
    m_seen = m_defaults.data(m_key);
    if (m_seen && !reader(*m_seen)) {
        return setAside(*m_seen);
    }
    if (m_backup == MalformedBackup::isKeptForInspection) {
        return std::nullopt;
    }
    if (const auto backup = m_defaults.data(m_backupKey)) {
        if (m_seen) {
            // What is left in place does no harm: the key outranks it.
            (void)m_defaults.remove(m_backupKey);
        } else {
            restore(reader, *backup);
        }
    }
    return std::nullopt;
}

std::string StoredData::setAside(const std::string& bytes)
{
    const auto moved = applyAll(m_defaults, std::array{setting(m_backupKey, bytes), removing(m_key)});
    if (!moved) {
        m_malformed = bytes;
        return std::string(kUnreadable) + " " + moved.error();
    }
    m_seen.reset();
    return kUnreadable;
}

void StoredData::restore(const Reader& reader, const std::string& backup)
{
    // Neither failure matters: the next start finds the same backup and does the same.
    if (!reader(backup)) {
        (void)m_defaults.remove(m_backupKey);
    } else if (applyAll(m_defaults, std::array{setting(m_key, backup), removing(m_backupKey)})) {
        m_seen = backup;
    }
}

void StoredData::update(const std::function<bool(const std::string* bytes)>& reader)
{
    auto stored = m_defaults.data(m_key);
    if (stored != m_seen && reader(stored ? &*stored : nullptr)) {
        m_seen = std::move(stored);
        m_malformed.reset();
    }
}

std::expected<void, std::string> StoredData::save(const std::string& bytes)
{
    std::vector changes{setting(m_key, bytes)};
    if (m_backup == MalformedBackup::isReadAgain) {
        changes.push_back(removing(m_backupKey));
    } else if (m_malformed) {
        changes.push_back(setting(m_backupKey, *m_malformed));
    }
    auto saved = applyAll(m_defaults, changes);
    if (saved) {
        m_seen = bytes;
        m_malformed.reset();
    }
    return saved;
}

std::expected<void, std::string> StoredData::remove()
{
    auto removed = applyAll(m_defaults, std::array{removing(m_key), removing(m_backupKey)});
    if (removed) {
        m_seen.reset();
        m_malformed.reset();
    }
    return removed;
}

} // namespace KarvelloUI
