#include "KarvelloUI/Controls/InstallDesign.h"

#include "KarvelloUI/Controls/DesignTokens.h"
#include "KarvelloUI/Controls/IconProvider.h"

#include <QQmlEngine>

// Written by the build. Naming it keeps the linker from leaving the module's types out of a static library.
void qml_register_types_Karvello_Design(); // NOLINT(readability-identifier-naming)

namespace KarvelloUI {

DesignTokens& installDesign(QQmlEngine& engine)
{
    [[maybe_unused]] static const volatile auto kept = &qml_register_types_Karvello_Design;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.addImageProvider(QStringLiteral("karvello"), new IconProvider);
    return *new DesignTokens(&engine);
}

} // namespace KarvelloUI
