#include "KeyboardShortcuts/KeyboardShortcuts.h"

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace vantrel {

KeyboardShortcuts::KeyboardShortcuts(Environment environment)
    : defaults_(environment.defaults),
      registry_(environment.port, environment.layout, std::move(environment.print))
{
}

ShortcutName KeyboardShortcuts::name(const QString &rawValue, const std::optional<Shortcut> &defaultShortcut)
{
    Name name{rawValue, defaultShortcut};
    if (defaultShortcut && !defaults_.value(userDefaultsKey(name)).isValid())
        setShortcut(defaultShortcut, name);
    return name;
}

std::optional<Shortcut> KeyboardShortcuts::getShortcut(const Name &name) const
{
    const QVariant stored = defaults_.value(userDefaultsKey(name));
    return stored.typeId() == QMetaType::QString ? Shortcut::fromJson(stored.toString()) : std::nullopt;
}

void KeyboardShortcuts::setShortcut(const std::optional<Shortcut> &shortcut, const Name &name)
{
    if (!shortcut) {
        remove(name);
        return;
    }
    if (const auto former = getShortcut(name))
        unregister(*former);
    registerIfNeeded(*shortcut);
    defaults_.setValue(userDefaultsKey(name), shortcut->json());
    Q_EMIT shortcutByNameDidChange(name);
}

void KeyboardShortcuts::remove(const Name &name)
{
    const auto former = getShortcut(name);
    if (!former)
        return;
    // That there is none is stored as well, or the default would come back.
    if (name.defaultShortcut)
        defaults_.setValue(userDefaultsKey(name), false);
    else
        defaults_.remove(userDefaultsKey(name));
    unregister(*former);
    Q_EMIT shortcutByNameDidChange(name);
}

void KeyboardShortcuts::onKeyDown(const Name &name, Action action)
{
    append(keyDownActions_, name, std::move(action));
    registerIfNeeded(name);
}

void KeyboardShortcuts::onKeyUp(const Name &name, Action action)
{
    append(keyUpActions_, name, std::move(action));
    registerIfNeeded(name);
}

void KeyboardShortcuts::disable(const QList<Name> &names)
{
    for (const Name &name : names) {
        if (const auto shortcut = getShortcut(name))
            unregister(*shortcut);
    }
}

void KeyboardShortcuts::enable(const QList<Name> &names)
{
    for (const Name &name : names)
        registerIfNeeded(name);
}

void KeyboardShortcuts::setEnabled(bool isEnabled)
{
    if (std::exchange(isEnabled_, isEnabled) != isEnabled)
        updateListening();
}

void KeyboardShortcuts::setMenuOpen(bool isOpen)
{
    if (std::exchange(isMenuOpen_, isOpen) != isOpen)
        updateListening();
}

QString KeyboardShortcuts::userDefaultsKey(const Name &name)
{
    return "KeyboardShortcuts_"_L1 + name.rawValue;
}

void KeyboardShortcuts::printToStandardOutput(const QString &line)
{
    // Whoever reads it through a pipe gets it now; there is nobody to tell that it can't be written.
    std::ignore = std::fputs((line + u'\n').toUtf8().constData(), stdout);
    std::ignore = std::fflush(stdout);
}

void KeyboardShortcuts::append(Actions &all, const Name &name, Action action)
{
    auto found = std::ranges::find(all, name, &NamedActions::name);
    if (found == all.end())
        found = all.insert(all.end(), {name, {}});
    found->actions.append(std::move(action));
}

void KeyboardShortcuts::registerIfNeeded(const Shortcut &shortcut)
{
    if (registered_.contains(shortcut))
        return;
    registry_.registerShortcut(
        shortcut, [this](const Shortcut &pressed) { dispatch(EventType::keyDown, pressed); },
        [this](const Shortcut &pressed) { dispatch(EventType::keyUp, pressed); });
    registered_.insert(shortcut);
}

void KeyboardShortcuts::registerIfNeeded(const Name &name)
{
    if (const auto shortcut = getShortcut(name))
        registerIfNeeded(*shortcut);
}

void KeyboardShortcuts::unregister(const Shortcut &shortcut)
{
    registry_.unregisterShortcut(shortcut);
    registered_.remove(shortcut);
}

void KeyboardShortcuts::updateListening()
{
    using Listening = HotKeyPort::Listening;
    if (!isEnabled_)
        registry_.setListening(Listening::nothing);
    else
        registry_.setListening(isMenuOpen_ ? Listening::rawKeys : Listening::hotKeys);
}

void KeyboardShortcuts::dispatch(EventType type, const Shortcut &pressed) const
{
    if (isRecorderActive_)
        return;
    // A copy: an action may add others.
    const Actions all = type == EventType::keyDown ? keyDownActions_ : keyUpActions_;
    for (const NamedActions &named : all) {
        if (getShortcut(named.name) != pressed)
            continue;
        for (const Action &action : named.actions)
            action();
    }
}

} // namespace vantrel
