#include "PlatformDesktop/FreedesktopFileViewer.h"

#include "PlatformDesktop/DetachedProgram.h"
#include "PlatformDesktop/PortalRequest.h"

#include <QtCore/QStringList>
#include <QtDBus/QDBusUnixFileDescriptor>
#include <utility>

namespace PlatformDesktop {

using Platform::FileURL;

FreedesktopFileViewer::Settings FreedesktopFileViewer::Settings::current(const Platform::Environment& environment)
{
    return {.programFolders = DetachedProgram::foldersOf(environment.value("PATH").value_or(""))};
}

FreedesktopFileViewer::FreedesktopFileViewer(std::shared_ptr<DesktopBus> bus, Settings settings)
    : m_bus(std::move(bus))
    , m_settings(std::move(settings))
{
}

void FreedesktopFileViewer::select(const FileURL& item, Answer answer)
{
    askManager(QStringLiteral("ShowItems"),
        {.item = item,
            .kind = ShownItemKind::any,
            .folder = item.deletingLastPathComponent(),
            .answer = std::move(answer)});
}

void FreedesktopFileViewer::open(const FileURL& folder, Answer answer)
{
    if (!holdShownItem(folder, ShownItemKind::folder).isOpen()) {
        QMetaObject::invokeMethod(&m_context, [answer = std::move(answer)] { answer(false); }, Qt::QueuedConnection);
        return;
    }
    const auto url = FileURL::folder(folder.path());
    askManager(QStringLiteral("ShowFolders"),
        {.item = url, .kind = ShownItemKind::folder, .folder = url, .answer = std::move(answer)});
}

void FreedesktopFileViewer::askManager(const QString& method, Request request)
{
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"), QStringLiteral("org.freedesktop.FileManager1"), method);
    message.setArguments({QStringList{QString::fromStdString(request.item.absoluteString())}, QString()});
    m_bus->call(&m_context, message, m_settings.patience, SessionBus::AbsentService::isStarted,
        [this, request = std::move(request)](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ReplyMessage || SessionBus::isLate(reply)) {
                request.answer(reply.type() == QDBusMessage::ReplyMessage);
            } else {
                askPortal(request);
            }
        });
}

void FreedesktopFileViewer::askPortal(Request request)
{
    const auto item = holdShownItem(request.item, request.kind);
    if (!item.isOpen()) {
        startProgram(request);
        return;
    }
    PortalRequest::send(m_context, *m_bus,
        {.interface = QStringLiteral("org.freedesktop.portal.OpenURI"),
            .method = QStringLiteral("OpenDirectory"),
            .arguments = {QString(), QVariant::fromValue(QDBusUnixFileDescriptor(item.get()))},
            .options = {}},
        m_settings.patience, [this, request = std::move(request)](PortalRequest::Outcome outcome, const QVariantMap&) {
            switch (outcome) {
            case PortalRequest::Outcome::granted:
            case PortalRequest::Outcome::cancelled:
                request.answer(true);
                break;
            case PortalRequest::Outcome::late:
                request.answer(false);
                break;
            case PortalRequest::Outcome::failed:
            case PortalRequest::Outcome::refused:
                startProgram(request);
            }
        });
}

void FreedesktopFileViewer::startProgram(const Request& request) const
{
    // Nothing but a folder, whoever may have put something else there: the slash behind the name says so, too.
    const auto folder = FileURL::folder(request.folder.path());
    request.answer(holdShownItem(folder, ShownItemKind::folder).isOpen()
        && DetachedProgram::start({"xdg-open", folder.absoluteString()}, m_settings.programFolders));
}

} // namespace PlatformDesktop
