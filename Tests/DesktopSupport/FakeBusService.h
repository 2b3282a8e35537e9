#pragma once

#include "PlatformDesktop/SessionBus.h"

#include <QtCore/QVariant>
#include <QtDBus/QDBusVirtualObject>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace DesktopTestSupport {

/// A program with a name on the private bus, within the test program but on a connection of its own. The test's event loop
/// lets it hear every call of every object that it could have, and it answers as the test says.
class FakeBusService final : public QDBusVirtualObject {
public:
    /// Nothing: it does not answer.
    using Answering = std::function<std::optional<QDBusMessage>(const QDBusMessage& call)>;

    FakeBusService(const std::string& name, Answering answering);
    ~FakeBusService() override;

    /// What it heard.
    [[nodiscard]] const std::vector<QDBusMessage>& calls() const { return m_calls; }
    [[nodiscard]] std::vector<std::string> methods() const;
    /// An answer that comes later.
    void send(const QDBusMessage& message) const { m_bus.connection().send(message); }
    void signal(
        const QString& path, const QString& interface, const QString& name, const QVariantList& arguments) const;

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    PlatformDesktop::SessionBus m_bus;
    const Answering m_answering;
    std::vector<QDBusMessage> m_calls;
};

} // namespace DesktopTestSupport
