#include "Tests/Support/TreeLayout.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <utility>

namespace TestSupport {

namespace {

using Failure = std::unexpected<std::string>;

/// Reads one line from left to right.
class LineReader {
public:
    explicit LineReader(std::string_view line)
        : m_rest(line)
    {
    }

    /// The number of blanks in front of the next word; nothing when the line holds no further word.
    std::optional<std::size_t> skipBlanks()
    {
        const auto blanks = m_rest.find_first_not_of(' ');
        if (blanks == std::string_view::npos || m_rest[blanks] == '#') {
            m_rest = {};
            return std::nullopt;
        }
        m_rest.remove_prefix(blanks);
        return blanks;
    }

    /// The characters up to a blank, up to `stop`, or to the end, with the quoted parts as what they stand for.
    std::expected<std::string, std::string> word(char stop = ' ')
    {
        std::string result;
        while (!m_rest.empty() && m_rest.front() != ' ' && m_rest.front() != stop) {
            if (m_rest.front() != '"') {
                result += m_rest.front();
                m_rest.remove_prefix(1);
                continue;
            }
            auto part = quoted();
            if (!part) {
                return part;
            }
            result += *part;
        }
        return result;
    }

    bool take(std::string_view expected)
    {
        if (!m_rest.starts_with(expected)) {
            return false;
        }
        m_rest.remove_prefix(expected.size());
        return true;
    }

private:
    std::expected<std::string, std::string> quoted()
    {
        std::string part;
        for (m_rest.remove_prefix(1); !take("\"");) {
            if (m_rest.empty()) {
                return Failure("a quote has no end");
            }
            const auto byte = m_rest.front() == '\\' ? escape() : std::optional(m_rest.front());
            if (!byte) {
                return Failure("an escape that is not known");
            }
            part += *byte;
            m_rest.remove_prefix(1);
        }
        if (!take("*")) {
            return part;
        }
        std::size_t times = 0;
        const auto end = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), times).ptr;
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
        std::string repeated;
        for (; times > 0; --times) {
            repeated += part;
        }
        return repeated;
    }

    /// Leaves the last character of the escape to be taken.
    std::optional<char> escape()
    {
        constexpr std::string_view letters = "nte\\\"";
        constexpr std::string_view meanings = "\n\t\x1b\\\"";
        m_rest.remove_prefix(1);
        if (m_rest.empty()) {
            return std::nullopt;
        }
        if (const auto index = letters.find(m_rest.front()); index != std::string_view::npos) {
            return meanings[index];
        }
        unsigned value = 0;
        if (m_rest.size() < 3 || m_rest.front() != 'x'
            || std::from_chars(m_rest.data() + 1, m_rest.data() + 3, value, 16).ptr != m_rest.data() + 3) {
            return std::nullopt;
        }
        m_rest.remove_prefix(2);
        return static_cast<char>(value);
    }

    std::string_view m_rest;
};

/// A number with a unit, such as "4K"; nothing if it is no such thing.
std::optional<double> measure(std::string_view text, const std::map<char, double>& units)
{
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const std::string_view unit(end, static_cast<std::size_t>(text.data() + text.size() - end));
    if (error != std::errc() || unit.size() > 1) {
        return std::nullopt;
    }
    if (unit.empty()) {
        return value;
    }
    const auto factor = units.find(unit.front());
    return factor == units.end() ? std::nullopt : std::optional(value * factor->second);
}

/// One line, before its path is taken apart.
struct Line {
    LayoutItem item;
    std::string path;
    std::size_t count = 0;
    std::size_t levels = 1;
};

std::expected<void, std::string> readSetting(Line& line, const std::string& key, const std::string& value)
{
    static const std::map<char, double> sizes{{'K', 1024}, {'M', 1024.0 * 1024}, {'G', 1024.0 * 1024 * 1024}};
    static const std::map<char, double> times{{'s', 1}, {'m', 60}, {'h', 3600}, {'d', 86400}};
    if (key == "text") {
        line.item.text = value;
        return {};
    }
    if (key == "mode") {
        unsigned mode = 0;
        const auto* last = value.data() + value.size();
        if (value.empty() || std::from_chars(value.data(), last, mode, 8).ptr != last) {
            return Failure("a mode that is not octal: " + value);
        }
        line.item.mode = mode;
        return {};
    }
    const auto number = measure(value, key == "age" ? times : sizes);
    if (!number || (key != "age" && *number < 0)) {
        return Failure("no number: " + key + "=" + value);
    }
    if (key == "age") {
        line.item.age = *number;
    } else if (key == "size") {
        line.item.size = std::llround(*number);
    } else if (key == "count") {
        line.count = static_cast<std::size_t>(*number);
    } else if (key == "levels") {
        line.levels = static_cast<std::size_t>(*number);
    } else {
        return Failure("a setting that is not known: " + key);
    }
    return {};
}

