#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

#include <algorithm>
#include <iterator>

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

CatalogueTheme::CatalogueTheme(const std::string& name, std::vector<CatalogueSample> samples)
{
    auto& theme = registeredSamples()[name];
    std::ranges::move(samples, std::back_inserter(theme));
}

} // namespace KarvelloUI
