#pragma once

#include "KarvelloCLI/Say.h"

namespace KarvelloCLI {

/// The program speaks a language while this lives, and English after it.
class SpokenLanguage {
public:
    explicit SpokenLanguage(KarvelloUI::AppLanguage language) { speak(language); }
    ~SpokenLanguage() { speak(KarvelloUI::AppLanguage::english); }
    SpokenLanguage(const SpokenLanguage&) = delete;
    SpokenLanguage& operator=(const SpokenLanguage&) = delete;
};

} // namespace KarvelloCLI
