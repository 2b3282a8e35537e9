#pragma once

#include <QQuickImageProvider>

namespace KarvelloUI {

/// `image://karvello/NAME/RRGGBB`: an icon of the set in one colour, at whatever size is asked for. A name that the set
/// does not have, or a colour that is none, gives no image and a warning.
class IconProvider : public QQuickImageProvider {
public:
    IconProvider();

    [[nodiscard]] QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace KarvelloUI