std::expected<void, std::string> readWord(Line& line, LineReader& reader)
{
    const bool isSymbolicLink = reader.take("->");
    if (isSymbolicLink || reader.take("=>")) {
        line.item.kind = isSymbolicLink ? LayoutKind::symbolicLink : LayoutKind::hardLink;
        reader.skipBlanks();
        auto target = reader.word();
        if (!target || target->empty()) {
            return Failure("a link without a target");
        }
        line.item.target = std::move(*target);
        return {};
    }
    const auto key = reader.word('=');
    if (!key) {
        return Failure(key.error());
    }
    if (reader.take("=")) {
        const auto value = reader.word();
        return value ? readSetting(line, *key, *value) : Failure(value.error());
    }
    if (*key == "fifo" || *key == "socket") {
        line.item.kind = *key == "fifo" ? LayoutKind::fifo : LayoutKind::socket;
    } else if (*key == "sparse") {
        line.item.isSparse = true;
    } else {
        return Failure("a word that is not known: " + *key);
    }
    return {};
}

std::expected<Line, std::string> readLine(LineReader& reader)
{
    Line line;
    const auto path = reader.word();
    if (!path) {
        return Failure(path.error());
    }
    line.path = *path;
    if (line.path.ends_with('/')) {
        line.item.kind = LayoutKind::folder;
        line.path.pop_back();
    }
    while (reader.skipBlanks()) {
        if (const auto read = readWord(line, reader); !read) {
            return Failure(read.error());
        }
    }
    if (line.path.empty() || line.path.starts_with('/') || line.path.contains("//")) {
        return Failure("an empty name");
    }
    if (line.path.contains('\0')) {
        return Failure("a name with a NUL");
    }
    return line;
}

/// Gathers the items, each folder once.
class ItemList {
public:
    /// The index of the last item of the line.
    std::size_t add(const Line& line, std::size_t parent)
    {
        std::string_view rest = line.path;
        for (auto slash = rest.find('/'); slash != std::string_view::npos; slash = rest.find('/')) {
            parent = folder({.kind = LayoutKind::folder, .parent = parent, .name = std::string(rest.substr(0, slash))});
            rest.remove_prefix(slash + 1);
        }
        auto item = line.item;
        item.name = rest;
        if (item.kind == LayoutKind::folder && line.count == 0) {
            for (std::size_t level = 0; level < line.levels; ++level) {
                item.parent = parent;
                parent = folder(item);
            }
            return parent;
        }
        for (std::size_t index = 0; index < std::max<std::size_t>(line.count, 1); ++index) {
            item.parent = parent;
            item.name = std::string(rest) + (line.count == 0 ? "" : std::to_string(index));
            m_items.push_back(item);
        }
        return m_items.size() - 1;
    }

    [[nodiscard]] bool isFolder(std::size_t index) const { return m_items[index].kind == LayoutKind::folder; }
    std::vector<LayoutItem> take() { return std::move(m_items); }

private:
    /// The folder that is there already with what `item` adds, or a new one.
    std::size_t folder(const LayoutItem& item)
    {
        const auto [known, isNew] = m_folders.try_emplace({item.parent, item.name}, m_items.size());
        if (isNew) {
            m_items.push_back(item);
            return known->second;
        }
        auto& existing = m_items[known->second];
        existing.mode = item.mode ? item.mode : existing.mode;
        existing.age = item.age ? item.age : existing.age;
        return known->second;
    }

    std::vector<LayoutItem> m_items;
    std::map<std::pair<std::size_t, std::string>, std::size_t> m_folders;
};

} // namespace

std::expected<std::vector<LayoutItem>, std::string> parseLayout(std::string_view text)
{
    struct OpenFolder {
        std::size_t indentation;
        std::size_t item;
    };
    ItemList items;
    std::vector<OpenFolder> open;
    for (std::size_t number = 1; !text.empty(); ++number) {
        const auto end = std::min(text.find('\n'), text.size());
        LineReader reader(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        const auto indentation = reader.skipBlanks();
        if (!indentation) {
            continue;
        }
        const auto line = readLine(reader);
        if (!line) {
            return Failure("layout line " + std::to_string(number) + ": " + line.error());
        }
        while (!open.empty() && open.back().indentation >= *indentation) {
            open.pop_back();
        }
        const auto parent = open.empty() ? LayoutItem::kTop : open.back().item;
        if (parent != LayoutItem::kTop && !items.isFolder(parent)) {
            return Failure("layout line " + std::to_string(number) + ": it is indented, but no folder is above it");
        }
        open.push_back({.indentation = *indentation, .item = items.add(*line, parent)});
    }
    return items.take();
}

} // namespace TestSupport
