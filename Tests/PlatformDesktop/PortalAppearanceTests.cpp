#include "PlatformDesktop/PortalAppearance.h"
#include "Tests/PlatformDesktop/DesktopServicesFixture.h"

#include <QtCore/QMap>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusVariant>

namespace {

using namespace PlatformDesktopTests;
using PlatformDesktop::PortalAppearance;
using testing::ElementsAre;
using Spaces = QMap<QString, QVariantMap>;

constexpr auto kPortalName = "org.freedesktop.portal.Desktop";
constexpr const char* kAppearance = "org.freedesktop.appearance";
constexpr const char* kGnome = "org.gnome.desktop.interface";

class PortalAppearanceTest : public DesktopServicesTest {
protected:
    PortalAppearanceTest() { qDBusRegisterMetaType<Spaces>(); }

    static Spaces spaces(const char* space, const char* key, const QVariant& value)
    {
        return {{QString::fromLatin1(space), {{QString::fromLatin1(key), value}}}};
    }
    static FakeBusService::Answering telling(const Spaces& spaces)
    {
        return [spaces](const QDBusMessage& call) { return call.createReply(QVariant::fromValue(spaces)); };
    }

    std::unique_ptr<PortalAppearance> appearance() const
    {
        return std::make_unique<PortalAppearance>(m_bus, PortalAppearance::Settings{.patience = 5s});
    }
    static void tellChange(const FakeBusService& portal, const QVariantList& arguments)
    {
        portal.signal(QStringLiteral("/org/freedesktop/portal/desktop"),
            QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"), arguments);
    }
    static void tellChange(const FakeBusService& portal, const char* space, const char* key, const QVariant& value)
    {
        tellChange(
            portal, {QString::fromLatin1(space), QString::fromLatin1(key), QVariant::fromValue(QDBusVariant(value))});
    }
    bool becomesDark(const PortalAppearance& appearance)
    {
        return m_loop.runUntil([&appearance] { return appearance.prefersDark(); });
    }

    /// What is preferred once the portal has said this.
    struct Preferred {
        bool dark = false;
        bool reducedMotion = false;

        bool operator==(const Preferred&) const = default;
    };
    Preferred preferredFor(const FakeBusService::Answering& answering)
    {
        const FakeBusService portal(kPortalName, answering);
        const auto appearance = this->appearance();
        EXPECT_TRUE(m_loop.runUntil([&portal] { return !portal.calls().empty(); }));
        letTimePass(80ms);
        return {.dark = appearance->prefersDark(), .reducedMotion = appearance->prefersReducedMotion()};
    }
    Preferred preferredFor(const Spaces& spaces) { return preferredFor(telling(spaces)); }

    const Spaces m_dark = spaces(kAppearance, "color-scheme", 1U);
};

TEST_F(PortalAppearanceTest, ThePortalIsAskedWithoutWaiting)
{
    const FakeBusService portal(kPortalName, telling(m_dark));
    const auto appearance = this->appearance();
    EXPECT_FALSE(appearance->prefersDark());
    EXPECT_TRUE(becomesDark(*appearance));
    EXPECT_FALSE(appearance->prefersReducedMotion());
    ASSERT_THAT(portal.methods(), ElementsAre("ReadAll"));
    EXPECT_EQ(portal.calls().front().arguments().constFirst().toStringList(),
        (QStringList{QString::fromLatin1(kAppearance), QString::fromLatin1(kGnome)}));
}

TEST_F(PortalAppearanceTest, WithoutAPortalNothingIsPreferred)
{
    for (const auto& bus : {m_bus, withoutABus()}) {
        m_bus = bus;
        const auto appearance = this->appearance();
        letTimePass();
        EXPECT_FALSE(appearance->prefersDark());
        EXPECT_FALSE(appearance->prefersReducedMotion());
    }
}

TEST_F(PortalAppearanceTest, OnlyOneSchemeIsDark)
{
    EXPECT_EQ(preferredFor(m_dark), (Preferred{.dark = true}));
    for (const auto scheme : {0U, 2U, 7U}) {
        EXPECT_EQ(preferredFor(spaces(kAppearance, "color-scheme", scheme)), Preferred()) << scheme;
    }
}

TEST_F(PortalAppearanceTest, ReducedMotionIsAPreferenceOrASwitchOfTheDesktop)
{
    EXPECT_EQ(preferredFor(spaces(kAppearance, "reduced-motion", 1U)), (Preferred{.reducedMotion = true}));
    EXPECT_EQ(preferredFor(spaces(kGnome, "enable-animations", false)), (Preferred{.reducedMotion = true}));
    EXPECT_EQ(preferredFor(spaces(kGnome, "enable-animations", true)), Preferred());
    // Where both are told, the preference counts.
    auto both = spaces(kGnome, "enable-animations", false);
    both.insert(spaces(kAppearance, "reduced-motion", 0U));
    EXPECT_EQ(preferredFor(both), Preferred());
}

TEST_F(PortalAppearanceTest, ValuesOfAnotherTypeAreNone)
{
    for (const auto& value : {QVariant(QStringLiteral("1")), QVariant(1), QVariant(true), QVariant(1.0),
             QVariant::fromValue(qulonglong{1}), QVariant(QStringList{QStringLiteral("1")})}) {
        EXPECT_EQ(preferredFor(spaces(kAppearance, "color-scheme", value)), Preferred()) << value.typeName();
        EXPECT_EQ(preferredFor(spaces(kAppearance, "reduced-motion", value)), Preferred()) << value.typeName();
    }
    EXPECT_EQ(preferredFor(spaces(kGnome, "enable-animations", 0U)), Preferred());
    EXPECT_EQ(preferredFor(spaces(kGnome, "color-scheme", 1U)), Preferred());
    EXPECT_EQ(preferredFor(spaces(kAppearance, "enable-animations", false)), Preferred());
}

TEST_F(PortalAppearanceTest, AnAnswerInAnotherFormIsNone)
{
    EXPECT_EQ(preferredFor([](const QDBusMessage& call) { return call.createReply(1U); }), Preferred());
    EXPECT_EQ(preferredFor([](const QDBusMessage& call) { return call.createReply(); }), Preferred());
    EXPECT_EQ(preferredFor([](const QDBusMessage& call) {
        return call.createErrorReply(QDBusError::UnknownInterface, QStringLiteral("no"));
    }),
        Preferred());
    EXPECT_EQ(preferredFor([](const QDBusMessage&) { return std::nullopt; }), Preferred());
}

TEST_F(PortalAppearanceTest, ChangesAreToldOnceEach)
{
    const FakeBusService portal(kPortalName, telling(m_dark));
    const auto appearance = this->appearance();
    std::vector<std::pair<bool, bool>> told;
    appearance->setObserver([&] { told.emplace_back(appearance->prefersDark(), appearance->prefersReducedMotion()); });
    EXPECT_TRUE(becomesDark(*appearance));
    tellChange(portal, kAppearance, "color-scheme", 1U);
    tellChange(portal, kAppearance, "accent-color", 1U);
    tellChange(portal, kAppearance, "color-scheme", 2U);
    tellChange(portal, kAppearance, "color-scheme", 0U);
    tellChange(portal, kGnome, "enable-animations", false);
    EXPECT_TRUE(m_loop.runUntil([&appearance] { return appearance->prefersReducedMotion(); }));
    EXPECT_THAT(told, ElementsAre(std::pair(true, false), std::pair(false, false), std::pair(false, true)));
    appearance->setObserver({});
    tellChange(portal, kAppearance, "color-scheme", 1U);
    EXPECT_TRUE(becomesDark(*appearance));
    EXPECT_EQ(told.size(), 3U);
}

TEST_F(PortalAppearanceTest, AChangeInAnotherFormIsNone)
{
    const FakeBusService portal(kPortalName, telling(m_dark));
    const auto appearance = this->appearance();
    EXPECT_TRUE(becomesDark(*appearance));
    tellChange(portal, kAppearance, "color-scheme", QStringLiteral("0"));
    tellChange(portal, {QString::fromLatin1(kAppearance), QStringLiteral("color-scheme"), 0U});
    tellChange(portal, {QString::fromLatin1(kAppearance)});
    tellChange(portal, QVariantList{});
    letTimePass();
    EXPECT_TRUE(appearance->prefersDark());
}

TEST_F(PortalAppearanceTest, NobodyElseTellsOfChanges)
{
    const FakeBusService portal(kPortalName, telling({}));
    const FakeBusService other("org.example.Other", telling({}));
    const auto appearance = this->appearance();
    EXPECT_TRUE(m_loop.runUntil([&portal] { return !portal.calls().empty(); }));
    letTimePass(80ms);
    tellChange(other, kAppearance, "color-scheme", 1U);
    letTimePass();
    EXPECT_FALSE(appearance->prefersDark());
    tellChange(portal, kAppearance, "color-scheme", 1U);
    EXPECT_TRUE(becomesDark(*appearance));
}

TEST_F(PortalAppearanceTest, APortalThatComesLaterAndOneThatComesBackAreAsked)
{
    const auto appearance = this->appearance();
    letTimePass();
    auto portal = std::make_unique<FakeBusService>(kPortalName, telling(m_dark));
    EXPECT_TRUE(becomesDark(*appearance));
    portal.reset();
    letTimePass();
    EXPECT_TRUE(appearance->prefersDark());
    portal = std::make_unique<FakeBusService>(kPortalName, telling(spaces(kAppearance, "color-scheme", 2U)));
    EXPECT_TRUE(m_loop.runUntil([&appearance] { return !appearance->prefersDark(); }));
    tellChange(*portal, kAppearance, "color-scheme", 1U);
    EXPECT_TRUE(becomesDark(*appearance));
    EXPECT_THAT(portal->methods(), ElementsAre("ReadAll"));
}

TEST_F(PortalAppearanceTest, NothingIsToldAfterItsEndAndAnObserverMayBeIt)
{
    const FakeBusService portal(kPortalName, telling(m_dark));
    bool isCalled = false;
    {
        const auto ended = appearance();
        ended->setObserver([&isCalled] { isCalled = true; });
        EXPECT_NE(m_bus->waitUntilOpen(), nullptr);
    }
    auto appearance = this->appearance();
    appearance->setObserver([&appearance] { appearance.reset(); });
    EXPECT_TRUE(m_loop.runUntil([&appearance] { return appearance == nullptr; }));
    auto changing = this->appearance();
    EXPECT_TRUE(becomesDark(*changing));
    changing->setObserver([&changing] { changing.reset(); });
    tellChange(portal, kAppearance, "color-scheme", 2U);
    EXPECT_TRUE(m_loop.runUntil([&changing] { return changing == nullptr; }));
    letTimePass();
    EXPECT_FALSE(isCalled);
}

} // namespace
