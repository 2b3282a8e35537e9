#include "PlatformDesktop/PortalFileDialogs.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <utility>

namespace PlatformDesktop {

using Platform::DirectoryHint;
using Platform::FileURL;

namespace {

/// As portals want the names of files: all their bytes, and a NUL.
QByteArray pathBytes(const FileURL& folder)
{
    auto bytes = QByteArray::fromStdString(folder.path());
    return bytes.append('\0');
}

std::optional<FileURL> pickedIn(const QVariantMap& results, DirectoryHint hint)
{
    const auto uris = results.value(QStringLiteral("uris"));
    if (uris.metaType() != QMetaType::fromType<QStringList>() || uris.toStringList().size() != 1) {
        return std::nullopt;
    }
    auto url = FileURL::fromAbsoluteString(uris.toStringList().constFirst().toStdString());
    return url ? std::optional(std::move(*url).withHint(hint)) : std::nullopt;
}

} // namespace

PortalFileDialogs::PortalFileDialogs(
    std::shared_ptr<DesktopBus> bus, std::unique_ptr<Platform::FileDialogs> fallback, Settings settings)
    : m_bus(std::move(bus))
    , m_fallback(std::move(fallback))
    , m_settings(settings)
{
}

void PortalFileDialogs::chooseFolder(FolderRequest request, Answer answer)
{
    const QVariantMap options{{QStringLiteral("directory"), true},
        {QStringLiteral("accept_label"), QString::fromStdString(request.prompt)},
        {QStringLiteral("current_folder"), pathBytes(request.directory)}};
    const auto title = request.message;
    ask(
        QStringLiteral("OpenFile"), title, options, DirectoryHint::isFolder,
        [request = std::move(request)](
            Platform::FileDialogs& fallback, Answer picked) { fallback.chooseFolder(request, std::move(picked)); },
        std::move(answer));
}

void PortalFileDialogs::chooseDestination(SaveRequest request, Answer answer)
{
    const QVariantMap options{{QStringLiteral("current_name"), QString::fromStdString(request.suggestedName)},
        {QStringLiteral("current_folder"), pathBytes(request.directory)}};
    const auto title = request.message;
    ask(
        QStringLiteral("SaveFile"), title, options, DirectoryHint::isFile,
        [request = std::move(request)](
            Platform::FileDialogs& fallback, Answer picked) { fallback.chooseDestination(request, std::move(picked)); },
        std::move(answer));
}

PortalFileDialogs::Answer PortalFileDialogs::ending(Answer answer)
{
    return [this, answer = std::move(answer)](std::optional<FileURL> picked) {
        QMetaObject::invokeMethod(
            &m_context,
            [this, answer, picked = std::move(picked)] {
                m_isOpen = false;
                const auto lasting = answer;
                lasting(picked);
            },
            Qt::QueuedConnection);
    };
}

void PortalFileDialogs::ask(const QString& method, const std::string& title, const QVariantMap& options,
    DirectoryHint hint, UseFallback useFallback, Answer answer)
{
    if (std::exchange(m_isOpen, true)) {
        QMetaObject::invokeMethod(
            &m_context, [answer = std::move(answer)] { answer(std::nullopt); }, Qt::QueuedConnection);
        return;
    }
    PortalRequest::send(m_context, *m_bus,
        {.interface = QStringLiteral("org.freedesktop.portal.FileChooser"),
            .method = method,
            .arguments = {QString(), QString::fromStdString(title)},
            .options = options},
        m_settings.patience,
        [this, hint, useFallback = std::move(useFallback), end = ending(std::move(answer))](
            PortalRequest::Outcome outcome, const QVariantMap& results) {
            const bool hasDialogs =
                outcome != PortalRequest::Outcome::refused && outcome != PortalRequest::Outcome::late;
            if (hasDialogs || !m_fallback) {
                end(outcome == PortalRequest::Outcome::granted ? pickedIn(results, hint) : std::nullopt);
            } else {
                useFallback(*m_fallback, end);
            }
        });
}

} // namespace PlatformDesktop
