#include "KarvelloUI/Copy/KarvelloEnglishCopyTranslations.h"

namespace KarvelloUI::KarvelloEnglishCopyTranslations {

namespace {

template <TranslationRows (*rowsOfLanguage)()>
const CopyTranslationTables* tablesOf()
{
    static const CopyTranslationTables tables(rowsOfLanguage());
    return &tables;
}

} // namespace

std::optional<TranslationRows> rows(AppLanguage language)
{
    switch (language) {
    case AppLanguage::korean:
    case AppLanguage::english:
        return std::nullopt;
    case AppLanguage::japanese:
        return japaneseRows();
    case AppLanguage::simplifiedChinese:
        return simplifiedChineseRows();
    case AppLanguage::traditionalChinese:
        return traditionalChineseRows();
    case AppLanguage::spanish:
        return spanishRows();
    case AppLanguage::french:
        return frenchRows();
    case AppLanguage::german:
        return germanRows();
    }
    return std::nullopt;
}

const CopyTranslationTables* tables(AppLanguage language)
{
    switch (language) {
    case AppLanguage::korean:
    case AppLanguage::english:
        return nullptr;
    case AppLanguage::japanese:
        return tablesOf<japaneseRows>();
    case AppLanguage::simplifiedChinese:
        return tablesOf<simplifiedChineseRows>();
    case AppLanguage::traditionalChinese:
        return tablesOf<traditionalChineseRows>();
    case AppLanguage::spanish:
        return tablesOf<spanishRows>();
    case AppLanguage::french:
        return tablesOf<frenchRows>();
    case AppLanguage::german:
        return tablesOf<germanRows>();
    }
    return nullptr;
}

std::string translate(std::string_view text, AppLanguage language)
{
    const CopyTranslationTables* const found = tables(language);
    return found != nullptr ? found->translate(text) : std::string(text);
}

std::string postProcess(std::string_view text, AppLanguage language)
{
    const CopyTranslationTables* const found = tables(language);
    return found != nullptr ? found->postProcess(text) : std::string(text);
}

} // namespace KarvelloUI::KarvelloEnglishCopyTranslations
