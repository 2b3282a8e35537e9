#include "PlatformDesktop/DetachedProgram.h"

#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QStringList>
#include <algorithm>
#include <string_view>

namespace PlatformDesktop::DetachedProgram {

std::vector<std::string> foldersOf(const std::string& searchPath)
{
    std::vector<std::string> folders;
    for (std::string_view rest = searchPath; !rest.empty();) {
        const auto colon = std::min(rest.find(':'), rest.size());
        if (rest.starts_with('/')) {
            folders.emplace_back(rest.substr(0, colon));
        }
        rest.remove_prefix(std::min(colon + 1, rest.size()));
    }
    return folders;
}

bool start(const std::vector<std::string>& words, const std::vector<std::string>& folders)
{
    QStringList places;
    for (const auto& folder : folders) {
        places.append(QString::fromStdString(folder));
    }
    // Without places the library would look into those of this process.
    const bool isSearched = !words.empty() && !words.front().empty() && !words.front().contains('/');
    const bool isPlace = !words.empty() && words.front().starts_with('/');
    if (!isPlace && (!isSearched || places.isEmpty())) {
        return false;
    }
    const auto program = QStandardPaths::findExecutable(QString::fromStdString(words.front()), places);
    if (program.isEmpty()) {
        return false;
    }
    QStringList arguments;
    for (auto word = words.begin() + 1; word != words.end(); ++word) {
        arguments.append(QString::fromStdString(*word));
    }
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace PlatformDesktop::DetachedProgram
