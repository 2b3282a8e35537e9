#pragma once

#include "KarvelloUI/Copy/KarvelloCopy.h"

namespace KarvelloUI {

inline constexpr KarvelloCopy kEnglish{AppLanguage::english};
inline constexpr KarvelloCopy kKorean{AppLanguage::korean};
inline constexpr KarvelloCopy kGerman{AppLanguage::german};
inline constexpr KarvelloCopy kJapanese{AppLanguage::japanese};

} // namespace KarvelloUI
