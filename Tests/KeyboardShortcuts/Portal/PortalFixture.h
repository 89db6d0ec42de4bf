#pragma once

#include "KeyboardShortcuts/Portal/PortalHotKeys.h"
#include "Tests/Platform/Linux/PrivateBus.h"
#include "Tests/Platform/Linux/StatusItem/OwnConnection.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace vantrel::test {

using namespace Qt::StringLiterals;

inline constexpr std::uint32_t keyA = 0x00;
inline constexpr std::uint32_t keyP = 0x23;
inline constexpr std::uint32_t keyF13 = 0x69;
inline constexpr std::uint32_t command = 0x100;
inline constexpr std::uint32_t shift = 0x200;
inline constexpr std::uint32_t option = 0x800;
inline constexpr std::uint32_t control = 0x1000;

/// A program with hotkeys of the portal on a bus of its own, where there is none at first.
class PortalFixture : public testing::Test {
protected:
    using Availability = DesktopHotKeys::Availability;

    /// The bus starts none of these services that are installed.
    explicit PortalFixture(const QStringList &missingServices = {QStringLiteral("org.freedesktop.portal.Desktop")})
    {
        for (const QString &service : missingServices) {
            folder_.write("run/dbus-1/services/"_L1 + service + ".service"_L1,
                          "[D-BUS Service]\nName=" + service.toLatin1() + "\nExec=/bin/false\n");
        }
        bus_.emplace(busEnvironment());
        makeKeys();
    }

    void makeKeys()
    {
        connection_.emplace(bus_->address());
        keys_.emplace(**connection_, source_, [](std::uint32_t keyCode, std::uint32_t modifiers) {
            return QStringLiteral("Open %1+%2").arg(modifiers, 0, 16).arg(keyCode, 0, 16);
        });
        keys_->onChange([this] { ++changes_; });
        keys_->setHandlers(
            {.hotKey =
                 [this](std::uint32_t id, bool isPressed) {
                     heard_.append(u"%1 %2"_s.arg(name(isPressed)).arg(id));
                     return true;
                 },
             .rawKey =
                 [this](std::uint32_t keyCode, std::uint32_t modifiers, bool isPressed) {
                     heard_.append(
                         QStringLiteral("raw %1 %2+%3").arg(name(isPressed)).arg(modifiers, 0, 16).arg(keyCode, 0, 16));
                     return true;
                 }});
    }

    void add(std::uint32_t id, std::uint32_t keyCode, std::uint32_t modifiers)
    {
        EXPECT_TRUE(keys_->add(id, keyCode, modifiers));
    }

    /// The hotkeys with the ids 1 and 2, heard as soon as they are bound.
    void startWithTwoKeys()
    {
        add(1, keyA, control | option);
        add(2, keyP, command | shift);
        keys_->listen(HotKeyPort::Listening::hotKeys);
        keys_->start();
    }

    /// Waits until a hotkey has been bound.
    [[nodiscard]] bool isBound(std::uint32_t id = 1)
    {
        return eventually([this, id] { return keys_->grantedTrigger(id).has_value(); });
    }

    [[nodiscard]] bool isAvailability(Availability availability)
    {
        return eventually([this, availability] { return keys_->availability() == availability; });
    }

    [[nodiscard]] bool hears(const QStringList &events)
    {
        const bool came = eventually([&] { return heard_.size() >= events.size(); });
        const bool isRight = heard_ == events;
        EXPECT_TRUE(isRight) << heard_.join(u", ").toStdString();
        heard_.clear();
        return came && isRight;
    }

    TemporaryFolder folder_;
    std::optional<PrivateBus> bus_;
    ActivationSource source_;
    std::optional<PortalHotKeys> keys_;
    int changes_ = 0;
    QStringList heard_;
    std::optional<OwnConnection> connection_;

private:
    [[nodiscard]] QProcessEnvironment busEnvironment() const
    {
        // Beside the services' own files are those of the backend that a test may write.
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        variables.insert(u"XDG_RUNTIME_DIR"_s, folder_.makeFolder(u"run"_s));
        variables.insert(u"HOME"_s, folder_.makeFolder(u"home"_s));
        variables.insert(u"XDG_DATA_HOME"_s, folder_.makeFolder(u"home/data"_s));
        variables.insert(u"XDG_DESKTOP_PORTAL_DIR"_s, folder_.makeFolder(u"portals"_s));
        variables.insert(u"XDG_CURRENT_DESKTOP"_s, u"fake"_s);
        variables.remove(u"DISPLAY"_s);
        variables.remove(u"WAYLAND_DISPLAY"_s);
        return variables;
    }

    int argumentCount_ = 1;
    char programName_[8] = "vantrel";
    char *arguments_[2] = {programName_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};

    [[nodiscard]] static QString name(bool isPressed)
    {
        return isPressed ? QStringLiteral("press") : QStringLiteral("release");
    }
};

} // namespace vantrel::test
