#include "Platform/Services/DefaultsDocument.h"

#include "Platform/Base/Base64.h"
#include "Platform/Base/JSONMapCoding.h"
#include "Platform/Base/JSONReader.h"
#include "Platform/Base/JSONWriter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Platform {

namespace {

constexpr std::string_view kDouble = "double";
constexpr std::string_view kData = "data";
constexpr std::string_view kDictionary = "dictionary";

std::optional<DefaultsValue> readNamed(const JSONValue::Member& member)
{
    if (member.key == kDouble) {
        return member.value.number();
    }
    if (member.key == kData) {
        const auto* const text = member.value.string();
        auto bytes = text != nullptr ? Base64::decode(*text) : std::nullopt;
        return bytes ? std::optional<DefaultsValue>(DefaultsData{*std::move(bytes)}) : std::nullopt;
    }
    if (member.key == kDictionary) {
        auto dictionary = decodeJSON<DefaultsDictionary>(member.value);
        return dictionary ? std::optional<DefaultsValue>(*std::move(dictionary)) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<DefaultsValue> readValue(const JSONValue& json)
{
    if (const auto boolean = json.boolean()) {
        return *boolean;
    }
    if (const auto integer = json.integer()) {
        return *integer;
    }
    // What is left are fractions and what is beyond 64 bits; of the latter whole ones are not known to be doubles.
    if (const auto number = json.number(); number && !json.unsignedInteger()) {
        return *number;
    }
    if (const auto* const string = json.string()) {
        return *string;
    }
    const auto* const members = json.object();
    return members != nullptr && members->size() == 1 ? readNamed(members->front()) : std::nullopt;
}

/// Writes a value, or the JSON that stands for an unknown one.
struct EntryWriter {
    JSONWriter& writer;

    void operator()(const DefaultsValue& value) const { std::visit(*this, value); }
    void operator()(const JSONValue& json) const { writer.value(json); }
    void operator()(bool value) const { writer.boolean(value); }
    void operator()(std::int64_t value) const { writer.integer(value); }
    void operator()(const std::string& value) const { writer.string(value); }

    void operator()(double value) const
    {
        // Alone, a whole one would be read as an integer.
        if (std::trunc(value) == value) {
            named(kDouble, [&] { writer.number(value); });
        } else {
            writer.number(value);
        }
    }

    void operator()(const DefaultsData& value) const
    {
        named(kData, [&] { writer.string(Base64::encode(value.bytes)); });
    }

    void operator()(const DefaultsDictionary& value) const
    {
        named(kDictionary, [&] { JSONCoding<DefaultsDictionary>::write(writer, value); });
    }

private:
    void named(std::string_view name, auto writeValue) const
    {
        writer.beginObject();
        writer.key(name);
        writeValue();
        writer.endObject();
    }
};

} // namespace

std::expected<DefaultsDocument, JSONError> DefaultsDocument::parse(std::string_view bytes)
{
    const auto json = JSONReader::parse(bytes);
    if (!json) {
        return std::unexpected(json.error());
    }
    const auto* const members = json->object();
    if (members == nullptr) {
        return std::unexpected(unexpectedJSON("an object", *json));
    }
    DefaultsDocument document;
    for (const auto& [key, member] : *members) {
        auto value = readValue(member);
        document.m_entries.emplace(key, value ? Entry(*std::move(value)) : Entry(member));
    }
    return document;
}

std::expected<std::string, JSONError> DefaultsDocument::encoded() const
{
    JSONWriter writer;
    writer.beginObject();
    for (const auto& [key, entry] : m_entries) {
        writer.key(key);
        std::visit(EntryWriter{writer}, entry);
    }
    writer.endObject();
    return std::move(writer).finish();
}

std::optional<DefaultsValue> DefaultsDocument::value(std::string_view key) const
{
    const auto found = m_entries.find(key);
    const auto* const value = found != m_entries.end() ? std::get_if<DefaultsValue>(&found->second) : nullptr;
    return value != nullptr ? std::optional(*value) : std::nullopt;
}

bool DefaultsDocument::isChangedBy(std::span<const DefaultsChange> changes) const
{
    std::map<std::string_view, const std::optional<DefaultsValue>*> lastOfEachKey;
    for (const auto& change : changes) {
        lastOfEachKey[change.key] = &change.value;
    }
    return std::ranges::any_of(lastOfEachKey, [this](const auto& last) {
        const auto& [key, value] = last;
        const auto entry = m_entries.find(key);
        if (!*value) {
            return entry != m_entries.end();
        }
        const auto* const held = entry != m_entries.end() ? std::get_if<DefaultsValue>(&entry->second) : nullptr;
        return held == nullptr || *held != **value;
    });
}

void DefaultsDocument::apply(std::span<const DefaultsChange> changes)
{
    for (const auto& [key, value] : changes) {
        if (value) {
            m_entries.insert_or_assign(key, *value);
        } else {
            m_entries.erase(key);
        }
    }
}

std::vector<std::string> DefaultsDocument::keysThatDiffer(const DefaultsDocument& other) const
{
    std::vector<std::string> keys;
    const auto collect = [&](const std::string& key) {
        if (value(key) != other.value(key)) {
            keys.push_back(key);
        }
    };
    // Both at once, in the order of the keys.
    auto own = m_entries.begin();
    auto others = other.m_entries.begin();
    while (own != m_entries.end() || others != other.m_entries.end()) {
        if (others == other.m_entries.end() || (own != m_entries.end() && own->first < others->first)) {
            collect((own++)->first);
        } else {
            if (own != m_entries.end() && own->first == others->first) {
                ++own;
            }
            collect((others++)->first);
        }
    }
    return keys;
}

} // namespace Platform
