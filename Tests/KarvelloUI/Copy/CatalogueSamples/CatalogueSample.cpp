#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {

namespace {

CatalogueSamples& registeredSamples()
{
    static CatalogueSamples samples;
    return samples;
}

} // namespace

const CatalogueSamples& catalogueSamples()
{
    return registeredSamples();
}

CatalogueTheme::CatalogueTheme(std::string name, std::initializer_list<CatalogueSample> samples)
{
    registeredSamples().try_emplace(std::move(name), samples);
}

} // namespace KarvelloUI
