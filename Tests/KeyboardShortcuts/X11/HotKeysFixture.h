#pragma once

#include "KeyboardShortcuts/X11/X11HotKeys.h"
#include "Tests/KeyboardShortcuts/X11/XServer.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>
#include <xcb/xproto.h>

namespace vantrel::test {

/// Key codes of the Macintosh keyboard and Carbon's modifiers, as the tests need them.
inline constexpr std::uint32_t keyA = 0x00;
inline constexpr std::uint32_t keyY = 0x10;
inline constexpr std::uint32_t keyP = 0x23;
inline constexpr std::uint32_t keyF12 = 0x6f;
inline constexpr std::uint32_t keyF20 = 0x5a;
inline constexpr std::uint32_t command = 0x100;
inline constexpr std::uint32_t shift = 0x200;
inline constexpr std::uint32_t option = 0x800;
inline constexpr std::uint32_t control = 0x1000;

/// Counts what the X server reports of keys.
class KeyEventCounter final : public QAbstractNativeEventFilter {
public:
    KeyEventCounter() { QCoreApplication::instance()->installNativeEventFilter(this); }

    bool nativeEventFilter(const QByteArray & /*eventType*/, void *message, qintptr * /*result*/) override
    {
        if (static_cast<const xcb_generic_event_t *>(message)->response_type == XCB_KEY_PRESS)
            ++presses_;
        return false;
    }

    [[nodiscard]] int presses() const { return presses_; }

private:
    int presses_ = 0;
};

/// A program with hotkeys on an X server of its own.
class HotKeysFixture : public testing::Test {
protected:
    HotKeysFixture()
    {
        keys_->setHandlers({
            .hotKey =
                [this](std::uint32_t id, bool isPressed) {
                    heard_.append(QStringLiteral("%1 %2").arg(name(isPressed)).arg(id));
                    return true;
                },
            .rawKey =
                [this](std::uint32_t keyCode, std::uint32_t modifiers, bool isPressed) {
                    if (!rawKeys_.contains({keyCode, modifiers}))
                        return false;
                    heard_.append(
                        QStringLiteral("raw %1 %2+%3").arg(name(isPressed)).arg(modifiers, 0, 16).arg(keyCode, 0, 16));
                    return true;
                },
        });
    }

    /// All that was heard of the keys typed so far.
    [[nodiscard]] QStringList heard()
    {
        // F12 comes after them.
        const bool isRaw = listening_ == HotKeyPort::Listening::rawKeys;
        if (isRaw)
            rawKeys_.append({keyF12, 0});
        else
            add(endID, keyF12, 0);
        server_.type(QStringLiteral("key"), QStringLiteral("F12"));
        const QString last = isRaw ? QStringLiteral("raw release 0+6f") : QStringLiteral("release %1").arg(endID);
        EXPECT_TRUE(eventually([&] { return heard_.contains(last); })) << heard_.join(u',').toStdString();
        keys_->remove(endID);
        rawKeys_.removeAll({keyF12, 0});
        heard_.removeIf([&](const QString &each) { return each.endsWith(last.sliced(last.lastIndexOf(u' '))); });
        return std::exchange(heard_, {});
    }

    /// Waits for this; false when it doesn't come.
    [[nodiscard]] bool hears(const QString &event)
    {
        return eventually([&] { return heard_.contains(event); });
    }

    void add(std::uint32_t id, std::uint32_t keyCode, std::uint32_t modifiers)
    {
        const auto added = keys_->add(id, keyCode, modifiers);
        EXPECT_TRUE(added) << added.error();
    }

    void listen(HotKeyPort::Listening listening)
    {
        listening_ = listening;
        keys_->listen(listening);
    }

    void type(const char *action, const char *keys)
    {
        server_.type(QLatin1StringView(action), QLatin1StringView(keys));
    }

    [[nodiscard]] static bool eventually(const std::function<bool()> &condition)
    {
        return QTest::qWaitFor(condition, 30'000);
    }

    XServer server_;
    ActivationSource source_;
    /// What the handler for raw keys uses.
    QList<std::pair<std::uint32_t, std::uint32_t>> rawKeys_;

private:
    [[nodiscard]] static QString name(bool isPressed)
    {
        return isPressed ? QStringLiteral("press") : QStringLiteral("release");
    }

    static constexpr std::uint32_t endID = 99;

    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QStringList heard_;
    HotKeyPort::Listening listening_ = HotKeyPort::Listening::nothing;

protected:
    QApplication program_{argumentCount_, arguments_};
    std::unique_ptr<X11HotKeys> keys_ = X11HotKeys::create(source_);
};

} // namespace vantrel::test
