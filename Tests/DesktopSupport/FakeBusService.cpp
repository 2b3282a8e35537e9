#include "Tests/DesktopSupport/FakeBusService.h"

#include <gtest/gtest.h>

namespace DesktopTestSupport {

using PlatformDesktop::SessionBus;

FakeBusService::FakeBusService(const std::string& name, Answering answering)
    : m_answering(std::move(answering))
{
    auto connection = m_bus.connection();
    EXPECT_TRUE(connection.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath));
    constexpr unsigned kDoNotQueue = 4;
    const auto reply = m_bus.call(
        SessionBus::callOfTheBus("RequestName", {QString::fromStdString(name), QVariant::fromValue(kDoNotQueue)}),
        std::chrono::seconds(10));
    EXPECT_EQ(reply.arguments().value(0).toUInt(), 1U) << name;
}

FakeBusService::~FakeBusService()
{
    auto connection = m_bus.connection();
    connection.unregisterObject(QStringLiteral("/"));
}

std::vector<std::string> FakeBusService::methods() const
{
    std::vector<std::string> names;
    for (const auto& call : m_calls) {
        names.push_back(call.member().toStdString());
    }
    return names;
}

void FakeBusService::signal(
    const QString& path, const QString& interface, const QString& name, const QVariantList& arguments) const
{
    auto message = QDBusMessage::createSignal(path, interface, name);
    message.setArguments(arguments);
    send(message);
}

QString FakeBusService::introspect(const QString& /*path*/) const
{
    return {};
}

bool FakeBusService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    m_calls.push_back(message);
    message.setDelayedReply(true);
    if (const auto answer = m_answering(message)) {
        connection.send(*answer);
    }
    return true;
}

} // namespace DesktopTestSupport
