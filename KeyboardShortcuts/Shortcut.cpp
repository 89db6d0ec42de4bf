#include "KeyboardShortcuts/Shortcut.h"

#include "KeyboardShortcuts/ModifierFlags.h"
#include "VantrelKit/JsonDecoding.h"

#include <QJsonDocument>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString keyCodeMember = u"carbonKeyCode"_s;
const QString modifiersMember = u"carbonModifiers"_s;

struct ModifierSymbol {
    std::uint32_t flag;
    QStringView symbol;
};

constexpr std::array modifierSymbols{
    ModifierSymbol{AppKitFlag::control, u"⌃"},
    ModifierSymbol{AppKitFlag::option, u"⌥"},
    ModifierSymbol{AppKitFlag::shift, u"⇧"},
    ModifierSymbol{AppKitFlag::command, u"⌘"},
    // Drawn as text, not as a picture in colour.
    ModifierSymbol{AppKitFlag::function, u"🌐\ufe0e"},
};

/// The first letter large and the rest small: one letter can have two as its large form, as ß has.
QString capitalized(const QString &text)
{
    const QString upper = text.toUpper();
    const qsizetype first = upper.size() > 1 && upper[0].isHighSurrogate() ? 2 : 1;
    return upper.first(std::min(first, upper.size())) + upper.sliced(std::min(first, upper.size())).toLower();
}

} // namespace

std::optional<Shortcut> Shortcut::fromEvent(const KeyEvent &event)
{
    if (event.type == KeyEvent::Type::flagsChanged || !event.keyCode)
        return std::nullopt;
    const std::uint32_t modifiers = vantrel::carbonModifiers(event.modifierFlags & ~AppKitFlag::function);
    return Shortcut{*event.keyCode, normalizedModifiers(modifiers)};
}

std::optional<Shortcut> Shortcut::fromJson(const QString &text)
{
    const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    const auto keyCode = json::integer(object, keyCodeMember);
    const auto modifiers = json::integer(object, modifiersMember);
    if (!keyCode || !modifiers)
        return std::nullopt;
    return Shortcut{*keyCode, *modifiers};
}

QString Shortcut::json() const
{
    const QJsonObject object{{keyCodeMember, carbonKeyCode}, {modifiersMember, carbonModifiers}};
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

std::uint32_t Shortcut::modifiers() const
{
    return appKitFlags(carbonModifiers);
}

std::optional<SpecialKey> Shortcut::key() const
{
    return specialKey(carbonKeyCode);
}

std::optional<QString> Shortcut::character(const KeyboardLayout &layout) const
{
    if (!std::in_range<std::uint32_t>(carbonKeyCode))
        return std::nullopt;
    const auto character = layout.character(static_cast<std::uint32_t>(carbonKeyCode));
    return character && !character->isEmpty() ? character : std::nullopt;
}

QString Shortcut::description(const KeyboardLayout &layout) const
{
    QString text;
    for (const ModifierSymbol &modifier : modifierSymbols) {
        if ((modifiers() & modifier.flag) != 0)
            text += modifier.symbol;
    }
    if (const auto special = key())
        return text + presentableText(*special);
    return text + capitalized(character(layout).value_or(QString(QChar::ReplacementCharacter)));
}

} // namespace vantrel
