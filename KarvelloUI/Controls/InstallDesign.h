#pragma once

class QQmlEngine;

namespace KarvelloUI {

class DesignTokens;

/// Makes `import Karvello.Design` work in an engine. The engine owns the tokens, which decide scheme, scale and motion of
/// all that it shows. Call it once for an engine, before anything is loaded.
DesignTokens& installDesign(QQmlEngine& engine);

} // namespace KarvelloUI
