#include "Tests/CleanerCore/Export/ExportFixture.h"

#include <fstream>
#include <sstream>

namespace CleanerCore::ExportFixture {

std::string content(const std::string& path)
{
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
}

std::string golden(std::string_view name)
{
    return content(std::string(KARVELLO_SOURCE_DIR "/Tests/Golden/").append(name));
}

} // namespace CleanerCore::ExportFixture
