#pragma once

#include "KarvelloCLI/Options.h"
#include "KarvelloCLI/TextStyle.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Services/Environment.h"

#include <cstdint>
#include <stop_token>
#include <string_view>

namespace KarvelloCLI {

enum class Answer : std::uint8_t { yes, no, interrupted };

/// What a command says to the person before it acts, and the person's consent. It speaks on standard output, unless the
/// data goes there in a form for programs, or nobody would see there what a question is about: then on standard error.
class Conversation {
public:
    enum class Consent : std::uint8_t { isAsked, isGiven };

    Conversation(const CommonOptions& options, Consent consent, const Platform::FileURL& home,
        const Platform::Environment& environment);

    /// Whether somebody sits at a terminal, who sees a question and can answer it.
    [[nodiscard]] static bool isPossible();

    [[nodiscard]] const TextStyle& style() const { return m_style; }
    /// Whether what a program is to read goes elsewhere.
    [[nodiscard]] bool isOnStandardOutput() const;
    /// False if it could not be written: then nobody has seen it.
    [[nodiscard]] bool say(std::string_view text) const;
    /// Consent that was given beforehand is a yes without a question. Otherwise only "y" and "yes" are, and the words for
    /// yes of the spoken language; the end of the input is a no. What was typed before the question does not answer it.
    [[nodiscard]] Answer ask(std::string_view question, const std::stop_token& stop) const;

private:
    Consent m_consent;
    int m_descriptor;
    TextStyle m_style;
};

} // namespace KarvelloCLI
