#pragma once

#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Base/JSONError.h"
#include "Platform/Base/JSONReader.h"
#include "Platform/Base/JSONValue.h"
#include "Platform/Base/JSONWriter.h"
#include "Platform/Base/RawValue.h"
#include "Platform/Base/UUID.h"

#include <concepts>
#include <cstdint>
#include <expected>
#include <optional>
#include <ranges>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Records as JSON. A record's coding is one table of its fields, a specialisation of `JSONFields`, that serves both
/// directions:
///
///     template <>
///     struct JSONFields<Book> {
///         static void code(auto& coder, auto& book)
///         {
///             coder.field("title", book.title);
///             coder.field("readAt", book.readAt);             // an std::optional: left out when absent
///             coder.defaulted("isLent", book.isLent, false);  // absent in older files
///             coder.text("shelf", book.shelf);                // bytes that need not be UTF-8
///             coder.path("file", book.file);                  // the same, read back byte for byte
///             coder.readableElements("notes", book.notes);    // a damaged note does not cost the book
///         }
///         static void normalize(Book& book);                  // if the record has limits: called after reading
///     };
///
/// Beside records, a field may be a boolean, an integer, a double, a string, a date (a number: seconds since
/// 2001-01-01T00:00:00Z), a file URL (its "file://" text), a UUID (its text), an enumeration with raw values (the raw
/// value), or a vector of any of these. `JSONMapCoding.h` adds maps. `null` counts as absent. Keys that the table does not name are passed over.
namespace Platform {

template <typename Record>
struct JSONFields;

/// How one type stands in JSON: `write(JSONWriter&, const T&)` and `read(const JSONValue&)`, which gives a T or a
/// JSONError.
template <typename T>
struct JSONCoding;

[[nodiscard]] JSONError unexpectedJSON(std::string_view expectation, const JSONValue& found);

/// The elements that can be read, in their order; the others are passed over.
template <typename T>
[[nodiscard]] std::vector<T> decodeReadableElements(const JSONValue::Array& elements);

/// The direction out: writes the fields of the object that is open in a writer.
class JSONFieldWriter {
public:
    explicit JSONFieldWriter(JSONWriter& writer)
        : m_writer(writer)
    {
    }

    template <typename T>
    void field(std::string_view key, const T& value)
    {
        m_writer.key(key);
        JSONCoding<T>::write(m_writer, value);
    }

    template <typename T>
    void field(std::string_view key, const std::optional<T>& value)
    {
        if (value) {
            field(key, *value);
        }
    }

    template <typename T>
    void defaulted(std::string_view key, const T& value, const T& /*absent*/)
    {
        field(key, value);
    }

    /// A text for people. Bytes that are not UTF-8 are written as `Text::escapingInvalidUTF8` shows them, and are read
    /// back so.
    void text(std::string_view key, const std::string& value);
    void text(std::string_view key, const std::optional<std::string>& value);
    void text(std::string_view key, const std::vector<std::string>& values);

    /// An absolute path. One that is not UTF-8 is written as its "file://" text, which no absolute path is, so that it is
    /// read back byte for byte.
    void path(std::string_view key, const std::string& value);
    void path(std::string_view key, const std::string& value, const std::string& /*absent*/) { path(key, value); }

    /// An array of which reading takes the elements that it can. Whatever else stands at the key, or nothing, reads as
    /// an empty one.
    template <typename T>
    void readableElements(std::string_view key, const std::vector<T>& values)
    {
        field(key, values);
    }

    /// An array of what `makeElement` makes of each item, one at a time.
    template <std::ranges::input_range Items, typename MakeElement>
    void elements(std::string_view key, const Items& items, MakeElement makeElement)
    {
        m_writer.key(key);
        m_writer.beginArray();
        for (const auto& item : items) {
            const auto element = makeElement(item);
            JSONCoding<std::remove_cvref_t<decltype(element)>>::write(m_writer, element);
        }
        m_writer.endArray();
    }

private:
    JSONWriter& m_writer;
};

/// The direction in: reads fields from an object. After a failure the further calls change nothing.
class JSONFieldReader {
public:
    explicit JSONFieldReader(const JSONValue& object)
        : m_object(object)
    {
    }

    template <typename T>
    void field(std::string_view key, T& value)
    {
        if (const auto* const member = required(key)) {
            assign(key, *member, value);
        }
    }

    template <typename T>
    void field(std::string_view key, std::optional<T>& value)
    {
        if (const auto* const member = present(key)) {
            assign(key, *member, value.emplace());
        } else {
            value.reset();
        }
    }

    template <typename T>
    void defaulted(std::string_view key, T& value, const T& absent)
    {
        if (const auto* const member = present(key)) {
            assign(key, *member, value);
        } else {
            value = absent;
        }
    }

    void text(std::string_view key, std::string& value) { field(key, value); }
    void text(std::string_view key, std::optional<std::string>& value) { field(key, value); }
    void text(std::string_view key, std::vector<std::string>& values) { field(key, values); }

    void path(std::string_view key, std::string& value);
    void path(std::string_view key, std::string& value, const std::string& absent);

    template <typename T>
    void readableElements(std::string_view key, std::vector<T>& values)
    {
        const auto* const member = present(key);
        const auto* const array = member != nullptr ? member->array() : nullptr;
        values = array != nullptr ? decodeReadableElements<T>(*array) : std::vector<T>();
    }

    [[nodiscard]] std::optional<JSONError>& error() { return m_error; }

private:
    /// Nothing for `null`, too.
    [[nodiscard]] const JSONValue* present(std::string_view key) const;
    [[nodiscard]] const JSONValue* required(std::string_view key);

