// karvello-gallery [--page Gallery|Screens|Panels|Lists] [--scheme light|dark] [--scale standard|large|extraLarge] [--dialog]
// [--width N] [--height N] [--photograph FILE]: shows a page of controls, or writes a picture of it and ends.

#include "KarvelloUI/Controls/DesignTokens.h"
#include "KarvelloUI/Controls/InstallDesign.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <functional>

int main(int argc, char** argv)
{
    using namespace KarvelloUI;
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    const auto option = [&parser](const char* name, const char* standard) {
        parser.addOption(QCommandLineOption(
            QString::fromLatin1(name), QString(), QStringLiteral("value"), QString::fromLatin1(standard)));
    };
    option("scheme", "light");
    option("scale", "standard");
    option("width", "1240");
    option("height", "900");
    option("photograph", "");
    option("page", "Gallery");
    parser.addOption(QCommandLineOption(QStringLiteral("dialog")));
    parser.addHelpOption();
    parser.process(application);
    const auto value = [&parser](const char* name) { return parser.value(QString::fromLatin1(name)); };
    const bool isPhotograph = !value("photograph").isEmpty();
    if (isPhotograph) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }

    QQmlApplicationEngine engine;
    DesignTokens& design = installDesign(engine);
    design.setAppearanceMode(Platform::fromRawValue<KarvelloAppearanceMode>(value("scheme").toStdString())
            .value_or(KarvelloAppearanceMode::light));
    design.setTextEnvironment({.scale = Platform::fromRawValue<KarvelloTextScale>(value("scale").toStdString())
                                   .value_or(KarvelloTextScaleKey::defaultValue)});
    design.setReducedMotion(isPhotograph);
    engine.load(QUrl::fromLocalFile(QStringLiteral(KARVELLO_SOURCE_DIR "/Tests/Gallery/%1.qml").arg(value("page"))));
    if (engine.rootObjects().isEmpty()) {
        return 1;
    }
    auto* const window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    window->resize(value("width").toInt(), value("height").toInt());
    if (auto* const focused = window->findChild<QQuickItem*>(QStringLiteral("focused"))) {
        focused->forceActiveFocus(Qt::TabFocusReason);
    }
    if (parser.isSet(QStringLiteral("dialog"))) {
        QMetaObject::invokeMethod(window->findChild<QObject*>(QStringLiteral("dialog")), "open");
    }
    if (isPhotograph) {
        // The window lays itself out in the first frames.
        QTimer::singleShot(600, window,
            [window, &value] { QGuiApplication::exit(window->grabWindow().save(value("photograph")) ? 0 : 1); });
    }
    return QGuiApplication::exec();
}
