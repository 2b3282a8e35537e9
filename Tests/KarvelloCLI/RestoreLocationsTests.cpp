#include "KarvelloCLI/RestoreLocations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace KarvelloCLI;
using CleanerCore::CleanedItem;
using CleanerCore::ScanLocation;
using Platform::FileURL;
using testing::ElementsAre;

namespace {

ScanLocation location(const std::string& root)
{
    ScanLocation::Fields fields;
    fields.rootURL = FileURL::folder(root);
    return ScanLocation(fields);
}

CleanedItem itemAt(const std::string& path)
{
    CleanerCore::CleanupCandidate::Fields fields;
    fields.url = FileURL(path);
    CleanedItem item;
    item.candidate = CleanerCore::CleanupCandidate(fields);
    return item;
}

std::vector<std::string> rootsFor(const std::vector<std::string>& items, const std::vector<std::string>& known)
{
    std::vector<CleanedItem> cleaned;
    for (const std::string& path : items) {
        cleaned.push_back(itemAt(path));
    }
    std::vector<ScanLocation> locations;
    for (const std::string& root : known) {
        locations.push_back(location(root));
    }
    std::vector<std::string> roots;
    for (const ScanLocation& each : restoreLocations(cleaned, locations)) {
        roots.push_back(each.rootURL.path());
    }
    return roots;
}

} // namespace

TEST(RestoreLocations, TheDeepestKnownLocationHoldsAnItem)
{
    EXPECT_THAT(rootsFor({"/h/.cache/pip/http/a"}, {"/h/.cache", "/h/.cache/pip/http", "/h/.cache/pip"}),
        ElementsAre("/h/.cache/pip/http"));
}

TEST(RestoreLocations, WhatNoLocationHoldsHasItsFolder)
{
    EXPECT_THAT(rootsFor({"/h/Downloads/x"}, {"/h/.cache"}), ElementsAre("/h/Downloads"));
}

TEST(RestoreLocations, ALocationDoesNotHoldItselfNorItsNamesake)
{
    EXPECT_THAT(
        rootsFor({"/h/.cache/pip", "/h/.cache/pip2/x"}, {"/h/.cache/pip"}), ElementsAre("/h/.cache", "/h/.cache/pip2"));
}

TEST(RestoreLocations, EachIsListedOnce)
{
    EXPECT_THAT(rootsFor({"/h/.cache/a", "/h/.cache/b", "/h/D/x", "/h/D/y"}, {"/h/.cache", "/h/.cache"}),
        ElementsAre("/h/.cache", "/h/D"));
}
