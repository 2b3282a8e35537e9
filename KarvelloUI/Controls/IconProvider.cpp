#include "KarvelloUI/Controls/IconProvider.h"

#include <QColor>
#include <QPainter>
#include <QRegularExpression>
#include <QResource>
#include <QSvgRenderer>

namespace KarvelloUI {

namespace {

/// The colour in which every icon is drawn.
constexpr const char* kDrawnColor = "#000000";
constexpr QSize kDrawnSize{20, 20};
constexpr int kLargestSide = 4096;

} // namespace

IconProvider::IconProvider()
    : QQuickImageProvider(QQmlImageProviderBase::Image)
{
}

QImage IconProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    static const QRegularExpression shape(QStringLiteral("^([a-z-]+)/([0-9a-f]{6})$"));
    const QRegularExpressionMatch match = shape.match(id);
    const QResource icon(QStringLiteral(":/qt/qml/Karvello/Design/icons/%1.svg").arg(match.captured(1)));
    if (!match.hasMatch() || !icon.isValid()) {
        return {};
    }
    QByteArray drawing = icon.uncompressedData();
    drawing.replace(kDrawnColor, '#' + match.captured(2).toLatin1());
    QSvgRenderer renderer(drawing);

    const QSize wanted = requestedSize.isEmpty() ? kDrawnSize : requestedSize.boundedTo({kLargestSide, kLargestSide});
    QImage image(wanted, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    if (size != nullptr) {
        *size = wanted;
    }
    return image;
}

} // namespace KarvelloUI
