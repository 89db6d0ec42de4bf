#include "Platform/Linux/Instance/ActivationMessage.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QFile>
#include <QMap>
#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QString pathOf(const QString &name)
{
    return QStringLiteral(DESKTOP_FILES) + u'/' + name;
}

/// The keys of one group of a file, which is named as the app is on the bus.
QMap<QString, QString> group(const QString &name, const QString &suffix)
{
    QFile file(pathOf(ActivationMessage::busName() + suffix));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    QMap<QString, QString> keys;
    QString current;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'['))
            current = line.sliced(1).chopped(1);
        else if (current == name)
            keys.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
    }
    EXPECT_FALSE(keys.isEmpty()) << name.toStdString();
    return keys;
}

TEST(DesktopFiles, TheEntryIsValidWithoutAnyRemark)
{
    QProcess validator;
    validator.setProcessChannelMode(QProcess::MergedChannels);
    validator.start(u"desktop-file-validate"_s, {pathOf(u"app.kestrune.Vantrel.desktop"_s)});
    ASSERT_TRUE(validator.waitForFinished()) << "Install the package desktop-file-utils.";
    EXPECT_EQ(validator.readAll(), QByteArray());
    EXPECT_EQ(validator.exitCode(), 0);
}

TEST(DesktopFiles, TheServiceHasTheNameThatTheAppTakesOnTheBusAndStartsTheInstalledApp)
{
    const auto service = group(u"D-BUS Service"_s, u".service"_s);
    EXPECT_EQ(service.value(u"Name"_s), ActivationMessage::busName());
    EXPECT_EQ(service.value(u"Exec"_s), QStringLiteral(APP_PROGRAM));
    EXPECT_EQ(ActivationMessage::objectPath(), u'/' + ActivationMessage::busName().replace(u'.', u'/'));
}

TEST(DesktopFiles, TheEntryIsStartedByTheBusAndOpensTheProgramsLinks)
{
    const auto entry = group(u"Desktop Entry"_s, u".desktop"_s);
    EXPECT_EQ(entry.value(u"DBusActivatable"_s), u"true"_s);
    EXPECT_EQ(entry.value(u"MimeType"_s), u"x-scheme-handler/vantrel;"_s);
    EXPECT_EQ(entry.value(u"Exec"_s), u"vantrel %u"_s);
    EXPECT_EQ(entry.value(u"Icon"_s), ActivationMessage::busName());
}

TEST(DesktopFiles, EveryActionHasTheCommandOfItsName)
{
    const QStringList actions =
        group(u"Desktop Entry"_s, u".desktop"_s).value(u"Actions"_s).split(u';', Qt::SkipEmptyParts);
    EXPECT_EQ(actions, (QStringList{u"settings"_s, u"menu"_s}));
    for (const QString &action : actions) {
        const auto keys = group(u"Desktop Action "_s + action, u".desktop"_s);
        EXPECT_EQ(keys.value(u"Exec"_s), QString(u"vantrel "_s + action));
        EXPECT_FALSE(keys.value(u"Name"_s).isEmpty());
    }
}

} // namespace
} // namespace vantrel
