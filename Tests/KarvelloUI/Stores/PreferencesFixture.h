#pragma once

#include "Platform/Files/PosixFileManager.h"
#include "Platform/Services/FileUserDefaults.h"
#include "Tests/Support/FailingUserDefaults.h"
#include "Tests/Support/TemporaryTree.h"

#include <gtest/gtest.h>

namespace StoresTests {

/// Stored preferences of a test's own, with saves that can be let fail.
class PreferencesTest : public testing::Test {
protected:
    TestSupport::TemporaryTree m_tree;
    Platform::PosixFileManager m_files;
    Platform::FileUserDefaults m_file{m_files, m_tree.url("Karvello/preferences.json")};
    TestSupport::FailingUserDefaults m_defaults{m_file};
};

} // namespace StoresTests
