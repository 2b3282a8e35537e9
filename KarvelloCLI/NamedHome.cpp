#include "KarvelloCLI/NamedHome.h"

#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/TerminalText.h"
#include "KarvelloCLI/WorkingDirectory.h"

namespace KarvelloCLI {

using Platform::FileURL;

NamedHome NamedHome::of(const std::optional<std::string>& name, const FileURL& workingDirectory, const FileURL& ownHome,
    const Platform::FileManager& fileManager)
{
    NamedHome home;
    home.named = name ? absoluteFolder(*name, workingDirectory) : ownHome;
    home.real = FileURL::folder(fileManager.resolvingSymbolicLinks(home.named).path());
    home.isOwn = home.real.path() == fileManager.resolvingSymbolicLinks(ownHome).path();
    return home;
}

Platform::Environment NamedHome::environment(const Platform::Environment& ofThisProcess) const
{
    return isOwn ? ofThisProcess : Platform::Environment{};
}

std::string NamedHome::absence() const
{
    return say("There is no home folder at “{}”.", TerminalText(named.path()).string());
}

} // namespace KarvelloCLI
