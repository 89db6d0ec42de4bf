#include "Vantrel/Interface/ShortcutRecorder.h"

#include "Vantrel/Interface/MenuIconEngine.h"
#include "Vantrel/Pictures/Symbols.h"
#include "Vantrel/RecorderRules.h"

#include <QAccessible>
#include <QHBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

bool isReturn(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// On a button an ampersand marks a mnemonic; some keyboards have a key for it.
QString escaped(QString text)
{
    return text.replace(u'&', "&&"_L1);
}

void announcePressed(QWidget *button)
{
    QAccessible::State changed;
    changed.pressed = true;
    QAccessibleStateChangeEvent event(button, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace

ShortcutRecorder::ShortcutRecorder(ShortcutName name, Environment environment, QWidget *parent)
    : QWidget(parent),
      name_(std::move(name)),
      environment_(std::move(environment)),
      shortcut_(environment_.shortcuts.getShortcut(name_)),
      main_(new QPushButton(this)),
      remove_(new QToolButton(this))
{
    arrange();
    drawRemoveSymbol();
    connect(main_, &QPushButton::clicked, this, &ShortcutRecorder::toggleRecording);
    connect(remove_, &QToolButton::clicked, this, &ShortcutRecorder::removeShortcut);
    connect(&environment_.shortcuts, &KeyboardShortcuts::shortcutByNameDidChange, this,
            [this](const ShortcutName &changed) {
                if (changed == name_)
                    refresh();
            });
    refresh();
}

ShortcutRecorder::~ShortcutRecorder()
{
    if (isRecording_)
        environment_.shortcuts.enable(environment_.allNames());
}

void ShortcutRecorder::arrange()
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(main_);
    layout->addWidget(remove_);
    main_->setFlat(true);
    // Return belongs to the button that has the focus, not to the window's default button.
    main_->setAutoDefault(false);
    main_->setFocusPolicy(Qt::StrongFocus);
    main_->installEventFilter(this);
    setFocusProxy(main_);
    remove_->setAutoRaise(true);
    // Recorders in a column are equally wide.
    QSizePolicy policy = remove_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    remove_->setSizePolicy(policy);
    // A press of the mouse leaves the focus where it is: recording would end, and the button move away before its
    // release.
    remove_->setFocusPolicy(Qt::TabFocus);
}

void ShortcutRecorder::setSubject(const QString &subject)
{
    subject_ = subject;
    refresh();
}

void ShortcutRecorder::refresh()
{
    shortcut_ = environment_.shortcuts.getShortcut(name_);
    //: Button that starts recording a keyboard shortcut.
    const QString recordText = tr("Record Shortcut");
    //: Stands on the button of a shortcut that is being recorded.
    const QString pressText = tr("Press Keys…");
    QString text;
    QString help;
    if (isRecording_) {
        text = pressText;
        //: Help on the button of a shortcut that is being recorded. Escape is the key.
        help = tr("Press the keys, Escape to cancel");
    } else {
        text = shortcut_ ? environment_.text(*shortcut_) : recordText;
        //: Help on the button that shows or records a keyboard shortcut.
        help = tr("Click, then press the shortcut that opens this profile");
    }
    for (const QString &widest : {recordText, pressText}) {
        main_->setText(widest);
        main_->setMinimumWidth(std::max(widest == recordText ? 0 : main_->minimumWidth(), main_->sizeHint().width()));
    }
    main_->setText(escaped(text));
    main_->setToolTip(help);
    main_->setAccessibleDescription(help);
    //: What screen readers say: the profile that a shortcut opens, and the shortcut or what is to be done.
    main_->setAccessibleName(subject_.isEmpty() ? text : tr("%1: %2").arg(subject_, text));
    //: Help on the small button beside a keyboard shortcut.
    const QString removeHelp = tr("Remove the shortcut");
    remove_->setToolTip(removeHelp);
    remove_->setAccessibleName(subject_.isEmpty() ? removeHelp : tr("%1: %2").arg(subject_, removeHelp));
    // What disappears can't keep the focus.
    if (!shortcut_ && remove_->hasFocus())
        main_->setFocus();
    remove_->setVisible(shortcut_.has_value());
}

void ShortcutRecorder::toggleRecording()
{
    if (isRecording_)
        stopRecording();
    else
        startRecording();
}

void ShortcutRecorder::startRecording()
{
    environment_.shortcuts.disable(environment_.allNames());
    isRecording_ = true;
    // Where clicks leave the focus alone, or a screen reader has clicked, the keys would go elsewhere.
    main_->window()->activateWindow();
    main_->setFocus();
    main_->setDown(true);
    announcePressed(main_);
    refresh();
}

void ShortcutRecorder::stopRecording()
{
    if (!isRecording_)
        return;
    environment_.shortcuts.enable(environment_.allNames());
    isRecording_ = false;
    main_->setDown(false);
    announcePressed(main_);
    refresh();
}

void ShortcutRecorder::removeShortcut()
{
    // Should another recorder be at work, it ends now.
    main_->setFocus();
    environment_.shortcuts.setShortcut(std::nullopt, name_);
    if (isRecording_)
        stopRecording();
    else // Another name may have the same shortcut, which the system has given back with this one's.
        environment_.shortcuts.enable(environment_.allNames());
}

bool ShortcutRecorder::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusOut:
    case QEvent::Hide: stopRecording(); break;
    // Without the first one, the keys of menus and buttons would act; the other one is a click where it is the space
    // bar's.
    case QEvent::ShortcutOverride:
    case QEvent::KeyRelease:
        if (!isRecording_)
            break;
        event->accept();
        return true;
    case QEvent::KeyPress:
        if (!takeKeyDown(*static_cast<QKeyEvent *>(event)))
            break;
        event->accept();
        return true;
    default: break;
    }
    return QWidget::eventFilter(object, event);
}

bool ShortcutRecorder::takeKeyDown(const QKeyEvent &event)
{
    // Also the key with which recording began or ended: its repeats would be refused, or close the window.
    if (event.isAutoRepeat())
        return ownsHeldKey_;
    ownsHeldKey_ = isRecording_ || isReturn(event);
    if (isRecording_)
        follow(environment_.readKey(event));
    else if (isReturn(event))
        main_->click();
    return ownsHeldKey_;
}

void ShortcutRecorder::follow(const KeyEvent &keyDown)
{
    if (keyDown.type != KeyEvent::Type::keyDown)
        return;
    const RecorderAnswer answer = recorderAnswer(keyDown);
    switch (answer.kind) {
    case RecorderAnswer::Kind::refuse: environment_.beep(); return;
    case RecorderAnswer::Kind::cancel: break;
    case RecorderAnswer::Kind::remove: environment_.shortcuts.setShortcut(std::nullopt, name_); break;
    case RecorderAnswer::Kind::record: environment_.shortcuts.setShortcut(answer.shortcut, name_); break;
    }
    stopRecording();
}

void ShortcutRecorder::changeEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::PaletteChange: drawRemoveSymbol(); break;
    case QEvent::FontChange:
        drawRemoveSymbol();
        refresh();
        break;
    case QEvent::LanguageChange: refresh(); break;
    default: break;
    }
    QWidget::changeEvent(event);
}

void ShortcutRecorder::drawRemoveSymbol()
{
    const QColor color = palette().color(QPalette::ButtonText);
    const int side = fontMetrics().height();
    remove_->setIconSize({side, side});
    remove_->setIcon(
        QIcon(new MenuIconEngine([color](int pixels) { return symbolImage(u"xmark.circle.fill"_s, pixels, color); })));
}

} // namespace vantrel
