#include "Vantrel/Settings/ShortcutTexts.h"

#include "Vantrel/KeyEquivalent.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Settings)
};

} // namespace

QString ShortcutTexts::text(const Shortcut &shortcut) const
{
    const KeyboardLayout &layout = *keyboard_.layout;
    QString keys = conventions_.showsKeySigns ? shortcut.description(layout)
                                              : keyText(keyEquivalent(shortcut, layout, QtKeyNames::pc));
    const auto id = shortcuts_.hotKeyId(shortcut);
    const auto granted = id ? keyboard_.hotKeys->grantedTrigger(*id) : std::nullopt;
    if (!granted)
        return keys;
    //: A keyboard shortcut to which the desktop gave no keys. The placeholder is the keys that were asked for.
    return granted->isEmpty() ? Texts::tr("%1 (not given)").arg(keys) : *granted;
}

bool ShortcutTexts::areAvailable() const
{
    // What was refused is asked for once more with the next one that is recorded.
    return keyboard_.hotKeys->availability() != DesktopHotKeys::Availability::notAvailable;
}

std::optional<SettingsNote> ShortcutTexts::note() const
{
    const auto note = [](const QString &text) { return SettingsNote{.symbol = u"info.circle"_s, .text = text}; };
    switch (keyboard_.hotKeys->availability()) {
    case DesktopHotKeys::Availability::unknown:
    case DesktopHotKeys::Availability::available: return std::nullopt;
    case DesktopHotKeys::Availability::notAvailable:
        //: Above the list of profiles. “vantrel open” is a command, Copy Command the button beside each profile.
        return note(Texts::tr("This desktop has no keyboard shortcuts for programs. Its own settings can give one to a "
                              "command: Copy Command gives the “vantrel open” command of a profile."));
    case DesktopHotKeys::Availability::refused:
        //: Above the list of profiles. “vantrel open” and “vantrel list” are commands.
        return note(
            Texts::tr("The desktop didn't let Vantrel have its keyboard shortcuts. Allow them in its settings, or "
                      "record one again to be asked once more. It can also give a shortcut to the command "
                      "“vantrel open” with a profile's id, which “vantrel list” prints."));
    }
    Q_UNREACHABLE();
}

} // namespace vantrel
