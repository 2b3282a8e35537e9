#include "Tests/KarvelloUI/Copy/EnglishTables.h"

#include <fstream>
#include <map>
#include <stdexcept>
#include <string_view>

namespace KarvelloUI {

namespace {

std::size_t count(const std::string& text, std::string_view part)
{
    std::size_t found = 0;
    for (auto place = text.find(part); place != std::string::npos; place = text.find(part, place + part.size())) {
        ++found;
    }
    return found;
}

EnglishTables readTables()
{
    std::ifstream file(KARVELLO_SOURCE_DIR "/KarvelloUI/Copy/Translations/english.txt");
    EnglishTables tables;
    std::map<std::string, std::vector<std::string>*> sections{
        {"[exact]", &tables.keys}, {"[template]", &tables.templates}, {"[manualTemplate]", &tables.manualTemplates}};
    std::vector<std::string>* section = nullptr;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.starts_with('#')) {
            continue;
        }
        if (line.starts_with('[')) {
            section = sections.at(line);
            continue;
        }
        const auto quote = line.find('"');
        if (section == nullptr || quote == std::string::npos || line.size() < quote + 2 || !line.ends_with('"')) {
            throw std::runtime_error("english.txt: " + line);
        }
        section->push_back(line.substr(quote + 1, line.size() - quote - 2));
        if (line.starts_with("en*")) {
            tables.starredKeys.insert(section->back());
        }
    }
    return tables;
}

} // namespace

const EnglishTables& EnglishTables::read()
{
    static const EnglishTables tables = readTables();
    return tables;
}

bool cannotMatch(const std::string& pattern)
{
    return count(pattern, "\\)") > count(pattern, "\\(");
}

std::string sentenceOf(const std::string& pattern, const std::vector<std::string>& parts)
{
    std::string sentence;
    std::size_t part = 0;
    for (std::size_t place = 1; place + 1 < pattern.size(); ++place) {
        if (pattern.compare(place, 5, "(.+?)") == 0 || pattern.compare(place, 5, "(.*?)") == 0) {
            sentence += parts.at(part++);
            place += 4;
        } else if (pattern[place] == '\\') {
            ++place;
            sentence += pattern[place] == 'n' ? '\n' : pattern[place];
        } else {
            sentence += pattern[place];
        }
    }
    return sentence;
}

} // namespace KarvelloUI
