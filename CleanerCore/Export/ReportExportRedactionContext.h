#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace CleanerCore {

/// Replaces paths, names, identifiers and texts with paths in them by tokens such as "<path:file-3>". A token is the
/// same for the same value as long as the context lives, and nothing can be worked back from it: the number only tells
/// how many values of its kind came before. One context serves one export or one write of the log, in writing order.
///
/// An empty value stays empty and spends no number. A value keeps the label that it was first seen with. Values are
/// compared as bytes and may hold any.
class ReportExportRedactionContext {
public:
    std::string path(std::string_view value, std::string_view label);
    std::string name(std::string_view value, std::string_view label);
    std::string identifier(std::string_view value, std::string_view label);
    /// A text without a path in it is returned as it is; any other is replaced whole.
    std::string freeText(std::string_view value, std::string_view label);

    /// The form that a label has in a token: lower-cased, with single hyphens in place of all that is neither letter
    /// nor digit; "item" if nothing is left.
    [[nodiscard]] static std::string sanitizedLabel(std::string_view label);
    /// Whether `freeText` would hide this text: it holds a file URL, an absolute path, or a path below a home.
    [[nodiscard]] static bool containsPath(std::string_view text);

private:
    struct Token {
        std::size_t label;
        std::size_t number;
    };
    using Table = std::unordered_map<std::string, Token>;

    std::string hidden(Table& table, std::string_view kind, std::string_view value, std::string_view label);
    std::size_t indexOfLabel(std::string_view label);

    Table m_paths;
    Table m_names;
    Table m_identifiers;
    Table m_freeTexts;
    /// Each label that was used, beside its sanitised form. An export has a handful.
    std::vector<std::pair<std::string, std::string>> m_labels;
};

} // namespace CleanerCore
