#pragma once

#include "Platform/Base/JSONCoding.h"

#include <expected>
#include <functional>
#include <map>
#include <string>
#include <utility>

namespace Platform {

/// An object whose keys are not known beforehand.
template <typename T>
struct JSONCoding<std::map<std::string, T, std::less<>>> {
    using Map = std::map<std::string, T, std::less<>>;
    static void write(JSONWriter& writer, const Map& members)
    {
        writer.beginObject();
        for (const auto& [key, value] : members) {
            writer.key(key);
            JSONCoding<T>::write(writer, value);
        }
        writer.endObject();
    }

    static std::expected<Map, JSONError> read(const JSONValue& value)
    {
        const auto* const object = value.object();
        if (object == nullptr) {
            return std::unexpected(unexpectedJSON("an object", value));
        }
        Map members;
        for (const auto& [key, item] : *object) {
            auto member = JSONCoding<T>::read(item);
            if (!member) {
                return std::unexpected(std::move(member.error()).withinMember(key));
            }
            members.emplace_hint(members.end(), key, *std::move(member));
        }
        return members;
    }
};

} // namespace Platform
