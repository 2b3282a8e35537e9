// The floor that the start of the application is measured against: a window of Qt Quick with one text in it.

#include <QApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <memory>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\n"
                      "Window { width: 1240; height: 820; visible: true; color: \"white\"\n"
                      "Text { anchors.centerIn: parent; text: \"Karvello\" } }",
        {});
    const std::unique_ptr<QObject> window(component.create());
    return window ? QApplication::exec() : 1;
}
