#include "KarvelloUI/Controls/InstallDesign.h"

#include "KarvelloUI/Controls/DesignTokens.h"
#include "KarvelloUI/Controls/IconProvider.h"
#include "KarvelloUI/Controls/SpokenState.h"

#include <QQmlEngine>

namespace KarvelloUI {

DesignTokens& installDesign(QQmlEngine& engine)
{
    SpokenState::install();
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.addImageProvider(QStringLiteral("karvello"), new IconProvider);
    return *new DesignTokens(&engine);
}

} // namespace KarvelloUI
