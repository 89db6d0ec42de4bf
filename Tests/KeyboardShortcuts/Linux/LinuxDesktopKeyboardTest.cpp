#include "KeyboardShortcuts/DesktopKeyboard.h"
#include "Tests/KeyboardShortcuts/X11/XServer.h"
#include "Tests/Platform/Linux/PrivateBus.h"
#include "Tests/Platform/Linux/ScopedVariable.h"

#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Availability = DesktopHotKeys::Availability;

constexpr std::uint32_t keyA = 0x00;
constexpr std::uint32_t keyY = 0x10;
constexpr std::uint32_t control = 0x1000;
constexpr int notSupported = 95;

class Program {
public:
    [[nodiscard]] DesktopKeyboard keyboard()
    {
        return DesktopKeyboard::create(source_, [](std::uint32_t, std::uint32_t) { return u"Open"_s; });
    }

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QGuiApplication program_{argumentCount_, arguments_};
    ActivationSource source_;
};

TEST(DesktopKeyboard, OnAnXServerTheServerHasTheKeysAndTheLayout)
{
    const test::XServer server;
    Program program;
    const DesktopKeyboard keyboard = program.keyboard();
    QStringList heard;
    keyboard.hotKeys->setHandlers({.hotKey =
                                       [&](std::uint32_t id, bool isPressed) {
                                           heard.append(QString::number(id) +
                                                        (isPressed ? u" press"_s : u" release"_s));
                                           return true;
                                       },
                                   .rawKey = {}});
    EXPECT_EQ(keyboard.hotKeys->availability(), Availability::available);
    EXPECT_TRUE(keyboard.hotKeys->add(1, keyA, control));
    keyboard.hotKeys->listen(HotKeyPort::Listening::hotKeys);
    server.type(u"key"_s, u"ctrl+a"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return heard.size() == 2; }, 30'000));
    EXPECT_EQ(heard, QStringList({u"1 press"_s, u"1 release"_s}));
    EXPECT_EQ(keyboard.hotKeys->grantedTrigger(1), std::nullopt);
    server.run(u"setxkbmap"_s, {u"de"_s});
    EXPECT_TRUE(QTest::qWaitFor([&] { return keyboard.layout->character(keyY) == u"z"_s; }, 30'000));
}

TEST(DesktopKeyboard, WithoutAnXServerThePortalIsAsked)
{
    const test::ScopedVariable platform("QT_QPA_PLATFORM", "offscreen");
    // There the bus looks for services first, and finds that there is no portal.
    const QTemporaryDir folder;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(u"XDG_RUNTIME_DIR"_s, folder.path());
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"dbus-1/services"_s));
    QFile service(folder.filePath(u"dbus-1/services/org.freedesktop.portal.Desktop.service"_s));
    ASSERT_TRUE(service.open(QIODevice::WriteOnly));
    service.write("[D-BUS Service]\nName=org.freedesktop.portal.Desktop\nExec=/bin/false\n");
    service.close();
    const test::PrivateBus bus(variables);
    const test::ScopedVariable address("DBUS_SESSION_BUS_ADDRESS", bus.address().toLatin1());
    Program program;
    const DesktopKeyboard keyboard = program.keyboard();
    EXPECT_TRUE(keyboard.hotKeys->add(1, keyA, control)) << "A wish, until the portal answers.";
    EXPECT_EQ(keyboard.hotKeys->availability(), Availability::unknown);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return keyboard.hotKeys->availability() == Availability::notAvailable; }, 30'000));
    EXPECT_EQ(keyboard.layout->character(keyA), u"a"_s);
}

TEST(DesktopKeyboard, WithNeitherItSaysSoAndTakesNoKeys)
{
    const test::ScopedVariable platform("QT_QPA_PLATFORM", "offscreen");
    const test::ScopedVariable address("DBUS_SESSION_BUS_ADDRESS", "");
    const test::ScopedVariable folder("XDG_RUNTIME_DIR", "/no/such/folder");
    Program program;
    const DesktopKeyboard keyboard = program.keyboard();
    EXPECT_EQ(keyboard.hotKeys->availability(), Availability::notAvailable);
    EXPECT_EQ(keyboard.hotKeys->add(1, keyA, control), std::unexpected(notSupported));
    EXPECT_EQ(keyboard.hotKeys->grantedTrigger(1), std::nullopt);
    EXPECT_EQ(keyboard.layout->character(keyA), u"a"_s);
}

TEST(DesktopKeyboard, ABusThatCanNotBeReachedIsNone)
{
    const test::ScopedVariable platform("QT_QPA_PLATFORM", "offscreen");
    const test::ScopedVariable address("DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/such/bus");
    Program program;
    EXPECT_EQ(program.keyboard().hotKeys->availability(), Availability::notAvailable);
}

} // namespace
} // namespace vantrel
