#include "Platform/Linux/TrashRecord.h"

#include "Platform/Base/PercentEncoding.h"

#include <array>
#include <climits>
#include <ctime>
#include <fmt/format.h>

namespace Platform {

namespace {

constexpr std::string_view kHeader = "[Trash Info]";
constexpr std::string_view kOursKey = "X-Karvello";

/// At most `limit` bytes, and no character cut through. Bytes that are no UTF-8 are cut anywhere.
std::string_view prefixOfCharacters(std::string_view text, std::size_t limit)
{
    if (text.size() <= limit) {
        return text;
    }
    constexpr std::size_t kLongestTail = 3;
    for (std::size_t cut = limit; cut + kLongestTail >= limit && cut > 0; --cut) {
        if ((static_cast<unsigned char>(text[cut]) & 0xC0U) != 0x80U) {
            return text.substr(0, cut);
        }
    }
    return text.substr(0, limit);
}

} // namespace

std::string TrashRecord::text() const
{
    return fmt::format("{}\nPath={}\nDeletionDate={}\n{}", kHeader, percentEncoded(path), deletionDate,
        isOurs ? fmt::format("{}=1\n", kOursKey) : "");
}

std::optional<TrashRecord> TrashRecord::parse(std::string_view text)
{
    TrashRecord record;
    std::optional<std::string> path;
    bool hasHeader = false;
    while (!text.empty()) {
        const auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(line.size() == text.size() ? line.size() : line.size() + 1);
        if (!hasHeader) {
            if (line != kHeader) {
                return std::nullopt;
            }
            hasHeader = true;
            continue;
        }
        const auto equals = line.find('=');
        if (equals == std::string_view::npos) {
            continue;
        }
        const auto key = line.substr(0, equals);
        const auto value = line.substr(equals + 1);
        if (key == "Path" && !path) {
            path = percentDecoded(value);
        } else if (key == "DeletionDate" && record.deletionDate.empty()) {
            record.deletionDate = value;
        } else if (key == kOursKey) {
            record.isOurs = true;
        }
    }
    if (!path || path->empty()) {
        return std::nullopt;
    }
    record.path = std::move(*path);
    return record;
}

std::string TrashRecord::now()
{
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    localtime_r(&seconds, &local);
    std::array<char, 32> text{};
    const auto length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &local);
    return {text.data(), length};
}

std::string trashedName(std::string_view itemName, std::size_t attempt)
{
    const auto point = itemName.rfind('.');
    constexpr std::size_t kLongestExtension = 32;
    const bool hasExtension =
        point != std::string_view::npos && point > 0 && itemName.size() - point <= kLongestExtension;
    const auto extension = hasExtension ? itemName.substr(point) : std::string_view();
    const auto stem = itemName.substr(0, itemName.size() - extension.size());
    const auto number = attempt == 0 ? std::string() : fmt::format(".{}", attempt + 1);
    const auto room = NAME_MAX - TrashRecord::kSuffix.size() - extension.size() - number.size();
    return fmt::format("{}{}{}", prefixOfCharacters(stem, room), number, extension);
}

} // namespace Platform
