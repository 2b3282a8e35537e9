#pragma once

#include <set>
#include <string>
#include <vector>

namespace KarvelloUI {

/// The English side of the tables, as `Translations/english.txt` has it.
struct EnglishTables {
    std::vector<std::string> keys;
    std::set<std::string> starredKeys;
    std::vector<std::string> templates;
    std::vector<std::string> manualTemplates;

    static const EnglishTables& read();
};

/// Whether a pattern waits for a parenthesis that no sentence has.
[[nodiscard]] bool cannotMatch(const std::string& pattern);

/// The sentence that a pattern of the tables stands for, with the given parts for its groups, in their order.
[[nodiscard]] std::string sentenceOf(const std::string& pattern, const std::vector<std::string>& parts);

} // namespace KarvelloUI
