#include "KeyboardShortcuts/Carbon/TypedCharacter.h"

#include <QList>

namespace vantrel {

std::optional<QString> typedCharacter(QStringView typed)
{
    // One character may take two units of UTF-16.
    const QList<uint> characters = typed.toUcs4();
    if (characters.size() != 1 || QChar::category(characters.first()) == QChar::Other_Control)
        return std::nullopt;
    return typed.toString();
}

} // namespace vantrel