    template <typename T>
    void assign(std::string_view key, const JSONValue& member, T& value)
    {
        if (m_error) {
            return;
        }
        if (auto read = JSONCoding<T>::read(member)) {
            value = *std::move(read);
        } else {
            m_error = std::move(read.error()).withinMember(key);
        }
    }

    const JSONValue& m_object;
    std::optional<JSONError> m_error;
};

template <typename T>
[[nodiscard]] std::expected<std::string, JSONError> encodeJSON(const T& value)
{
    JSONWriter writer;
    JSONCoding<T>::write(writer, value);
    return std::move(writer).finish();
}

template <typename T>
[[nodiscard]] std::expected<T, JSONError> decodeJSON(const JSONValue& value)
{
    return JSONCoding<T>::read(value);
}

template <typename T>
[[nodiscard]] std::expected<T, JSONError> decodeJSON(
    std::string_view bytes, std::size_t maximumDepth = JSONReader::kDefaultMaximumDepth)
{
    const auto value = JSONReader::parse(bytes, maximumDepth);
    if (!value) {
        return std::unexpected(value.error());
    }
    return decodeJSON<T>(*value);
}

template <typename T>
std::vector<T> decodeReadableElements(const JSONValue::Array& elements)
{
    std::vector<T> readable;
    for (const auto& element : elements) {
        if (auto value = decodeJSON<T>(element)) {
            readable.push_back(*std::move(value));
        }
    }
    return readable;
}

template <>
struct JSONCoding<bool> {
    static void write(JSONWriter& writer, bool value) { writer.boolean(value); }
    static std::expected<bool, JSONError> read(const JSONValue& value);
};

template <std::integral T>
struct JSONCoding<T> {
    static void write(JSONWriter& writer, T value)
    {
        if constexpr (std::signed_integral<T>) {
            writer.integer(value);
        } else {
            writer.unsignedInteger(value);
        }
    }

    static std::expected<T, JSONError> read(const JSONValue& value)
    {
        if (const auto integer = value.integer(); integer && std::in_range<T>(*integer)) {
            return static_cast<T>(*integer);
        }
        if (const auto integer = value.unsignedInteger(); integer && std::in_range<T>(*integer)) {
            return static_cast<T>(*integer);
        }
        return std::unexpected(
            unexpectedJSON(std::signed_integral<T> ? "a whole number" : "a whole number from 0 up", value));
    }
};

template <>
struct JSONCoding<double> {
    static void write(JSONWriter& writer, double value) { writer.number(value); }
    static std::expected<double, JSONError> read(const JSONValue& value);
};

template <>
struct JSONCoding<std::string> {
    static void write(JSONWriter& writer, const std::string& value) { writer.string(value); }
    static std::expected<std::string, JSONError> read(const JSONValue& value);
};

/// For what is only written.
template <>
struct JSONCoding<std::string_view> {
    static void write(JSONWriter& writer, std::string_view value) { writer.string(value); }
};

template <>
struct JSONCoding<Date> {
    static void write(JSONWriter& writer, Date value) { writer.number(value.secondsSinceReferenceDate); }
    static std::expected<Date, JSONError> read(const JSONValue& value);
};

template <>
struct JSONCoding<FileURL> {
    static void write(JSONWriter& writer, const FileURL& value) { writer.string(value.absoluteString()); }
    static std::expected<FileURL, JSONError> read(const JSONValue& value);
};

template <>
struct JSONCoding<UUID> {
    static void write(JSONWriter& writer, const UUID& value) { writer.string(value.string()); }
    static std::expected<UUID, JSONError> read(const JSONValue& value);
};

template <RawRepresentable E>
struct JSONCoding<E> {
    static void write(JSONWriter& writer, E value) { writer.string(rawValue(value)); }

    static std::expected<E, JSONError> read(const JSONValue& value)
    {
        const auto* const raw = value.string();
        const auto known = raw != nullptr ? fromRawValue<E>(*raw) : std::nullopt;
        if (!known) {
            return std::unexpected(unexpectedJSON("one of the known words", value));
        }
        return *known;
    }
};

template <typename T>
struct JSONCoding<std::vector<T>> {
    static void write(JSONWriter& writer, const std::vector<T>& elements)
    {
        writer.beginArray();
        for (const auto& element : elements) {
            JSONCoding<T>::write(writer, element);
        }
        writer.endArray();
    }

    static std::expected<std::vector<T>, JSONError> read(const JSONValue& value)
    {
        const auto* const array = value.array();
        if (array == nullptr) {
            return std::unexpected(unexpectedJSON("an array", value));
        }
        std::vector<T> elements;
        elements.reserve(array->size());
        for (const auto& item : *array) {
            auto element = JSONCoding<T>::read(item);
            if (!element) {
                return std::unexpected(std::move(element.error()).withinElement(elements.size()));
            }
            elements.push_back(*std::move(element));
        }
        return elements;
    }
};

template <typename Record>
    requires requires(JSONFieldWriter& writer, const Record& record) { JSONFields<Record>::code(writer, record); }
struct JSONCoding<Record> {
    static void write(JSONWriter& writer, const Record& record)
    {
        writer.beginObject();
        JSONFieldWriter fields(writer);
        JSONFields<Record>::code(fields, record);
        writer.endObject();
    }

    static std::expected<Record, JSONError> read(const JSONValue& value)
    {
        if (value.object() == nullptr) {
            return std::unexpected(unexpectedJSON("an object", value));
        }
        Record record;
        JSONFieldReader fields(value);
        JSONFields<Record>::code(fields, record);
        if (fields.error()) {
            return std::unexpected(*std::move(fields.error()));
        }
        if constexpr (requires { JSONFields<Record>::normalize(record); }) {
            JSONFields<Record>::normalize(record);
        }
        return record;
    }
};

} // namespace Platform
