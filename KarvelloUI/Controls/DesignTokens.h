#pragma once

#include "KarvelloUI/Controls/DesignPalette.h"
#include "KarvelloUI/Controls/DesignTextStyle.h"
#include "KarvelloUI/Design/KarvelloAppearanceMode.h"
#include "KarvelloUI/Design/KarvelloPill.h"

#include <QList>
#include <QStringList>

class QQmlEngine;
class QJSEngine;

namespace KarvelloUI {

/// `KarvelloDesign` of the screens: colours of the scheme, text styles of the scale, sizes and durations. Screens read it;
/// what decides is set from outside. Main thread only.
// The base is named in full for the tool that writes down the types: it looks for exactly this name.
class DesignTokens : public KarvelloUI::DesignPalette {
    Q_OBJECT
    QML_NAMED_ELEMENT(KarvelloDesign)
    QML_SINGLETON

    Q_PROPERTY(bool isDark READ isDark NOTIFY paletteChanged FINAL)
    /// By `PillKind`. A kind without a border has a transparent one.
    Q_PROPERTY(QList<QColor> pillForegrounds READ pillForegrounds NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QList<QColor> pillBackgrounds READ pillBackgrounds NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QList<QColor> pillStrokes READ pillStrokes NOTIFY paletteChanged FINAL)
    /// Lies over the window while a dialog is open.
    Q_PROPERTY(QColor scrim READ scrim CONSTANT FINAL)

    Q_PROPERTY(KarvelloUI::DesignTextStyle* display READ display CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::DesignTextStyle* title READ title CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::DesignTextStyle* dialogTitle READ dialogTitle CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::DesignTextStyle* heading READ heading CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::DesignTextStyle* body READ body CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::DesignTextStyle* small READ small CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::DesignTextStyle* label READ label CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::DesignTextStyle* onboardingTitle READ onboardingTitle CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::DesignTextStyle* onboardingBody READ onboardingBody CONSTANT FINAL)
    /// By how much texts are larger than drawn; controls and icons grow with them, spaces do not.
    Q_PROPERTY(qreal textFactor READ textFactor NOTIFY textChanged FINAL)

    // The only distances there are.
    Q_PROPERTY(int spacing4 MEMBER kSpacing4 CONSTANT FINAL)
    Q_PROPERTY(int spacing8 MEMBER kSpacing8 CONSTANT FINAL)
    Q_PROPERTY(int spacing12 MEMBER kSpacing12 CONSTANT FINAL)
    Q_PROPERTY(int spacing16 MEMBER kSpacing16 CONSTANT FINAL)
    Q_PROPERTY(int spacing20 MEMBER kSpacing20 CONSTANT FINAL)
    Q_PROPERTY(int spacing24 MEMBER kSpacing24 CONSTANT FINAL)
    Q_PROPERTY(int spacing32 MEMBER kSpacing32 CONSTANT FINAL)

    Q_PROPERTY(int swatchRadius MEMBER kSwatchRadius CONSTANT FINAL)
    Q_PROPERTY(int checkBoxRadius MEMBER kCheckBoxRadius CONSTANT FINAL)
    Q_PROPERTY(int pillRadius MEMBER kPillRadius CONSTANT FINAL)
    Q_PROPERTY(int controlRadius MEMBER kControlRadius CONSTANT FINAL)
    Q_PROPERTY(int bannerRadius MEMBER kBannerRadius CONSTANT FINAL)
    Q_PROPERTY(int cardRadius MEMBER kCardRadius CONSTANT FINAL)

