#include "Platform/Base/JSONWriter.h"

#include "Platform/Base/DecimalForm.h"
#include "Platform/Base/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fmt/format.h>
#include <utility>

namespace Platform {

namespace {

/// How a byte stands in a string: 0 as it is, 'u' as "\u00xx", any other letter behind a backslash.
constexpr auto kEscapes = [] {
    std::array<char, 256> escapes{};
    std::fill_n(escapes.begin(), 0x20, 'u');
    escapes['\b'] = 'b';
    escapes['\t'] = 't';
    escapes['\n'] = 'n';
    escapes['\f'] = 'f';
    escapes['\r'] = 'r';
    escapes['"'] = '"';
    escapes['/'] = '/';
    escapes['\\'] = '\\';
    return escapes;
}();

} // namespace

void JSONWriter::beginObject()
{
    begin('{');
}

void JSONWriter::key(std::string_view name)
{
    if (m_error) {
        return;
    }
    beginItem();
    m_fields.push_back({name, m_text.size(), 0});
    appendQuoted(name);
    m_text += " : ";
    m_hasKey = true;
}

void JSONWriter::endObject()
{
    if (m_error) {
        return;
    }
    const auto level = m_levels.back();
    if (level.count != 0) {
        m_fields.back().end = m_text.size();
    }
    sortFields(level);
    m_fields.resize(level.firstField);
    end('}');
}

void JSONWriter::beginArray()
{
    begin('[');
}

void JSONWriter::endArray()
{
    if (!m_error) {
        end(']');
    }
}

void JSONWriter::null()
{
    if (beginValue()) {
        m_text += "null";
    }
}

void JSONWriter::boolean(bool value)
{
    if (beginValue()) {
        m_text += value ? "true" : "false";
    }
}

void JSONWriter::integer(std::int64_t value)
{
    if (beginValue()) {
        const fmt::format_int digits(value);
        m_text.append(digits.data(), digits.size());
    }
}

void JSONWriter::unsignedInteger(std::uint64_t value)
{
    if (beginValue()) {
        const fmt::format_int digits(value);
        m_text.append(digits.data(), digits.size());
    }
}

void JSONWriter::number(double value)
{
    if (!std::isfinite(value)) {
        fail("JSON has no number that is infinite or not a number");
    } else if (beginValue()) {
        m_text += shortestDecimalForm(value);
    }
}

void JSONWriter::string(std::string_view value)
{
    if (beginValue()) {
        appendQuoted(value);
    }
}

void JSONWriter::value(const JSONValue& value)
{
    // Values come from a reader with a limit of its own, or were built by hand: their depth is small.
    struct Visitor {
        JSONWriter& writer;

        void operator()(std::monostate) const { writer.null(); }
        void operator()(bool boolean) const { writer.boolean(boolean); }
        void operator()(std::int64_t integer) const { writer.integer(integer); }
        void operator()(std::uint64_t integer) const { writer.unsignedInteger(integer); }
        void operator()(double number) const { writer.number(number); }
        void operator()(const std::string& text) const { writer.string(text); }
        void operator()(const JSONValue::Array& elements) const
        {
            writer.beginArray();
            for (const auto& element : elements) {
                writer.value(element);
            }
            writer.endArray();
        }
        void operator()(const JSONValue::Object& members) const
        {
            writer.beginObject();
            for (const auto& member : members) {
                writer.key(member.key);
                writer.value(member.value);
            }
            writer.endObject();
        }
    };
    std::visit(Visitor{*this}, value.m_content);
}

std::expected<std::string, JSONError> JSONWriter::finish() &&
{
    if (m_error) {
        return std::unexpected(*std::move(m_error));
    }
    return std::move(m_text);
}

void JSONWriter::begin(char bracket)
{
    if (beginValue()) {
        m_text += bracket;
        m_levels.push_back({m_text.size(), m_fields.size(), 0});
    }
}

void JSONWriter::end(char bracket)
{
    const bool isEmpty = m_levels.back().count == 0;
    m_levels.pop_back();
    // An empty array or object holds one empty line.
    if (isEmpty) {
        m_text += '\n';
    }
    appendNewLine();
    m_text += bracket;
}

/// False once the document has failed. An element of an array begins a line; a value behind its key does not.
bool JSONWriter::beginValue()
{
    if (m_error) {
        return false;
    }
    if (!std::exchange(m_hasKey, false) && !m_levels.empty()) {
        beginItem();
    }
    return true;
}

void JSONWriter::beginItem()
{
    auto& level = m_levels.back();
    if (level.count != 0) {
        if (m_fields.size() > level.firstField) {
            m_fields.back().end = m_text.size();
        }
        m_text += ',';
    }
    ++level.count;
    appendNewLine();
}

void JSONWriter::appendNewLine()
{
    m_text += '\n';
    m_text.append(2 * m_levels.size(), ' ');
}

void JSONWriter::appendQuoted(std::string_view value)
{
    if (!Text::isValidUTF8(value)) {
        fail(fmt::format("the text \"{}\" is not UTF-8", Text::escapingInvalidUTF8(value)));
        return;
    }
    m_text += '"';
    std::size_t plainStart = 0;
    for (std::size_t index = 0; index < value.size(); ++index) {
        const auto byte = static_cast<unsigned char>(value[index]);
        const char escape = kEscapes[byte];
        if (escape == 0) {
            continue;
        }
        m_text.append(value, plainStart, index - plainStart);
        plainStart = index + 1;
        m_text += '\\';
        m_text += escape;
        if (escape == 'u') {
            fmt::format_to(std::back_inserter(m_text), "{:04x}", byte);
        }
    }
    m_text.append(value, plainStart);
    m_text += '"';
}

/// Puts the fields of the object that ends into the order of their keys. It costs nothing where they were written in
/// that order, and a copy of the object otherwise.
void JSONWriter::sortFields(const Level& level)
{
    const auto fields =
        std::ranges::subrange(m_fields.begin() + static_cast<std::ptrdiff_t>(level.firstField), m_fields.end());
    if (std::ranges::adjacent_find(fields, std::ranges::greater_equal(), &Field::key) == fields.end()) {
        return;
    }
    m_sortedFields.assign(fields.begin(), fields.end());
    std::ranges::sort(m_sortedFields, {}, &Field::key);
    const auto twice = std::ranges::adjacent_find(m_sortedFields, {}, &Field::key);
    if (twice != m_sortedFields.end()) {
        fail(fmt::format("the key \"{}\" is written twice in one object", twice->key));
        return;
    }
    // What stands in front of a field, a comma but for the first, a new line and blanks, is the same for all others.
    m_scratch.clear();
    for (const auto& field : m_sortedFields) {
        if (!m_scratch.empty()) {
            m_scratch += ',';
        }
        m_scratch += '\n';
        m_scratch.append(2 * m_levels.size(), ' ');
        m_scratch.append(m_text, field.start, field.end - field.start);
    }
    m_text.replace(level.bodyStart, m_scratch.size(), m_scratch);
}

void JSONWriter::fail(std::string message)
{
    if (!m_error) {
        m_error = JSONError{std::move(message), {}};
    }
}

} // namespace Platform
