#include "KarvelloUI/Stores/IOSStorageChecklistStore.h"

#include "Platform/Base/JSONMapCoding.h"

namespace KarvelloUI {

namespace {

struct Payload {
    /// The raw value of a step, and that of its status.
    Platform::DefaultsDictionary statuses;
};

} // namespace

} // namespace KarvelloUI

template <>
struct Platform::JSONFields<KarvelloUI::Payload> {
    static void code(auto& coder, auto& payload) { coder.field("statuses", payload.statuses); }
};

namespace KarvelloUI {

IOSStorageChecklistStore::Statuses IOSStorageChecklistStore::statuses() const
{
    Statuses statuses;
    const auto stored = storedRawStatuses();
    for (const auto step : Platform::allCases<IOSStorageChecklistStepID>()) {
        const auto found = stored.find(Platform::rawValue(step));
        const auto status =
            found != stored.end() ? Platform::fromRawValue<IOSStorageChecklistStatus>(found->second) : std::nullopt;
        statuses.emplace(step, status.value_or(IOSStorageChecklistStatus::notStarted));
    }
    return statuses;
}

IOSStorageChecklistStatus IOSStorageChecklistStore::status(IOSStorageChecklistStepID step) const
{
    return statuses().at(step);
}

std::expected<void, Platform::FileError> IOSStorageChecklistStore::setStatus(
    IOSStorageChecklistStatus status, IOSStorageChecklistStepID step)
{
    auto changed = statuses();
    changed[step] = status;
    Platform::DefaultsDictionary rawStatuses;
    for (const auto& [eachStep, eachStatus] : changed) {
        rawStatuses.emplace(Platform::rawValue(eachStep), Platform::rawValue(eachStatus));
    }
    // Known words only: they always have a JSON.
    auto bytes = Platform::encodeJSON(Payload{std::move(rawStatuses)}).value();
    return m_defaults.set(m_storageKey, Platform::DefaultsData{std::move(bytes)});
}

std::expected<void, Platform::FileError> IOSStorageChecklistStore::reset()
{
    return m_defaults.remove(m_storageKey);
}

Platform::DefaultsDictionary IOSStorageChecklistStore::storedRawStatuses() const
{
    if (const auto bytes = m_defaults.data(m_storageKey)) {
        if (auto payload = Platform::decodeJSON<Payload>(*bytes)) {
            return payload->statuses;
        }
    }
    // An older form: the dictionary itself.
    return m_defaults.dictionary(m_storageKey).value_or(Platform::DefaultsDictionary());
}

} // namespace KarvelloUI
