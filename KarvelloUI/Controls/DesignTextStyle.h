#pragma once

#include "KarvelloUI/Design/KarvelloFontSpec.h"

#include <QFont>
#include <QObject>
#include <cstdint>
#include <qqml.h>

namespace KarvelloUI {

/// Which writing the texts of the interface use. That of Chinese, Japanese and Korean needs more room between its lines, and
/// no letters closer together.
enum class TextScript : std::uint8_t { alphabetic, cjk };

/// What decides the size of all texts.
struct TextEnvironment {
    KarvelloTextScale scale = KarvelloTextScaleKey::defaultValue;
    DynamicTypeSize dynamicTypeSize = DynamicTypeSize::large;
    TextScript script = TextScript::alphabetic;

    friend bool operator==(const TextEnvironment&, const TextEnvironment&) = default;
};

/// A text style at the size that the user wants. Main thread only.
class DesignTextStyle : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(KarvelloTextStyle)
    QML_UNCREATABLE("the styles are properties of KarvelloDesign")
    Q_PROPERTY(QFont font READ font NOTIFY changed FINAL)
    Q_PROPERTY(QFont medium READ medium NOTIFY changed FINAL)
    Q_PROPERTY(QFont strong READ strong NOTIFY changed FINAL)
    /// Pixels from one line to the next.
    Q_PROPERTY(qreal lineHeight READ lineHeight NOTIFY changed FINAL)

public:
    explicit DesignTextStyle(KarvelloTextStyle style, QObject* parent);

    /// In the style's own weight; `medium` and `strong` are its heavier forms.
    [[nodiscard]] QFont font() const { return weighted(KarvelloDesign::fontSpec(m_style).weight); }
    [[nodiscard]] QFont medium() const { return weighted(KarvelloFontWeight::medium); }
    [[nodiscard]] QFont strong() const { return weighted(KarvelloFontWeight::semibold); }
    [[nodiscard]] qreal lineHeight() const;

    void setEnvironment(const TextEnvironment& environment);

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] int pixelSize() const;
    [[nodiscard]] QFont weighted(KarvelloFontWeight weight) const;

    KarvelloTextStyle m_style;
    TextEnvironment m_environment;
};

} // namespace KarvelloUI
