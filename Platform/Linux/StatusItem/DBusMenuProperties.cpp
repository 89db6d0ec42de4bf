#include "Platform/Linux/StatusItem/DBusMenuProperties.h"

#include "Platform/StatusItem.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

bool breaksLine(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

QStringList namesOfKeys(QKeyCombination combination)
{
    const Qt::KeyboardModifiers modifiers = combination.keyboardModifiers();
    QStringList names;
    if (modifiers.testFlag(Qt::MetaModifier))
        names.append(u"Super"_s);
    if (modifiers.testFlag(Qt::ControlModifier))
        names.append(u"Control"_s);
    if (modifiers.testFlag(Qt::AltModifier))
        names.append(u"Alt"_s);
    if (modifiers.testFlag(Qt::ShiftModifier))
        names.append(u"Shift"_s);
    if (modifiers.testFlag(Qt::KeypadModifier))
        names.append(u"Num"_s);
    const QString key = QKeySequence(combination.key()).toString(QKeySequence::PortableText);
    // Where shortcuts are written as one text, these two join the keys.
    if (key == "+"_L1)
        names.append(u"plus"_s);
    else if (key == "-"_L1)
        names.append(u"minus"_s);
    else
        names.append(key);
    return names;
}

} // namespace

QString dbusMenuLabel(const QString &title)
{
    QString label;
    label.reserve(title.size());
    for (const QChar character : title) {
        if (character == u'_')
            label.append("__"_L1);
        else
            label.append(breaksLine(character) ? QChar(u' ') : character);
    }
    return label;
}

DBusMenuShortcut dbusMenuShortcut(const QKeySequence &sequence)
{
    DBusMenuShortcut shortcut;
    for (int index = 0; index < sequence.count(); ++index)
        shortcut.append(namesOfKeys(sequence[static_cast<uint>(index)]));
    return shortcut;
}

QVariantMap dbusMenuProperties(const MenuItem &item)
{
    if (item.kind == MenuItem::Kind::separator)
        return {{u"type"_s, u"separator"_s}};
    QVariantMap properties{{u"label"_s, dbusMenuLabel(item.title)}};
    if (item.kind != MenuItem::Kind::command || !item.action)
        properties.insert(u"enabled"_s, false);
    if (!item.shortcut.isEmpty())
        properties.insert(u"shortcut"_s, QVariant::fromValue(dbusMenuShortcut(item.shortcut)));
    if (item.iconPNG && item.kind != MenuItem::Kind::header) {
        if (const QByteArray picture = item.iconPNG(StatusItem::menuIconPixels); !picture.isEmpty())
            properties.insert(u"icon-data"_s, picture);
    }
    return properties;
}

} // namespace vantrel
