#include "KarvelloUI/Controls/IconProvider.h"
#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

#include <QDir>
#include <QImage>

namespace KarvelloUI {

namespace {

QImage icon(const QString& id, const QSize& wanted = QSize(40, 40))
{
    QSize size;
    return IconProvider().requestImage(id, &size, wanted);
}

/// The colour of the pixels that are fully covered.
QColor inkOf(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() == 255) {
                return image.pixelColor(x, y);
            }
        }
    }
    return {};
}

} // namespace

using Icons = Controls;

TEST_F(Icons, AreDrawnInTheColourThatIsAskedFor)
{
    EXPECT_EQ(inkOf(icon(QStringLiteral("trash/b83a3a"))), QColor(0xB8, 0x3A, 0x3A));
    EXPECT_EQ(icon(QStringLiteral("trash/b83a3a"), {64, 64}).size(), QSize(64, 64));
    EXPECT_EQ(icon(QStringLiteral("trash/b83a3a"), {}).size(), QSize(20, 20));
}

TEST_F(Icons, AllShowSomething)
{
    const QDir folder(QStringLiteral(":/qt/qml/Karvello/Design/icons"));
    const QStringList names = folder.entryList({QStringLiteral("*.svg")});
    EXPECT_GE(names.size(), 50);
    for (const QString& name : names) {
        const QString id = name.chopped(4) + QStringLiteral("/123456");
        EXPECT_TRUE(inkOf(icon(id)).isValid()) << name.toStdString();
    }
}

TEST_F(Icons, AreNothingForNamesThatTheSetDoesNotHave)
{
    for (const char* const id : {"no-such/000000", "trash", "trash/", "trash/red", "trash/00000",
             "../icons/trash/000000", "trash.svg/000000", "/000000", ""}) {
        EXPECT_TRUE(icon(QString::fromLatin1(id)).isNull()) << id;
    }
}

TEST_F(Icons, GrowWithTheText)
{
    show("KarvelloIcon { objectName: 'icon'; name: 'lock' }");
    EXPECT_EQ(find("icon")->width(), 16);
    m_design.setTextEnvironment({.scale = KarvelloTextScale::extraLarge});
    EXPECT_EQ(find("icon")->width(), 22);
}

} // namespace KarvelloUI
