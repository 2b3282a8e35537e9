#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Platform {

/// The record that stands beside each item in the Trash: a ".trashinfo" file (Trash specification 1.0, "Contents of a
/// trash directory").
struct TrashRecord {
    static constexpr std::string_view kSuffix = ".trashinfo";

    /// Where the item was: absolute in the Trash of the home, relative to the top folder in that of a volume. Bytes.
    std::string path;
    /// Local time, "YYYY-MM-DDThh:mm:ss".
    std::string deletionDate;
    /// Written by this program: only such a record is ever taken away as left over.
    bool isOurs = false;

    [[nodiscard]] std::string text() const;
    /// Nothing for a text without the header or without a path. Of a key that comes twice the first counts.
    static std::optional<TrashRecord> parse(std::string_view text);

    /// The present local time in the form of `deletionDate`.
    static std::string now();
};

/// The name under which an item comes to lie in the Trash. `attempt` counts from 0, and each gives another name; all are
/// short enough to carry the record's suffix, and end in the item's own extension.
[[nodiscard]] std::string trashedName(std::string_view itemName, std::size_t attempt);

} // namespace Platform
