#pragma once

#include "Tests/DesktopSupport/FakeBusService.h"

#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusObjectPath>
#include <utility>

namespace PlatformDesktopTests {

/// A portal whose requests begin at once; how they end, the test says.
class FakePortal {
public:
    using Answering = DesktopTestSupport::FakeBusService::Answering;

    explicit FakePortal(Answering answering = beginning())
        : m_service("org.freedesktop.portal.Desktop", std::move(answering))
    {
    }

    static Answering beginning()
    {
        return [](const QDBusMessage& call) {
            return call.member() == QLatin1String("Close")
                ? call.createReply()
                : call.createReply(QVariant::fromValue(QDBusObjectPath(handleOf(call))));
        };
    }
    /// One that has no such request.
    static Answering refusing()
    {
        return [](const QDBusMessage& call) {
            return call.createErrorReply(QDBusError::UnknownMethod, QStringLiteral("<b>no</b>"));
        };
    }

    static QVariantMap optionsOf(const QDBusMessage& call)
    {
        return qdbus_cast<QVariantMap>(call.arguments().constLast());
    }
    static QString handleOf(const QDBusMessage& call)
    {
        auto sender = call.service();
        sender.remove(0, 1).replace(QLatin1Char('.'), QLatin1Char('_'));
        const auto token = optionsOf(call).value(QStringLiteral("handle_token")).toString();
        return QStringLiteral("/org/freedesktop/portal/desktop/request/") + sender + QLatin1Char('/') + token;
    }

    void respond(const QString& handle, const QVariantList& arguments) const
    {
        respondAs(m_service, handle, arguments);
    }
    void respond(unsigned response, const QVariantMap& results = {}) const
    {
        respond(handleOf(m_service.calls().back()), {QVariant::fromValue(response), results});
    }
    static void respondAs(
        const DesktopTestSupport::FakeBusService& service, const QString& handle, const QVariantList& arguments)
    {
        service.signal(handle, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"), arguments);
    }

    [[nodiscard]] const std::vector<QDBusMessage>& calls() const { return m_service.calls(); }
    [[nodiscard]] std::vector<std::string> methods() const { return m_service.methods(); }
    [[nodiscard]] bool isAsked() const { return !m_service.calls().empty(); }

private:
    DesktopTestSupport::FakeBusService m_service;
};

} // namespace PlatformDesktopTests
