#include "Tests/KarvelloUI/Copy/EnglishWords.h"

#include "Platform/Base/ASCII.h"

#include <algorithm>
#include <set>

namespace KarvelloUI {

namespace {

using Words = std::set<std::string_view>;

/// What stays as it is in every language: names, file-like things, units, and what the samples bring along.
const Words kNames{"Karvello", "Apple", "Mac", "macOS", "iOS", "iPhone", "iPad", "iCloud", "Safari", "Finder", "Xcode",
    "App", "Store", "Account", "Web", "Swift", "Pods", "Turbo", "Bundle", "CPU", "JSON", "CSV", "OK", "ID", "KB",
    "DerivedData", "CoreSimulator", "DeviceSupport", "Library", "Caches", "Logs", "Devices", "data", "build", "dist",
    "target", "com", "group", "example", "ENOSPC"};

/// Words that an English sentence can hardly do without, and that are no words of Spanish, French or German.
const Words kEnglishOnly{"and", "are", "be", "before", "by", "can", "failed", "files", "for", "from", "is", "it",
    "items", "moved", "not", "of", "or", "other", "reviewed", "selected", "the", "their", "them", "this", "to", "were",
    "when", "will", "with", "you", "your"};

bool isLetter(char byte)
{
    return Platform::ASCII::lowercased(byte) >= 'a' && Platform::ASCII::lowercased(byte) <= 'z';
}

bool isInnerByte(char byte)
{
    return isLetter(byte) || byte == '\'' || static_cast<unsigned char>(byte) >= 0x80;
}

} // namespace

std::vector<std::string_view> englishWordsIn(std::string_view text, AppLanguage language)
{
    const bool isLatin =
        language == AppLanguage::spanish || language == AppLanguage::french || language == AppLanguage::german;
    std::vector<std::string_view> found;
    for (std::size_t start = 0; start < text.size();) {
        std::size_t end = start;
        while (end < text.size() && (isLatin ? isInnerByte(text[end]) : isLetter(text[end]))) {
            ++end;
        }
        const std::string_view word = text.substr(start, end - start);
        if (isLatin ? kEnglishOnly.contains(word) : word.size() > 1 && !kNames.contains(word)) {
            found.push_back(word);
        }
        start = std::max(end, start + 1);
    }
    return found;
}

} // namespace KarvelloUI
