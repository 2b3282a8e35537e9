#include "KarvelloUI/Controls/DesignPalette.h"

namespace KarvelloUI {

DesignPalette::DesignPalette(QObject* parent)
    : QObject(parent)
{
}

void DesignPalette::setScheme(ColorScheme scheme)
{
    if (m_scheme != scheme) {
        m_scheme = scheme;
        Q_EMIT paletteChanged();
    }
}

QColor DesignPalette::color(Color KarvelloDesign::Palette::* field) const
{
    return qtColor(palette().*field);
}

QColor qtColor(const Color& color)
{
    return QColor(color.red, color.green, color.blue);
}

} // namespace KarvelloUI
