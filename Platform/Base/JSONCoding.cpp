#include "Platform/Base/JSONCoding.h"

#include "Platform/Base/Text.h"

#include <fmt/format.h>

namespace Platform {

namespace {

std::string excerpt(std::string_view text)
{
    constexpr std::size_t limit = 60;
    if (text.size() <= limit) {
        return std::string(text);
    }
    auto end = limit;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
        --end;
    }
    return std::string(text.substr(0, end)).append("…");
}

template <typename T>
std::expected<T, JSONError> valueOr(std::optional<T> value, std::string_view expectation, const JSONValue& found)
{
    if (!value) {
        return std::unexpected(unexpectedJSON(expectation, found));
    }
    return *std::move(value);
}

void writeText(JSONWriter& writer, const std::string& value)
{
    if (Text::isValidUTF8(value)) {
        writer.string(value);
    } else {
        writer.string(Text::escapingInvalidUTF8(value));
    }
}

/// An absolute path begins with a slash, so what begins otherwise is a text of the writer.
void decodePath(std::string& value)
{
    if (const auto url = FileURL::fromAbsoluteString(value)) {
        value = url->path();
    }
}

} // namespace

JSONError unexpectedJSON(std::string_view expectation, const JSONValue& found)
{
    if (const auto* const text = found.string()) {
        return {fmt::format("expected {}, found the string \"{}\"", expectation, excerpt(*text)), {}};
    }
    if (const auto number = found.number()) {
        return {fmt::format("expected {}, found the number {}", expectation, *number), {}};
    }
    return {fmt::format("expected {}, found {}", expectation, found.kindName()), {}};
}

void JSONFieldWriter::path(std::string_view key, const std::string& value)
{
    field(key, Text::isValidUTF8(value) ? value : FileURL(value).absoluteString());
}

void JSONFieldReader::path(std::string_view key, std::string& value)
{
    field(key, value);
    decodePath(value);
}

void JSONFieldReader::path(std::string_view key, std::string& value, const std::string& absent)
{
    defaulted(key, value, absent);
    decodePath(value);
}

void JSONFieldWriter::text(std::string_view key, const std::string& value)
{
    m_writer.key(key);
    writeText(m_writer, value);
}

void JSONFieldWriter::text(std::string_view key, const std::optional<std::string>& value)
{
    if (value) {
        text(key, *value);
    }
}

void JSONFieldWriter::text(std::string_view key, const std::vector<std::string>& values)
{
    m_writer.key(key);
    m_writer.beginArray();
    for (const auto& value : values) {
        writeText(m_writer, value);
    }
    m_writer.endArray();
}

const JSONValue* JSONFieldReader::present(std::string_view key) const
{
    const auto* const member = m_object.member(key);
    return member != nullptr && !member->isNull() ? member : nullptr;
}

const JSONValue* JSONFieldReader::required(std::string_view key)
{
    const auto* const member = m_object.member(key);
    if (member == nullptr && !m_error) {
        m_error = JSONError{fmt::format("the key \"{}\" is missing", key), {}};
    }
    return member;
}

std::expected<bool, JSONError> JSONCoding<bool>::read(const JSONValue& value)
{
    return valueOr(value.boolean(), "true or false", value);
}

std::expected<double, JSONError> JSONCoding<double>::read(const JSONValue& value)
{
    return valueOr(value.number(), "a number", value);
}

std::expected<std::string, JSONError> JSONCoding<std::string>::read(const JSONValue& value)
{
    if (const auto* const text = value.string()) {
        return *text;
    }
    return std::unexpected(unexpectedJSON("a string", value));
}

std::expected<Date, JSONError> JSONCoding<Date>::read(const JSONValue& value)
{
    if (const auto seconds = value.number()) {
        return Date{*seconds};
    }
    return std::unexpected(unexpectedJSON("a date, in seconds since 2001", value));
}

std::expected<FileURL, JSONError> JSONCoding<FileURL>::read(const JSONValue& value)
{
    const auto* const text = value.string();
    return valueOr(text != nullptr ? FileURL::fromAbsoluteString(*text) : std::nullopt, "a file URL", value);
}

std::expected<UUID, JSONError> JSONCoding<UUID>::read(const JSONValue& value)
{
    const auto* const text = value.string();
    return valueOr(text != nullptr ? UUID::fromString(*text) : std::nullopt, "a UUID", value);
}

} // namespace Platform
