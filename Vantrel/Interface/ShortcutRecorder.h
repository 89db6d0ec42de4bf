#pragma once

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "Vantrel/Interface/QtKeyEvent.h"

#include <QPushButton>
#include <QToolButton>
#include <QWidget>

namespace vantrel {

/// Shows a name's shortcut, records another one from the next keys, and takes it away. While it records, the shortcuts
/// of all names are off, so that pressing one records it. Recording ends with the focus, the window or the recorder
/// too.
class ShortcutRecorder final : public QWidget {
    Q_OBJECT

public:
    /// What it works with; all must outlive it.
    struct Environment {
        KeyboardShortcuts &shortcuts;
        /// Those that are switched off.
        std::function<QList<ShortcutName>()> allNames;
        /// How the user reads a shortcut.
        std::function<QString(const Shortcut &shortcut)> text;
        /// Says that keys can't be recorded.
        std::function<void()> beep;
        /// Reads the events of this desktop's keyboard.
        KeyEventReader readKey;
    };

    ShortcutRecorder(ShortcutName name, Environment environment, QWidget *parent = nullptr);
    ~ShortcutRecorder() override;
    Q_DISABLE_COPY_MOVE(ShortcutRecorder)

    [[nodiscard]] bool isRecording() const { return isRecording_; }

    /// What the shortcut opens, which is said to those who can't see the row: a profile's name.
    void setSubject(const QString &subject);

    /// What takes the focus, in order.
    [[nodiscard]] QList<QWidget *> controls() const { return {main_, remove_}; }

    /// Shows everything anew: also when the layout of the keyboard has changed.
    void refresh();

    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void arrange();
    void toggleRecording();
    void startRecording();
    void stopRecording();
    void removeShortcut();
    [[nodiscard]] bool takeKeyDown(const QKeyEvent &event);
    void follow(const KeyEvent &keyDown);
    void drawRemoveSymbol();

    ShortcutName name_;
    Environment environment_;
    std::optional<Shortcut> shortcut_;
    QPushButton *main_;
    QToolButton *remove_;
    QString subject_;
    bool isRecording_ = false;
    /// The key that went down last was recorded from: its repeats are nobody else's.
    bool ownsHeldKey_ = false;
};

} // namespace vantrel
