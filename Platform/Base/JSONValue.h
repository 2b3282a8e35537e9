#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Platform {

/// A JSON document in memory, or a part of it. Whole numbers that fit into 64 bits, signed or unsigned, are kept
/// exactly; all others are doubles.
class JSONValue {
public:
    struct Member;
    using Array = std::vector<JSONValue>;
    using Object = std::vector<Member>;

    /// null
    JSONValue();
    explicit JSONValue(bool value);
    explicit JSONValue(std::int64_t value);
    explicit JSONValue(std::uint64_t value);
    explicit JSONValue(double value);
    explicit JSONValue(std::string value);
    explicit JSONValue(Array elements);
    /// Sorts the members. No two have the same key.
    explicit JSONValue(Object members);

    /// Sorts by the bytes of the keys. The answer is a key that occurs twice, if there is one.
    static std::optional<std::string> sortByKey(Object& members);

    [[nodiscard]] bool isNull() const { return std::holds_alternative<std::monostate>(m_content); }

    /// Each gives nothing if the value is of another kind. A whole number answers to all three numbers that can hold
    /// it; a double answers to the first two only where it is whole and at most 2^53, so that nothing was rounded.
    [[nodiscard]] std::optional<bool> boolean() const;
    [[nodiscard]] std::optional<std::int64_t> integer() const;
    [[nodiscard]] std::optional<std::uint64_t> unsignedInteger() const;
    [[nodiscard]] std::optional<double> number() const;
    [[nodiscard]] const std::string* string() const { return std::get_if<std::string>(&m_content); }
    [[nodiscard]] const Array* array() const { return std::get_if<Array>(&m_content); }
    /// In the order of the keys.
    [[nodiscard]] const Object* object() const { return std::get_if<Object>(&m_content); }

    /// Nothing for a key that is missing, and for a value that is no object.
    [[nodiscard]] const JSONValue* member(std::string_view key) const;

    /// "a string", "null": what kind of value this is, for the words of an error.
    [[nodiscard]] std::string_view kindName() const;

    friend bool operator==(const JSONValue& left, const JSONValue& right);

private:
    friend class JSONWriter;

    /// The unsigned alternative holds only what does not fit into the signed one.
    std::variant<std::monostate, bool, std::int64_t, std::uint64_t, double, std::string, Array, Object> m_content;
};

struct JSONValue::Member {
    std::string key;
    JSONValue value;

    friend bool operator==(const Member&, const Member&) = default;
};

} // namespace Platform
