#include "KarvelloUI/Controls/DesignTokens.h"

#include <QQmlEngine>

namespace KarvelloUI {

namespace {

QList<QColor> ofEachPill(const KarvelloDesign::Palette& palette, QColor (*choose)(const KarvelloPillColors& colors))
{
    QList<QColor> chosen;
    for (const auto kind : {KarvelloPillKind::neutral, KarvelloPillKind::accent, KarvelloPillKind::safe,
             KarvelloPillKind::caution, KarvelloPillKind::review}) {
        chosen.append(choose(pillColors(kind, palette)));
    }
    return chosen;
}

} // namespace

DesignTokens::DesignTokens(QObject* parent)
    : DesignPalette(parent)
{
    for (int index = 0; index <= static_cast<int>(KarvelloTextStyle::onboardingBody); ++index) {
        m_styles.append(new DesignTextStyle(static_cast<KarvelloTextStyle>(index), this));
    }
}

DesignTokens* DesignTokens::create(QQmlEngine* engine, QJSEngine* /*scripts*/)
{
    auto* const tokens = engine->findChild<DesignTokens*>(QString(), Qt::FindDirectChildrenOnly);
    // They have their parent, and outlive what a script does.
    QQmlEngine::setObjectOwnership(tokens, QQmlEngine::CppOwnership);
    return tokens;
}

QString DesignTokens::spoken(const QStringList& parts)
{
    QStringList told = parts;
    told.removeAll(QString());
    return told.join(QStringLiteral(", "));
}

void DesignTokens::setAppearanceMode(KarvelloAppearanceMode mode)
{
    m_appearanceMode = mode;
    setScheme(colorScheme(m_appearanceMode, m_platformScheme));
}

void DesignTokens::setPlatformScheme(ColorScheme scheme)
{
    m_platformScheme = scheme;
    setScheme(colorScheme(m_appearanceMode, m_platformScheme));
}

void DesignTokens::setTextEnvironment(const TextEnvironment& environment)
{
    if (m_textEnvironment == environment) {
        return;
    }
    m_textEnvironment = environment;
    for (DesignTextStyle* const style : m_styles) {
        style->setEnvironment(environment);
    }
    Q_EMIT textChanged();
}

void DesignTokens::setReducedMotion(bool isReduced)
{
    if (m_reducedMotion != isReduced) {
        m_reducedMotion = isReduced;
        Q_EMIT motionChanged();
    }
}

QList<QColor> DesignTokens::pillForegrounds() const
{
    return ofEachPill(palette(), [](const KarvelloPillColors& colors) { return qtColor(colors.foreground); });
}

QList<QColor> DesignTokens::pillBackgrounds() const
{
    return ofEachPill(palette(), [](const KarvelloPillColors& colors) { return qtColor(colors.background); });
}

QList<QColor> DesignTokens::pillStrokes() const
{
    return ofEachPill(palette(), [](const KarvelloPillColors& colors) {
        return colors.stroke ? qtColor(*colors.stroke) : QColor(Qt::transparent);
    });
}

QColor DesignTokens::scrim() const
{
    constexpr float kOpacity = 0.46F;
    QColor color = qtColor(KarvelloDesign::darkPalette.background);
    color.setAlphaF(kOpacity);
    return color;
}

qreal DesignTokens::textFactor() const
{
    return factor(m_textEnvironment.scale) * factor(m_textEnvironment.dynamicTypeSize);
}

DesignTextStyle* DesignTokens::style(KarvelloTextStyle style) const
{
    return m_styles[static_cast<qsizetype>(style)];
}

} // namespace KarvelloUI
