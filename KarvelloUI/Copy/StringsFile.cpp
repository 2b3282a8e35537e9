#include "KarvelloUI/Copy/StringsFile.h"

#include "Platform/Base/Text.h"

namespace KarvelloUI {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

class StringsReader {
public:
    explicit StringsReader(std::string_view contents)
        : m_rest(contents)
    {
        take(kByteOrderMark);
    }

    std::optional<StringsEntries> entries()
    {
        StringsEntries entries;
        while (skipBlanks()) {
            if (m_rest.empty()) {
                return entries;
            }
            const auto key = quoted();
            if (!key || !takeNext("=")) {
                return std::nullopt;
            }
            auto text = skipBlanks() ? quoted() : std::nullopt;
            if (!text || !takeNext(";")) {
                return std::nullopt;
            }
            entries.insert_or_assign(*key, std::move(*text));
        }
        return std::nullopt;
    }

private:
    bool take(std::string_view token)
    {
        const bool isThere = m_rest.starts_with(token);
        m_rest.remove_prefix(isThere ? token.size() : 0);
        return isThere;
    }

    bool takeNext(std::string_view token) { return skipBlanks() && take(token); }

    /// White space and comments; false for a comment without an end.
    bool skipBlanks()
    {
        for (;;) {
            m_rest.remove_prefix(std::min(m_rest.find_first_not_of(" \t\r\n"), m_rest.size()));
            if (take("//")) {
                m_rest.remove_prefix(std::min(m_rest.find('\n'), m_rest.size()));
            } else if (take("/*")) {
                const auto end = m_rest.find("*/");
                if (end == std::string_view::npos) {
                    return false;
                }
                m_rest.remove_prefix(end + 2);
            } else {
                return true;
            }
        }
    }

    std::optional<std::string> quoted()
    {
        if (!take("\"")) {
            return std::nullopt;
        }
        std::string text;
        for (;;) {
            const auto plain = m_rest.find_first_of("\\\"");
            if (plain == std::string_view::npos) {
                return std::nullopt;
            }
            text += m_rest.substr(0, plain);
            m_rest.remove_prefix(plain);
            if (take("\"")) {
                return text;
            }
            const auto character = escaped();
            if (!character) {
                return std::nullopt;
            }
            text += *character;
        }
    }

    std::optional<char> escaped()
    {
        constexpr std::string_view escapes = "\"\\nt";
        constexpr std::string_view meanings = "\"\\\n\t";
        const auto index = m_rest.size() < 2 ? std::string_view::npos : escapes.find(m_rest[1]);
        if (index == std::string_view::npos) {
            return std::nullopt;
        }
        m_rest.remove_prefix(2);
        return meanings[index];
    }

    std::string_view m_rest;
};

} // namespace

std::optional<StringsEntries> readStringsFile(std::string_view contents)
{
    return Platform::Text::isValidUTF8(contents) ? StringsReader(contents).entries() : std::nullopt;
}

} // namespace KarvelloUI
