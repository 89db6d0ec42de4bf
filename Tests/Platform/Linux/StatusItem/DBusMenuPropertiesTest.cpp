#include "Platform/Linux/StatusItem/DBusMenuProperties.h"

#include "Tests/Platform/Linux/StatusItem/MenuSamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::command;
using test::plainRow;

TEST(DBusMenuLabel, EveryCharacterOfATitleStandsForItself)
{
    EXPECT_EQ(dbusMenuLabel(u"a_b & c"_s), u"a__b & c"_s);
    EXPECT_EQ(dbusMenuLabel(u"__x__"_s), u"____x____"_s);
    EXPECT_EQ(dbusMenuLabel(u"<b>&amp;</b>"_s), u"<b>&amp;</b>"_s);
    EXPECT_EQ(dbusMenuLabel(u"שלום العربية"_s), u"שלום العربية"_s);
    EXPECT_EQ(dbusMenuLabel(u"👩‍💻 東京"_s), u"👩‍💻 東京"_s);
    EXPECT_EQ(dbusMenuLabel(QString()), QString());
}

TEST(DBusMenuLabel, WhatWouldBreakTheLineIsABlank)
{
    EXPECT_EQ(dbusMenuLabel(u"a\nb\r\tc\u2028d\u2029e\u0085f"_s), u"a b  c d e f"_s);
    EXPECT_EQ(dbusMenuLabel(u"\u0001\u001b[31m\u007f"_s), u"  [31m "_s);
    EXPECT_EQ(dbusMenuLabel(u"a"_s + QChar(u'\0') + u"b"_s), u"a b"_s);
}

TEST(DBusMenuShortcut, NamesModifiersAndThenTheKey)
{
    const auto shortcut = [](const char16_t *text) {
        return dbusMenuShortcut(QKeySequence(QString::fromUtf16(text), QKeySequence::PortableText));
    };
    EXPECT_EQ(shortcut(u"Ctrl+Alt+P"), DBusMenuShortcut{(QStringList{u"Control"_s, u"Alt"_s, u"P"_s})});
    EXPECT_EQ(shortcut(u"Meta+Shift+F5"), DBusMenuShortcut{(QStringList{u"Super"_s, u"Shift"_s, u"F5"_s})});
    EXPECT_EQ(shortcut(u"Ctrl++"), DBusMenuShortcut{(QStringList{u"Control"_s, u"plus"_s})});
    EXPECT_EQ(shortcut(u"Alt+-"), DBusMenuShortcut{(QStringList{u"Alt"_s, u"minus"_s})});
    EXPECT_EQ(shortcut(u"Ctrl+Num+7"), DBusMenuShortcut{(QStringList{u"Control"_s, u"Num"_s, u"7"_s})});
    EXPECT_EQ(shortcut(u"Ctrl+K, 7"), (DBusMenuShortcut{{u"Control"_s, u"K"_s}, {u"7"_s}}));
}

TEST(DBusMenuProperties, ACommandHasOnlyALabel)
{
    EXPECT_EQ(dbusMenuProperties(command(u"1"_s, u"Work_1"_s)), (QVariantMap{{u"label"_s, u"Work__1"_s}}));
}

TEST(DBusMenuProperties, ACommandHasItsShortcutAndItsIcon)
{
    MenuItem item = command(u"1"_s, u"Work"_s);
    item.shortcut = QKeySequence(u"Ctrl+Alt+P"_s);
    int pixelsAskedFor = 0;
    item.iconPNG = [&](int pixels) {
        pixelsAskedFor = pixels;
        return test::squarePNG(pixels, 0xff00ff00);
    };
    const QVariantMap all = dbusMenuProperties(item);
    EXPECT_EQ(all.keys(), (QStringList{u"icon-data"_s, u"label"_s, u"shortcut"_s}));
    EXPECT_EQ(all.value(u"shortcut"_s).value<DBusMenuShortcut>(), dbusMenuShortcut(item.shortcut));
    const QImage icon = QImage::fromData(all.value(u"icon-data"_s).toByteArray(), "PNG");
    EXPECT_EQ(icon.size(), QSize(32, 32));
    EXPECT_EQ(pixelsAskedFor, 32);
    EXPECT_EQ(icon.pixel(16, 16), 0xff00ff00);
}

TEST(DBusMenuProperties, WhatCanNotBeChosenIsDisabled)
{
    const QVariantMap disabled{{u"label"_s, u"Title"_s}, {u"enabled"_s, false}};
    EXPECT_EQ(dbusMenuProperties(plainRow(MenuItem::Kind::text, u"Title"_s)), disabled);
    EXPECT_EQ(dbusMenuProperties(plainRow(MenuItem::Kind::header, u"Title"_s)), disabled);
    EXPECT_EQ(dbusMenuProperties(command(u"1"_s, u"Title"_s, {})), disabled);
}

TEST(DBusMenuProperties, AHeaderHasNoIconAndAnIconWithoutPixelsIsNone)
{
    MenuItem header = plainRow(MenuItem::Kind::header, u"Title"_s);
    header.iconPNG = [](int pixels) { return test::squarePNG(pixels, 0xff00ff00); };
    EXPECT_FALSE(dbusMenuProperties(header).contains(u"icon-data"_s));
    MenuItem item = command(u"1"_s, u"Title"_s);
    item.iconPNG = [](int) { return QByteArray(); };
    EXPECT_FALSE(dbusMenuProperties(item).contains(u"icon-data"_s));
}

TEST(DBusMenuProperties, ASeparatorIsNothingElse)
{
    EXPECT_EQ(dbusMenuProperties(plainRow(MenuItem::Kind::separator, u"Title"_s)),
              (QVariantMap{{u"type"_s, u"separator"_s}}));
}

} // namespace
} // namespace vantrel
