#include "KarvelloUI/Controls/DesignTextStyle.h"

#include <QFontDatabase>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace KarvelloUI {

namespace {

/// Inter where it is installed, then what the system reads its own texts in.
const QStringList& families()
{
    static const QStringList found = [] {
        const QString preferred = QStringLiteral("Inter");
        const QString ofSystem = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
        return QFontDatabase::hasFamily(preferred) ? QStringList{preferred, ofSystem} : QStringList{ofSystem};
    }();
    return found;
}

/// Large letters stand too far apart by themselves. Pixels at the unscaled size.
qreal letterSpacing(KarvelloTextStyle style)
{
    switch (style) {
    case KarvelloTextStyle::display:
    case KarvelloTextStyle::onboardingTitle:
        return -1.2;
    case KarvelloTextStyle::title:
    case KarvelloTextStyle::dialogTitle:
        return -0.3;
    case KarvelloTextStyle::heading:
    case KarvelloTextStyle::body:
    case KarvelloTextStyle::small:
    case KarvelloTextStyle::label:
    case KarvelloTextStyle::onboardingBody:
        break;
    }
    return 0;
}

} // namespace

DesignTextStyle::DesignTextStyle(KarvelloTextStyle style, QObject* parent)
    : QObject(parent)
    , m_style(style)
{
}

qreal DesignTextStyle::lineHeight() const
{
    constexpr double kLeastForCJK = 1.45;
    const double ratio = KarvelloDesign::lineHeightRatio(m_style);
    return std::round(pixelSize() * (m_environment.script == TextScript::cjk ? std::max(ratio, kLeastForCJK) : ratio));
}

void DesignTextStyle::setEnvironment(const TextEnvironment& environment)
{
    if (m_environment != environment) {
        m_environment = environment;
        Q_EMIT changed();
    }
}

int DesignTextStyle::pixelSize() const
{
    return KarvelloDesign::scaledFontSize(
        KarvelloDesign::fontSpec(m_style).size, m_environment.scale, m_environment.dynamicTypeSize);
}

QFont DesignTextStyle::weighted(KarvelloFontWeight weight) const
{
    QFont font;
    font.setFamilies(families());
    font.setPixelSize(pixelSize());
    font.setWeight(static_cast<QFont::Weight>(weight));
    const qreal spacing = letterSpacing(m_style);
    if (spacing != 0 && m_environment.script == TextScript::alphabetic) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, spacing * pixelSize() / KarvelloDesign::fontSpec(m_style).size);
    }
    return font;
}

} // namespace KarvelloUI
