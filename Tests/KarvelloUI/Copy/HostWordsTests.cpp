#include "Platform/Base/ASCII.h"
#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>

namespace KarvelloUI {
namespace {

namespace fs = std::filesystem;

/// Names of the other host, in the words of all eight languages.
constexpr std::array<std::string_view, 37> kOtherHost{"macOS", "Finder", "访达", "System Settings", "시스템 설정 >",
    "システム設定 >", "“系统设置", "「系統設定", "Ajustes del Sistema", "Réglages Système", "Systemeinstellungen >",
    "Full Disk Access", "전체 디스크", "フルディスクアクセス", "完全磁盘", "完全取用磁碟", "Acceso total al disco",
    "Accès complet au disque", "Festplattenvollzugriff", "Files & Folders", "파일 및 폴더", "ファイルとフォルダ",
    "文件与文件夹", "檔案與檔案夾", "Archivos y carpetas", "Fichiers et dossiers", "Dateien & Ordner", "Library",
    "라이브러리", "ライブラリ", "资源库", "資源庫", "Biblioteca", "Bibliothèque", "Activity Monitor", "security-scoped",
    "Security-scoped"};

/// What of the other host a text names, or nothing. "Mac" is a word of its own.
std::string otherHostIn(const std::string& text)
{
    static const std::regex mac("(^|[^A-Za-z])Mac([^A-Za-z]|$)");
    for (const std::string_view name : kOtherHost) {
        if (text.find(name) != std::string::npos) {
            return std::string(name);
        }
    }
    return std::regex_search(text, mac) ? "Mac" : "";
}

std::string contentsOf(const fs::path& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The sources of what the application shows, the catalogue aside.
const std::string& applicationSources()
{
    static const std::string sources = [] {
        std::string all;
        for (const char* const folder : {"KarvelloUI/Advisors", "KarvelloUI/Dashboard", "KarvelloUI/MenuBar",
                 "KarvelloUI/Screens", "KarvelloUI/Sessions", "KarvelloUI/Shell", "KarvelloUI/Stores", "KarvelloMac"}) {
            for (const auto& entry : fs::recursive_directory_iterator(fs::path(KARVELLO_SOURCE_DIR) / folder)) {
                if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h") {
                    all += contentsOf(entry.path());
                }
            }
        }
        return all;
    }();
    return sources;
}

bool isNameByte(char byte)
{
    const char letter = Platform::ASCII::lowercased(byte);
    return (letter >= 'a' && letter <= 'z') || Platform::ASCII::isDigit(byte) || byte == '_';
}

/// Whether the application asks for the text anywhere.
bool isShown(const CatalogueSample& sample)
{
    const std::string& sources = applicationSources();
    const std::string_view member = sample.member();
    for (auto at = sources.find(member); at != std::string::npos; at = sources.find(member, at + 1)) {
        if (!isNameByte(sources[at - 1]) && !isNameByte(sources[at + member.size()])) {
            return true;
        }
    }
    return false;
}

/// The guide to the storage of phones is about another machine, and so are the folders of tools that only that host has.
bool speaksOfAnotherMachine(const CatalogueSample& sample)
{
    return sample.name.starts_with("iOS") || sample.name.starts_with("developerCleanupAdvisory simulator");
}

TEST(HostWords, NoTextThatTheApplicationShowsNamesTheOtherHost)
{
    std::size_t shown = 0;
    for (const auto& [theme, samples] : catalogueSamples()) {
        for (const CatalogueSample& sample : samples) {
            if (speaksOfAnotherMachine(sample) || !isShown(sample)) {
                continue;
            }
            ++shown;
            for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
                const std::string text = sample.text({{{language, CopyHost::linuxDesktop}}});
                EXPECT_EQ(otherHostIn(text), "") << sample.name << ": " << text;
            }
        }
    }
    EXPECT_GT(shown, 300U);
}

TEST(HostWords, KnowsTheNamesOfTheOtherHost)
{
    EXPECT_EQ(otherHostIn("Show in Finder"), "Finder");
    EXPECT_EQ(otherHostIn("Limpieza inteligente del Mac"), "Mac");
    EXPECT_EQ(otherHostIn("Machine"), "");
    const KarvelloCopy mac{AppLanguage::english};
    EXPECT_EQ(otherHostIn(mac.finderRevealFailedTitle()), "Finder");
    EXPECT_EQ(otherHostIn(mac.homeAccessPanelMessage()), "Library");
}

TEST(HostWords, TheTextsOfTheScreensNameNone)
{
    std::size_t texts = 0;
    for (const auto& entry :
        fs::directory_iterator(fs::path(KARVELLO_SOURCE_DIR) / "KarvelloUI" / "Dashboard" / "Texts")) {
        if (entry.path().extension() != ".txt") {
            continue;
        }
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            texts += line.starts_with("en:") ? 1U : 0U;
            if (!line.starts_with("#")) {
                EXPECT_EQ(otherHostIn(line), "") << entry.path().filename() << ": " << line;
            }
        }
    }
    EXPECT_GT(texts, 80U);
}

TEST(HostWords, TheSentencesThatScreensLookUpNameNone)
{
    // text("한국어", "English"), whose pieces may stand on several lines.
    static const std::regex lookUp(R"re(\btext\(\s*((?:"(?:[^"\\]|\\.)*"\s*)+),\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\))re");
    static const std::regex seam("\"\\s*\"");
    std::size_t sentences = 0;
    const std::string& sources = applicationSources();
    for (std::sregex_iterator match(sources.begin(), sources.end(), lookUp), end; match != end; ++match) {
        ++sentences;
        const std::string korean = std::regex_replace((*match)[1].str(), seam, "");
        std::string english = std::regex_replace((*match)[2].str(), seam, "");
        EXPECT_EQ(otherHostIn(korean), "") << korean;
        if (english.empty()) {
            continue; // a sentence that only Korean has
        }
        english = english.substr(1, english.rfind('"') - 1);
        for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
            const std::string text = localizedEnglishCopy(language, english);
            EXPECT_EQ(otherHostIn(text), "") << text;
        }
    }
    EXPECT_GT(sentences, 150U);
}

TEST(HostWords, TheOtherHostKeepsItsOwn)
{
    const KarvelloCopy mac{AppLanguage::english};
    const KarvelloCopy linuxDesktop{{{AppLanguage::english, CopyHost::linuxDesktop}}};
    EXPECT_EQ(mac.finderRevealFailedTitle(), "Could Not Open in Finder");
    EXPECT_EQ(linuxDesktop.finderRevealFailedTitle(), "Could Not Open in the File Manager");
    EXPECT_EQ(mac.auditSourceName(CleanerCore::CleanupAuditSource::macInsights), "Mac insights");
    EXPECT_EQ(linuxDesktop.auditSourceName(CleanerCore::CleanupAuditSource::macInsights), "Storage insights");
    EXPECT_NE(mac, linuxDesktop);
}

} // namespace
} // namespace KarvelloUI
