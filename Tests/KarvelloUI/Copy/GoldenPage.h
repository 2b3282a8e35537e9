#pragma once

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace KarvelloUI {

/// That a file holds a page; scripts/write-copy-page writes it first.
inline void expectGolden(const std::string& page, const char* path)
{
    if (std::getenv("KARVELLO_WRITE_COPY_PAGE") != nullptr) {
        std::ofstream(path) << page;
    }
    std::ifstream file(path);
    EXPECT_EQ(page, std::string(std::istreambuf_iterator<char>(file), {})) << "scripts/write-copy-page writes it anew";
}

} // namespace KarvelloUI
