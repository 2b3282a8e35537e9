#include "Platform/Base/JSONReader.h"

#include "Platform/Base/Text.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

namespace Platform::JSONReader {

namespace {

/// The parser's words between its own position and its quotation of the input, which may be as long as the input.
std::string_view reasonIn(std::string_view words)
{
    constexpr std::string_view beforeReason = " - ";
    const auto start = words.find(beforeReason);
    if (start == std::string_view::npos) {
        return "malformed JSON";
    }
    words.remove_prefix(start + beforeReason.size());
    const auto quotation = words.find("; last read: ");
    if (quotation == std::string_view::npos) {
        return words;
    }
    return words.substr(0, quotation);
}

/// Builds the value from the parser's events. An answer of false ends the parsing.
class Builder {
public:
    using Number = nlohmann::json;

    Builder(std::size_t maximumDepth, RepeatedKeys repeatedKeys)
        : m_maximumDepth(maximumDepth)
        , m_repeatedKeys(repeatedKeys)
    {
    }

    // The parser gives these functions their names.
    // NOLINTBEGIN(readability-identifier-naming)
    bool null() { return add(JSONValue()); }
    bool boolean(bool value) { return add(JSONValue(value)); }
    bool number_integer(Number::number_integer_t value) { return add(JSONValue(std::int64_t{value})); }
    bool number_unsigned(Number::number_unsigned_t value) { return add(JSONValue(std::uint64_t{value})); }
    bool number_float(Number::number_float_t value, const std::string& /*digits*/) { return add(JSONValue(value)); }
    bool string(std::string& value) { return add(JSONValue(std::move(value))); }
    bool binary(Number::binary_t& /*value*/) { return fail("malformed JSON"); }

    bool start_object(std::size_t /*size*/) { return open(Container::object); }
    bool start_array(std::size_t /*size*/) { return open(Container::array); }

    bool key(std::string& name)
    {
        m_open.back().members.push_back({std::move(name), {}});
        return true;
    }

    bool end_object()
    {
        auto members = std::move(m_open.back().members);
        if (const auto twice = JSONValue::sortByKey(members)) {
            if (m_repeatedKeys == RepeatedKeys::makeTheObjectNull) {
                return close(JSONValue());
            }
            return fail(fmt::format("the key \"{}\" occurs twice in one object", *twice));
        }
        return close(JSONValue(std::move(members)));
    }

    bool end_array() { return close(JSONValue(std::move(m_open.back().elements))); }

    bool parse_error(
        std::size_t position, const std::string& /*lastToken*/, const nlohmann::detail::exception& exception)
    {
        // 406: the only error of the parser that is not one of syntax.
        const auto reason =
            exception.id == 406 ? std::string_view("a number is out of range") : reasonIn(exception.what());
        return fail(fmt::format("{}, at byte {}", Text::escapingInvalidUTF8(reason), position));
    }

    // NOLINTEND(readability-identifier-naming)

    std::expected<JSONValue, JSONError> result() &&
    {
        if (m_error) {
            return std::unexpected(*std::move(m_error));
        }
        return std::move(m_root);
    }

private:
    enum class Container : std::uint8_t { array, object };

    struct Open {
        Container container;
        JSONValue::Array elements;
        JSONValue::Object members;
    };

    bool fail(std::string message)
    {
        if (!m_error) {
            m_error = JSONError{std::move(message), {}};
        }
        return false;
    }

    bool open(Container container)
    {
        if (m_open.size() == m_maximumDepth) {
            return fail(fmt::format("more than {} arrays and objects lie within each other", m_maximumDepth));
        }
        m_open.push_back({container, {}, {}});
        return true;
    }

    bool close(JSONValue value)
    {
        m_open.pop_back();
        return add(std::move(value));
    }

    bool add(JSONValue value)
    {
        if (m_open.empty()) {
            m_root = std::move(value);
        } else if (auto& parent = m_open.back(); parent.container == Container::array) {
            parent.elements.push_back(std::move(value));
        } else {
            parent.members.back().value = std::move(value);
        }
        return true;
    }

    std::size_t m_maximumDepth;
    RepeatedKeys m_repeatedKeys;
    std::vector<Open> m_open;
    JSONValue m_root;
    std::optional<JSONError> m_error;
};

} // namespace

std::expected<JSONValue, JSONError> parse(std::string_view bytes, std::size_t maximumDepth, RepeatedKeys repeatedKeys)
{
    // The parser takes a NUL for the end and would not look behind it.
    if (const auto position = bytes.find('\0'); position != std::string_view::npos) {
        return std::unexpected(JSONError{fmt::format("unexpected NUL byte, at byte {}", position + 1), {}});
    }
    Builder builder(maximumDepth, repeatedKeys);
    nlohmann::json::sax_parse(bytes.begin(), bytes.end(), &builder);
    return std::move(builder).result();
}

} // namespace Platform::JSONReader
