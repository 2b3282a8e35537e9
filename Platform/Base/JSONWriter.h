#pragma once

#include "Platform/Base/JSONError.h"
#include "Platform/Base/JSONValue.h"

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Platform {

/// Writes one JSON document: pretty, two blanks a level, `"key" : value`, the keys of each object in the order of their
/// bytes whatever order they are written in, slashes as `\/`.
///
/// The calls follow the document: a key before each value in an object, an end for each begin. What has no JSON (bytes
/// that are not UTF-8, a double that is not finite, a key written twice) makes the whole document fail; later calls are
/// then without effect, and `finish` tells the first reason.
class JSONWriter {
public:
    void beginObject();
    /// `name` stays alive until its object ends.
    void key(std::string_view name);
    void endObject();
    void beginArray();
    void endArray();

    void null();
    void boolean(bool value);
    void integer(std::int64_t value);
    void unsignedInteger(std::uint64_t value);
    void number(double value);
    void string(std::string_view value);
    void value(const JSONValue& value);

    /// Makes room for a document of so many bytes.
    void reserve(std::size_t bytes) { m_text.reserve(bytes); }

    [[nodiscard]] std::expected<std::string, JSONError> finish() &&;

private:
    struct Field {
        std::string_view key;
        std::size_t start;
        std::size_t end;
    };

    struct Level {
        std::size_t bodyStart;
        std::size_t firstField;
        std::size_t count;
    };

    void begin(char bracket);
    void end(char bracket);
    bool beginValue();
    void beginItem();
    void appendNewLine();
    void appendQuoted(std::string_view value);
    void sortFields(const Level& level);
    void fail(std::string message);

    std::string m_text;
    /// The objects and arrays that are open.
    std::vector<Level> m_levels;
    /// Of the open objects, the outer ones first.
    std::vector<Field> m_fields;
    std::vector<Field> m_sortedFields;
    std::string m_scratch;
    std::optional<JSONError> m_error;
    bool m_hasKey = false;
};

} // namespace Platform
