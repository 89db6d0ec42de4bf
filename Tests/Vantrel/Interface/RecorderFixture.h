#pragma once

#include "KeyboardShortcuts/ModifierFlags.h"
#include "Tests/Fakes/FakeHotKeyPort.h"
#include "Tests/Fakes/FakeKeyboardLayout.h"
#include "Tests/Fakes/FakeUserDefaults.h"
#include "Tests/KeyboardShortcuts/Printing.h"
#include "Vantrel/Interface/ShortcutRecorder.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <memory>

namespace vantrel::test {

inline constexpr Shortcut controlA{0, CarbonModifier::control};
inline constexpr Shortcut controlP{35, CarbonModifier::control};

/// Two recorders in a window, with a field that can have the focus instead.
class RecorderFixture : public testing::Test {
protected:
    /// Keys by their scan codes and what a plain American layout makes of them.
    struct Key {
        quint32 scanCode;
        Qt::Key key;
    };
    static constexpr Key keyA{38, Qt::Key_A};
    static constexpr Key keyP{33, Qt::Key_P};
    static constexpr Key keyControl{37, Qt::Key_Control};
    static constexpr Key keyEscape{9, Qt::Key_Escape};
    static constexpr Key keyBackspace{22, Qt::Key_Backspace};
    static constexpr Key keyDelete{119, Qt::Key_Delete};
    static constexpr Key keyReturn{36, Qt::Key_Return};
    static constexpr Key keyTab{23, Qt::Key_Tab};
    static constexpr Key keySpace{65, Qt::Key_Space};

    void SetUp() override { showWindow(); }

    void showWindow()
    {
        window_ = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(window_.get());
        other_ = new QLineEdit;
        one_ = new ShortcutRecorder(nameOne_, environment());
        two_ = new ShortcutRecorder(nameTwo_, environment());
        for (QWidget *widget : std::initializer_list<QWidget *>{other_, one_, two_})
            layout->addWidget(widget);
        window_->show();
        window_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    }

    [[nodiscard]] ShortcutRecorder::Environment environment()
    {
        return {
            .shortcuts = shortcuts_,
            .allNames = [this] { return QList<ShortcutName>{nameOne_, nameTwo_}; },
            .text = [this](const Shortcut &shortcut) { return shortcut.description(layout_); },
            .beep = [this] { ++beeps_; },
            .readKey = keyEventByScanCode,
        };
    }

    [[nodiscard]] static QPushButton *main(const ShortcutRecorder *recorder)
    {
        return recorder->findChild<QPushButton *>();
    }

    [[nodiscard]] static QToolButton *remove(const ShortcutRecorder *recorder)
    {
        return recorder->findChild<QToolButton *>();
    }

    static void click(QWidget *button) { QTest::mouseClick(button, Qt::LeftButton); }

    enum class Repeat : std::uint8_t { no, yes };

    /// What has the focus gets the key, as the system sends it. True when it was used.
    static bool press(Key key, Qt::KeyboardModifiers modifiers = {}, Repeat repeat = Repeat::no)
    {
        const bool isRepeat = repeat == Repeat::yes;
        const QString text = key.key < Qt::Key_Escape ? QString(QChar(key.key)).toLower() : QString();
        QKeyEvent override(QEvent::ShortcutOverride, key.key, modifiers, key.scanCode, 0, 0, text, isRepeat);
        override.ignore();
        QApplication::sendEvent(QApplication::focusWidget(), &override);
        QKeyEvent event(QEvent::KeyPress, key.key, modifiers, key.scanCode, 0, 0, text, isRepeat);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
        return event.isAccepted();
    }

    static void release(Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QKeyEvent event(QEvent::KeyRelease, key.key, modifiers, key.scanCode, 0, 0);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }

    /// The shortcuts that the system holds.
    [[nodiscard]] qsizetype held() const { return port_.ids().size(); }

    FakeUserDefaults defaults_;
    FakeHotKeyPort port_;
    FakeKeyboardLayout layout_;
    KeyboardShortcuts shortcuts_{{defaults_, port_, layout_}};
    const ShortcutName nameOne_{QStringLiteral("profile.one")};
    const ShortcutName nameTwo_{QStringLiteral("profile.two")};
    int beeps_ = 0;
    std::unique_ptr<QWidget> window_;
    QLineEdit *other_ = nullptr;
    ShortcutRecorder *one_ = nullptr;
    ShortcutRecorder *two_ = nullptr;
};

} // namespace vantrel::test
