#pragma once

#include "PlatformDesktop/DesktopBus.h"

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>

namespace PlatformDesktop {

class BusSignal;

/// Something that the desktop's portal asks or does for its user (org.freedesktop.portal.Request). Who takes its time is
/// the user: once the portal has begun, it may take as long as it likes, but it must begin in time.
///
/// It belongs to its parent, and goes by itself after its one answer. One that goes before is taken back.
class PortalRequest final : public QObject {
public:
    enum class Outcome : std::uint8_t {
        granted,
        /// By the user.
        cancelled,
        /// By whatever else: the desktop could not do it, or the portal has gone.
        failed,
        /// There is no portal, or none that knows such a request.
        refused,
        /// The portal has not begun in time. It was told to leave it.
        late,
    };
    using Answer = std::function<void(Outcome, const QVariantMap& results)>;

    struct Call {
        QString interface;
        QString method;
        /// Without the options, which come last.
        QVariantList arguments;
        QVariantMap options;
    };

    /// `parent` does not outlive the bus.
    static void send(QObject& parent, DesktopBus& bus, Call call, std::chrono::milliseconds patience, Answer answer);

    ~PortalRequest() override;

private:
    PortalRequest(QObject& parent, Answer answer);

    void begin(DesktopBus& bus, const DesktopBus::Service& portal, Call call, std::chrono::milliseconds patience);
    /// Where the portal will answer.
    void listenAt(const QString& handle);
    void takeHandle(const QDBusMessage& reply);
    void takeResponse(const QDBusMessage& response);
    void close();
    void finish(Outcome outcome, const QVariantMap& results = {});

    Answer m_answer;
    DesktopBus::Service m_portal;
    QString m_handle;
    std::unique_ptr<BusSignal> m_response;
    bool m_isAtWork = false;
};

} // namespace PlatformDesktop
