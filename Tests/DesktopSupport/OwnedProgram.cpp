#include "Tests/DesktopSupport/OwnedProgram.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QStringList>
#include <csignal>
#include <sys/prctl.h>

namespace DesktopTestSupport {

namespace {

constexpr int kPatience = 10'000;
constexpr int kQuietTime = 400;

} // namespace

OwnedProgram::OwnedProgram(const std::string& program, const std::vector<std::string>& arguments,
    const std::map<std::string, std::string>& environment)
{
    QProcessEnvironment variables;
    variables.insert(QStringLiteral("PATH"), QStringLiteral("/usr/local/bin:/usr/bin:/bin"));
    for (const auto& [name, value] : environment) {
        variables.insert(QString::fromStdString(name), QString::fromStdString(value));
    }
    QStringList words;
    for (const auto& argument : arguments) {
        words.append(QString::fromStdString(argument));
    }
    m_process.setProcessEnvironment(variables);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    m_process.start(QString::fromStdString(program), words);
    m_process.waitForStarted(kPatience);
}

OwnedProgram::~OwnedProgram()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished(kPatience);
    }
}

std::string OwnedProgram::line()
{
    const QDeadlineTimer end(kPatience);
    while (!m_process.canReadLine() && !end.hasExpired()) {
        if (!m_process.waitForReadyRead(static_cast<int>(end.remainingTime()))) {
            break;
        }
    }
    auto line = m_process.canReadLine() ? m_process.readLine() : QByteArray();
    line.chop(line.endsWith('\n') ? 1 : 0);
    return line.toStdString();
}

void OwnedProgram::tell(std::string_view line)
{
    m_process.write(line.data(), static_cast<qint64>(line.size()));
    m_process.write("\n");
    m_process.waitForBytesWritten(kPatience);
}

bool OwnedProgram::ends()
{
    const bool isOver = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(kPatience);
    return isOver && m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
}

bool OwnedProgram::staysQuiet()
{
    return !m_process.canReadLine() && !m_process.waitForReadyRead(kQuietTime)
        && m_process.state() == QProcess::Running;
}

} // namespace DesktopTestSupport
