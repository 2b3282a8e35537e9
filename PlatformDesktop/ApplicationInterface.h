#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtDBus/QDBusAbstractAdaptor>
#include <functional>
#include <optional>

namespace PlatformDesktop {

/// org.freedesktop.Application on the bus: its methods have the names that they have there.
class ApplicationInterface final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    using Received = std::function<void(const std::optional<QString>& action, const QVariantMap& platformData)>;

    ApplicationInterface(QObject* object, Received received);

public Q_SLOTS:
    // NOLINTBEGIN(readability-identifier-naming)
    void Activate(const QVariantMap& platformData);
    /// This application opens no files: it comes to the front.
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& action, const QVariantList& parameter, const QVariantMap& platformData);
    // NOLINTEND(readability-identifier-naming)

private:
    const Received m_received;
};

} // namespace PlatformDesktop
