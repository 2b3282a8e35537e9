#include "KarvelloCLI/Terminal.h"

#include "Platform/Files/FileDescriptor.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <pty.h>
#include <sys/ioctl.h>

#include <map>
#include <string>

using namespace KarvelloCLI;
using Platform::Environment;
using Platform::FileDescriptor;

namespace {

Environment environment(std::map<std::string, std::string, std::less<>> variables)
{
    return Environment(std::move(variables));
}

struct Pty {
    explicit Pty(unsigned short columns)
    {
        winsize size{};
        size.ws_col = columns;
        int ends[2] = {-1, -1};
        EXPECT_EQ(openpty(&ends[0], &ends[1], nullptr, nullptr, &size), 0);
        host = FileDescriptor(ends[0]);
        terminal = FileDescriptor(ends[1]);
    }

    FileDescriptor host;
    FileDescriptor terminal;
};

} // namespace

TEST(Terminal, KnowsATerminalFromAFile)
{
    const Pty pty(80);
    const FileDescriptor file(open("/dev/null", O_RDONLY | O_CLOEXEC));
    const Environment environment = ::environment({{"TERM", "xterm"}});
    EXPECT_TRUE(Terminal::of(pty.terminal.get(), environment).isTerminal);
    EXPECT_TRUE(Terminal::of(pty.terminal.get(), environment).understandsEscapes);
    EXPECT_FALSE(Terminal::of(file.get(), environment).isTerminal);
    EXPECT_FALSE(Terminal::of(-1, environment).isTerminal);
}

TEST(Terminal, ADumbTerminalGetsNoEscapes)
{
    const Pty pty(80);
    EXPECT_FALSE(Terminal::of(pty.terminal.get(), environment({{"TERM", "dumb"}})).understandsEscapes);
    EXPECT_FALSE(Terminal::of(pty.terminal.get(), environment({})).understandsEscapes);
}

TEST(Terminal, IsAsWideAsItsWindow)
{
    EXPECT_EQ(terminalColumns(Pty(133).terminal.get(), environment({{"COLUMNS", "77"}})), 133U);
    EXPECT_EQ(terminalColumns(Pty(0).terminal.get(), environment({{"COLUMNS", "77"}})), 77U);
    EXPECT_EQ(terminalColumns(Pty(12).terminal.get(), environment({})), 40U) << "no narrower than a table can be";
}

TEST(Terminal, WithoutOneTheVariableDecidesAndThenADefault)
{
    EXPECT_EQ(terminalColumns(-1, environment({{"COLUMNS", "120"}})), 120U);
    EXPECT_EQ(terminalColumns(-1, environment({})), 100U);
    for (const char* const nonsense : {"wide", "0", "-5", "80x", "99999999999999999999999"}) {
        EXPECT_EQ(terminalColumns(-1, environment({{"COLUMNS", nonsense}})), 100U) << nonsense;
    }
}

TEST(Terminal, ColoursFollowTheChoiceAndTheVariable)
{
    const Terminal terminal{.isTerminal = true, .understandsEscapes = true};
    const Terminal file;
    EXPECT_TRUE(usesColor(When::automatic, terminal, environment({})));
    EXPECT_FALSE(usesColor(When::automatic, file, environment({})));
    EXPECT_FALSE(usesColor(When::automatic, terminal, environment({{"NO_COLOR", "1"}})));
    EXPECT_TRUE(usesColor(When::automatic, terminal, environment({{"NO_COLOR", ""}}))) << "empty counts as not set";
    EXPECT_TRUE(usesColor(When::always, file, environment({{"NO_COLOR", "1"}})));
    EXPECT_FALSE(usesColor(When::never, terminal, environment({})));
}

TEST(Terminal, UTF8IsWhatTheFirstLocaleThatIsSetSays)
{
    EXPECT_TRUE(usesUTF8(environment({{"LANG", "de_DE.UTF-8"}})));
    EXPECT_TRUE(usesUTF8(environment({{"LANG", "C"}, {"LC_CTYPE", "C.utf8"}})));
    EXPECT_TRUE(usesUTF8(environment({{"LC_ALL", ""}, {"LC_CTYPE", "en_US.Utf-8"}}))) << "an empty one is not set";
    EXPECT_FALSE(usesUTF8(environment({{"LANG", "C.UTF-8"}, {"LC_ALL", "POSIX"}})));
    EXPECT_FALSE(usesUTF8(environment({{"LANG", "de_DE.ISO-8859-1"}})));
    EXPECT_FALSE(usesUTF8(environment({})));
}
