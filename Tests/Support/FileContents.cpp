#include "Tests/Support/FileContents.h"

#include <fstream>
#include <iterator>

namespace TestSupport {

std::string contentsOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string golden(std::string_view name)
{
    return contentsOf(std::string(KARVELLO_SOURCE_DIR "/Tests/Golden/").append(name));
}

} // namespace TestSupport
