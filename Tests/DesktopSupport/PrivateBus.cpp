#include "Tests/DesktopSupport/PrivateBus.h"

#include <QtCore/QByteArray>
#include <QtCore/QtGlobal>
#include <fstream>

namespace DesktopTestSupport {

namespace {

std::string writtenConfiguration(const std::string& folder)
{
    auto file = folder + "/bus.conf";
    std::ofstream(file) << "<busconfig><type>session</type><listen>unix:path=" << folder
                        << "/socket</listen><policy context='default'><allow send_destination='*' eavesdrop='true'/>"
                           "<allow eavesdrop='true'/><allow own='*'/></policy></busconfig>";
    return file;
}

} // namespace

PrivateBus::PrivateBus()
    : m_daemon("dbus-daemon",
          {"--nofork", "--nopidfile", "--print-address=1",
              "--config-file=" + writtenConfiguration(m_folder.path("bus"))})
    , m_address(m_daemon.line())
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", QByteArray::fromStdString(m_address));
}

const PrivateBus& PrivateBus::ofThisProcess()
{
    static const PrivateBus bus;
    return bus;
}

} // namespace DesktopTestSupport
