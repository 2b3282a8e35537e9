#include "Tests/CleanerCore/Safety/NoTouchReference.h"

#include "CleanerCore/Safety/LinuxNoTouchTable.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Base/Text.h"

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace TestSupport {

namespace {

using CleanerCore::NoTouchEffect;
using CleanerCore::NoTouchRow;
using Components = std::vector<std::string>;

const std::set<std::string> kFileProviders{"fileprovider", "file provider"};
const std::set<std::string> kImages{
    "rootfs.img", "main.img", "data.img", "storage.img", "userdata.img", "system.img", "disk.img", "vm.img"};
const std::set<std::string> kCacheFolders{
    "cache", "code cache", "gpucache", "dawngraphitecache", "dawnwebgpucache", "shadercache", "grshadercache"};

bool isOrBegins(const std::string& text, const std::string& name)
{
    return text == name || text.starts_with(name + ".");
}

bool containsAppleContainer(const Components& c)
{
    for (std::size_t i = 0; i + 2 < c.size(); ++i) {
        if (c[i] != "library") {
            continue;
        }
        if (c[i + 1] == "containers" && isOrBegins(c[i + 2], "com.apple")) {
            return true;
        }
        if (c[i + 1] == "group containers"
            && (isOrBegins(c[i + 2], "group.com.apple") || isOrBegins(c[i + 2], "com.apple"))) {
            return true;
        }
    }
    return false;
}

bool containsSensitiveLibraryPath(const Components& c)
{
    for (std::size_t i = 0; i + 1 < c.size(); ++i) {
        if (c[i] != "library") {
            continue;
        }
        const auto& next = c[i + 1];
        const auto* const afterNext = i + 2 < c.size() ? &c[i + 2] : nullptr;
        if (next == "keychains" || next == "mail" || next == "messages" || next == "cloudstorage") {
            return true;
        }
        if (next == "mobile documents") {
            return afterNext == nullptr || *afterNext != ".trash";
        }
        if (kFileProviders.contains(next)) {
            return true;
        }
        if (next == "application support" && afterNext != nullptr
            && (*afterNext == "clouddocs" || kFileProviders.contains(*afterNext))) {
            return true;
        }
    }
    return false;
}

bool containsProtectedBundleOrImageComponent(const Components& c)
{
    return std::any_of(c.begin(), c.end(), [](const std::string& name) {
        return name.ends_with(".photoslibrary") || name.ends_with(".musiclibrary") || name.ends_with(".tvlibrary")
            || name.ends_with(".backup") || name.ends_with(".origin") || kImages.contains(name);
    });
}

std::vector<std::string> split(const std::string& text, char separator)
{
    std::vector<std::string> parts(1);
    for (const char byte : text) {
        if (byte == separator) {
            parts.emplace_back();
        } else {
            parts.back() += byte;
        }
    }
    return parts;
}

/// A row as a regular expression over a whole component list, one for each component.
struct ReadRow {
    bool isBelowHome = false;
    std::vector<std::regex> components;
    NoTouchEffect effect = NoTouchEffect::refuses;
};

std::regex readAlternatives(const std::string& alternatives)
{
    std::string expression = "(";
    for (std::size_t index = 0; index < alternatives.size(); ++index) {
        const char byte = alternatives[index];
        if (alternatives.compare(index, 8, "<digits>") == 0) {
            expression += "[0-9]+";
            index += 7;
        } else if (alternatives.compare(index, 10, "<6 digits>") == 0) {
            expression += "[0-9]{6}";
            index += 9;
        } else if (byte == '*') {
            expression += "[^/]*";
        } else if (byte == '|') {
            expression += ")|(";
        } else if (std::string_view(".()+").find(byte) != std::string_view::npos) {
            expression += std::string("\\") + byte;
        } else {
            expression += byte;
        }
    }
    return std::regex(expression + ")");
}

const std::vector<ReadRow>& linuxRows()
{
    static const std::vector<ReadRow> rows = [] {
        std::vector<ReadRow> read;
        for (const NoTouchRow& row : CleanerCore::kLinuxNoTouchTable) {
            ReadRow one;
            one.effect = row.effect;
            std::string pattern(row.pattern);
            if (pattern.starts_with("~/")) {
                one.isBelowHome = true;
                pattern.erase(0, 2);
            }
            for (const auto& alternatives : split(pattern, '/')) {
                one.components.push_back(readAlternatives(alternatives));
            }
            read.push_back(std::move(one));
        }
        return read;
    }();
    return rows;
}

bool isHome(const Components& c, std::size_t length)
{
    return (length == 2 && c[1] == "root") || (length == 3 && (c[1] == "home" || c[1] == "users"))
        || (length == 4 && c[1] == "var" && c[2] == "home");
}

/// Whether the row fits the components that end at `end`, counting it.
bool fitsAt(const ReadRow& row, const Components& c, std::size_t end)
{
    const auto length = row.components.size();
    if (end < length || (row.isBelowHome && !isHome(c, end + 1 - length))) {
        return false;
    }
    for (std::size_t index = 0; index < length; ++index) {
        // Regular expressions are slow, and the same names come again and again.
        static std::map<std::pair<const std::regex*, std::string>, bool> known;
        const auto& component = c[end + 1 - length + index];
        auto [found, isNew] = known.try_emplace({&row.components[index], component}, false);
        if (isNew) {
            found->second = std::regex_match(component, row.components[index]);
        }
        if (!found->second) {
            return false;
        }
    }
    return true;
}

std::set<std::size_t> cacheLevels(NoTouchEffect effect)
{
    switch (effect) {
    case NoTouchEffect::refusesButForCachesOneBelow:
        return {1};
    case NoTouchEffect::refusesButForCachesOneOrTwoBelow:
        return {1, 2};
    case NoTouchEffect::refusesButForCachesTwoBelow:
        return {2};
    case NoTouchEffect::refusesButForCachesThreeBelow:
    case NoTouchEffect::refusesButForSnapCaches:
        return {3};
    default:
        return {};
    }
}

bool isProfileAt(const Components& c, std::size_t end)
{
    return std::any_of(linuxRows().begin(), linuxRows().end(),
        [&](const ReadRow& row) { return !cacheLevels(row.effect).empty() && fitsAt(row, c, end); });
}

/// The first cache folder below the profile that ends at `end`, if nothing in between stands in its way.
bool hasCacheBelow(const Components& c, std::size_t end, NoTouchEffect effect)
{
    for (const auto level : cacheLevels(effect)) {
        if (end + level >= c.size()) {
            return false;
        }
        const auto& name = c[end + level];
        const bool isCache = effect == NoTouchEffect::refusesButForSnapCaches
            ? name == ".cache" && c[end + level - 1] == "common"
            : kCacheFolders.contains(name);
        if (isCache) {
            for (auto between = end + 1; between < end + level; ++between) {
                if (isProfileAt(c, between)) {
                    return false;
                }
            }
            return true;
        }
    }
    return false;
}

bool hasLibraryCachesAbove(const Components& c, std::size_t index)
{
    for (std::size_t i = 0; i + 1 < index; ++i) {
        if (c[i] == "library" && c[i + 1] == "caches") {
            return true;
        }
    }
    return false;
}

bool isRefusedByLinuxRow(const Components& c)
{
    for (std::size_t end = 1; end < c.size(); ++end) {
        for (const auto& row : linuxRows()) {
            if (!fitsAt(row, c, end)) {
                continue;
            }
            switch (row.effect) {
            case NoTouchEffect::allowsDatabasesBelow:
                break;
            case NoTouchEffect::refusesDatabase:
                if (!hasLibraryCachesAbove(c, end)) {
                    return true;
                }
                break;
            case NoTouchEffect::refuses:
                return true;
            default:
                if (!hasCacheBelow(c, end, row.effect)) {
                    return true;
                }
            }
        }
    }
    return false;
}

} // namespace

bool isNoTouchByReference(std::string_view path)
{
    const Platform::FileURL url(path);
    Components components;
    for (const auto component : url.pathComponents()) {
        components.push_back(Platform::Text::lowercased(component));
    }
    return containsAppleContainer(components) || containsSensitiveLibraryPath(components)
        || containsProtectedBundleOrImageComponent(components) || isRefusedByLinuxRow(components);
}

} // namespace TestSupport
