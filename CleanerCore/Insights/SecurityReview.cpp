#include "CleanerCore/Insights/SecurityReview.h"

#include "Platform/Base/ASCII.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Base/Text.h"

#include <algorithm>
#include <array>
#include <string>

namespace CleanerCore::SecurityReview {

namespace {

struct Row {
    std::string_view extension;
    std::string_view detail;
    int priority;
};

constexpr std::array<Row, 8> kRows{{
    {"mobileconfig", "Configuration profile", 5},
    {"pkg", "Installer package", 4},
    {"app", "Application bundle", 4},
    {"command", "Executable command script", 3},
    {"sh", "Shell script", 3},
    {"workflow", "Automation workflow", 3},
    {"dmg", "Disk image", 2},
    {"webloc", "Web shortcut", 1},
}};

constexpr std::string_view kSuspiciousNameDetail = "Suspicious filename pattern";
constexpr int kSuspiciousNamePriority = 1;
constexpr std::array<std::string_view, 3> kSuspiciousWords{"crack", "keygen", "patcher"};

/// Texts and sources, in which a word says nothing.
constexpr std::array<std::string_view, 14> kSafeTextExtensions{
    "txt", "md", "markdown", "json", "yaml", "yml", "plist", "swift", "js", "ts", "py", "rb", "go", "rs"};

const Row* rowFor(std::string_view lowercasedExtension)
{
    const auto* const row = std::ranges::find(kRows, lowercasedExtension, &Row::extension);
    return row == kRows.end() ? nullptr : row;
}

bool isSuspiciousWord(std::string_view word)
{
    return std::ranges::find(kSuspiciousWords, word) != kSuspiciousWords.end();
}

/// A name in lower case. It is asked for every file of a disk, and most names are short and ASCII.
class LowercasedName {
public:
    explicit LowercasedName(std::string_view name)
    {
        if (name.size() <= m_short.size() && Platform::ASCII::isASCII(name)) {
            const auto end = std::ranges::transform(name, m_short.begin(), Platform::ASCII::lowercased).out;
            m_view = std::string_view(m_short.data(), static_cast<std::size_t>(end - m_short.begin()));
        } else {
            m_long = Platform::Text::lowercased(name);
            m_view = m_long;
        }
    }
    LowercasedName(const LowercasedName&) = delete;
    LowercasedName& operator=(const LowercasedName&) = delete;
    ~LowercasedName() = default;

    [[nodiscard]] std::string_view view() const { return m_view; }

private:
    std::array<char, 256> m_short; // NOLINT(cppcoreguidelines-pro-type-member-init): only what is written is read
    std::string m_long;
    std::string_view m_view;
};

} // namespace

std::optional<std::string_view> reviewDetail(std::string_view name)
{
    const LowercasedName lowercased(name);
    const auto extension = Platform::pathExtensionOf(lowercased.view());
    if (const auto* const row = rowFor(extension)) {
        return row->detail;
    }
    if (suspiciousFilenamePattern(lowercased.view())
        && std::ranges::find(kSafeTextExtensions, extension) == kSafeTextExtensions.end()) {
        return kSuspiciousNameDetail;
    }
    return std::nullopt;
}

int reviewPriority(std::string_view name)
{
    const LowercasedName lowercased(name);
    const auto* const row = rowFor(Platform::pathExtensionOf(lowercased.view()));
    return row != nullptr ? row->priority : kSuspiciousNamePriority;
}

bool suspiciousFilenamePattern(std::string_view lowercasedName)
{
    const auto holds = [&](std::string_view word) { return lowercasedName.find(word) != std::string_view::npos; };
    if (std::ranges::none_of(kSuspiciousWords, holds)) {
        return false;
    }
    auto rest = lowercasedName;
    auto token = rest.substr(0, 0);
    while (!rest.empty()) {
        const auto* const start = rest.data();
        const auto scalar = Platform::Text::takeScalar(rest);
        if (Platform::Text::isAlphanumeric(scalar)) {
            const auto* const tokenStart = token.empty() ? start : token.data();
            token = std::string_view(tokenStart, static_cast<std::size_t>(rest.data() - tokenStart));
        } else if (isSuspiciousWord(token)) {
            return true;
        } else {
            token = {};
        }
    }
    return isSuspiciousWord(token);
}

} // namespace CleanerCore::SecurityReview
