#pragma once

#include "KarvelloUI/Design/Palette.h"

#include <QColor>
#include <QObject>
#include <qqml.h>

namespace KarvelloUI {

/// Each colour of the palette as a property, so that what is bound to one follows the scheme. Main thread only.
class DesignPalette : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QColor background READ background NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor elevated1 READ elevated1 NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor elevated2 READ elevated2 NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor elevated3 READ elevated3 NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor sidebar READ sidebar NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor line READ line NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor lineStrong READ lineStrong NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor lineSoft READ lineSoft NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor ink READ ink NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor ink2 READ ink2 NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor ink3 READ ink3 NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor ink4 READ ink4 NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor accent READ accent NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor accentSoft READ accentSoft NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor accentDeep READ accentDeep NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor accentForeground READ accentForeground NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor safe READ safe NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor safeSoft READ safeSoft NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor caution READ caution NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor cautionSoft READ cautionSoft NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor review READ review NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor reviewSoft READ reviewSoft NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor heatmapMid READ heatmapMid NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor heatmapInvertedInk READ heatmapInvertedInk NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor heatmapInvertedInk2 READ heatmapInvertedInk2 NOTIFY paletteChanged FINAL)
    Q_PROPERTY(QColor heatmapInvertedInk3 READ heatmapInvertedInk3 NOTIFY paletteChanged FINAL)

public:
    explicit DesignPalette(QObject* parent);

    /// Of the scheme that shows now.
    [[nodiscard]] const KarvelloDesign::Palette& palette() const { return KarvelloDesign::palette(m_scheme); }
    [[nodiscard]] ColorScheme scheme() const { return m_scheme; }

    [[nodiscard]] QColor background() const { return color(&KarvelloDesign::Palette::background); }
    [[nodiscard]] QColor elevated1() const { return color(&KarvelloDesign::Palette::elevated1); }
    [[nodiscard]] QColor elevated2() const { return color(&KarvelloDesign::Palette::elevated2); }
    [[nodiscard]] QColor elevated3() const { return color(&KarvelloDesign::Palette::elevated3); }
    [[nodiscard]] QColor sidebar() const { return color(&KarvelloDesign::Palette::sidebar); }
    [[nodiscard]] QColor line() const { return color(&KarvelloDesign::Palette::line); }
    [[nodiscard]] QColor lineStrong() const { return color(&KarvelloDesign::Palette::lineStrong); }
    [[nodiscard]] QColor lineSoft() const { return color(&KarvelloDesign::Palette::lineSoft); }
    [[nodiscard]] QColor ink() const { return color(&KarvelloDesign::Palette::ink); }
    [[nodiscard]] QColor ink2() const { return color(&KarvelloDesign::Palette::ink2); }
    [[nodiscard]] QColor ink3() const { return color(&KarvelloDesign::Palette::ink3); }
    [[nodiscard]] QColor ink4() const { return color(&KarvelloDesign::Palette::ink4); }
    [[nodiscard]] QColor accent() const { return color(&KarvelloDesign::Palette::accent); }
    [[nodiscard]] QColor accentSoft() const { return color(&KarvelloDesign::Palette::accentSoft); }
    [[nodiscard]] QColor accentDeep() const { return color(&KarvelloDesign::Palette::accentDeep); }
    [[nodiscard]] QColor accentForeground() const { return color(&KarvelloDesign::Palette::accentForeground); }
    [[nodiscard]] QColor safe() const { return color(&KarvelloDesign::Palette::safe); }
    [[nodiscard]] QColor safeSoft() const { return color(&KarvelloDesign::Palette::safeSoft); }
    [[nodiscard]] QColor caution() const { return color(&KarvelloDesign::Palette::caution); }
    [[nodiscard]] QColor cautionSoft() const { return color(&KarvelloDesign::Palette::cautionSoft); }
    [[nodiscard]] QColor review() const { return color(&KarvelloDesign::Palette::review); }
    [[nodiscard]] QColor reviewSoft() const { return color(&KarvelloDesign::Palette::reviewSoft); }
    [[nodiscard]] QColor heatmapMid() const { return color(&KarvelloDesign::Palette::heatmapMid); }
    [[nodiscard]] QColor heatmapInvertedInk() const { return color(&KarvelloDesign::Palette::heatmapInvertedInk); }
    [[nodiscard]] QColor heatmapInvertedInk2() const { return color(&KarvelloDesign::Palette::heatmapInvertedInk2); }
    [[nodiscard]] QColor heatmapInvertedInk3() const { return color(&KarvelloDesign::Palette::heatmapInvertedInk3); }

Q_SIGNALS:
    void paletteChanged();

protected:
    void setScheme(ColorScheme scheme);

private:
    [[nodiscard]] QColor color(Color KarvelloDesign::Palette::* field) const;

    ColorScheme m_scheme = ColorScheme::light;
};

[[nodiscard]] QColor qtColor(const Color& color);

} // namespace KarvelloUI
