#include "KarvelloCLI/Program.h"

#include <string>
#include <vector>

int main(int argumentCount, char** arguments)
{
    const std::vector<std::string> words(arguments + (argumentCount > 0 ? 1 : 0), arguments + argumentCount);
    return static_cast<int>(KarvelloCLI::runProgram(words));
}