    /// The user asked for less motion: durations are 0, and nothing turns.
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY motionChanged FINAL)
    /// Milliseconds for hover, fills and bars; for details and dialogs.
    Q_PROPERTY(int shortDuration READ shortDuration NOTIFY motionChanged FINAL)
    Q_PROPERTY(int expandDuration READ expandDuration NOTIFY motionChanged FINAL)

public:
    // QML reads only enumerators with a capital letter.
    // NOLINTBEGIN(readability-identifier-naming)
    enum PillKind : std::uint8_t {
        NeutralPill = static_cast<std::uint8_t>(KarvelloPillKind::neutral),
        AccentPill = static_cast<std::uint8_t>(KarvelloPillKind::accent),
        SafePill = static_cast<std::uint8_t>(KarvelloPillKind::safe),
        CautionPill = static_cast<std::uint8_t>(KarvelloPillKind::caution),
        ReviewPill = static_cast<std::uint8_t>(KarvelloPillKind::review),
    };
    // NOLINTEND(readability-identifier-naming)
    Q_ENUM(PillKind)

    explicit DesignTokens(QObject* parent);

    /// Called by QML: those that `installDesign` gave to the engine.
    static DesignTokens* create(QQmlEngine* engine, QJSEngine* scripts);

    /// The parts that are not empty, as one list for an assistant to read.
    [[nodiscard]] Q_INVOKABLE static QString spoken(const QStringList& parts);

    void setAppearanceMode(KarvelloAppearanceMode mode);
    void setPlatformScheme(ColorScheme scheme);
    void setTextEnvironment(const TextEnvironment& environment);
    void setReducedMotion(bool isReduced);

    [[nodiscard]] bool isDark() const { return scheme() == ColorScheme::dark; }
    [[nodiscard]] QList<QColor> pillForegrounds() const;
    [[nodiscard]] QList<QColor> pillBackgrounds() const;
    [[nodiscard]] QList<QColor> pillStrokes() const;
    [[nodiscard]] QColor scrim() const;

    [[nodiscard]] DesignTextStyle* display() const { return style(KarvelloTextStyle::display); }
    [[nodiscard]] DesignTextStyle* title() const { return style(KarvelloTextStyle::title); }
    [[nodiscard]] DesignTextStyle* dialogTitle() const { return style(KarvelloTextStyle::dialogTitle); }
    [[nodiscard]] DesignTextStyle* heading() const { return style(KarvelloTextStyle::heading); }
    [[nodiscard]] DesignTextStyle* body() const { return style(KarvelloTextStyle::body); }
    [[nodiscard]] DesignTextStyle* small() const { return style(KarvelloTextStyle::small); }
    [[nodiscard]] DesignTextStyle* label() const { return style(KarvelloTextStyle::label); }
    [[nodiscard]] DesignTextStyle* onboardingTitle() const { return style(KarvelloTextStyle::onboardingTitle); }
    [[nodiscard]] DesignTextStyle* onboardingBody() const { return style(KarvelloTextStyle::onboardingBody); }
    [[nodiscard]] qreal textFactor() const;

    [[nodiscard]] bool reducedMotion() const { return m_reducedMotion; }
    [[nodiscard]] int shortDuration() const { return m_reducedMotion ? 0 : 120; }
    [[nodiscard]] int expandDuration() const { return m_reducedMotion ? 0 : 160; }

Q_SIGNALS:
    void textChanged();
    void motionChanged();

private:
    static constexpr int kSpacing4 = 4;
    static constexpr int kSpacing8 = 8;
    static constexpr int kSpacing12 = 12;
    static constexpr int kSpacing16 = 16;
    static constexpr int kSpacing20 = 20;
    static constexpr int kSpacing24 = 24;
    static constexpr int kSpacing32 = 32;
    static constexpr int kSwatchRadius = 2;
    static constexpr int kCheckBoxRadius = 4;
    static constexpr int kPillRadius = 5;
    static constexpr int kControlRadius = 6;
    static constexpr int kBannerRadius = 8;
    static constexpr int kCardRadius = 10;

    [[nodiscard]] DesignTextStyle* style(KarvelloTextStyle style) const;

    KarvelloAppearanceMode m_appearanceMode = KarvelloAppearanceMode::system;
    ColorScheme m_platformScheme = ColorScheme::light;
    TextEnvironment m_textEnvironment;
    bool m_reducedMotion = false;
    /// By `KarvelloTextStyle`; they are children of this object.
    QList<DesignTextStyle*> m_styles;
};

} // namespace KarvelloUI
