#include "KarvelloUI/Controls/InstallDesign.h"

#include "KarvelloUI/Controls/DesignTokens.h"
#include "KarvelloUI/Controls/IconProvider.h"

#include <QQmlEngine>

// Written by the build. Calling it keeps the linker from leaving the module's types out of a static library.
void qml_register_types_Karvello_Design(); // NOLINT(readability-identifier-naming)

namespace KarvelloUI {

DesignTokens& installDesign(QQmlEngine& engine)
{
    qml_register_types_Karvello_Design();
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.addImageProvider(QStringLiteral("karvello"), new IconProvider);
    const int tokens = qmlTypeId("Karvello.Design", 1, 0, "KarvelloDesign");
    return *engine.singletonInstance<DesignTokens*>(tokens);
}

} // namespace KarvelloUI
