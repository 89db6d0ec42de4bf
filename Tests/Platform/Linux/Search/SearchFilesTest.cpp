#include "Platform/Linux/Instance/ActivationMessage.h"

#include <QFile>
#include <QMap>
#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QString pathOf(const QString &name)
{
    return QStringLiteral(SEARCH_FILES) + u"/Search/"_s + name;
}

/// The keys of a file that has one group.
QMap<QString, QString> keys(const QString &name, const QString &group)
{
    QFile file(pathOf(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    EXPECT_EQ(lines.takeFirst(), QString(u'[' + group + u']'));
    QMap<QString, QString> keys;
    for (const QString &line : std::as_const(lines))
        keys.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
    return keys;
}

TEST(SearchFiles, GnomeShellFindsTheAppAndItsObject)
{
    const auto provider = keys(u"app.kestrune.Vantrel-search-provider.ini"_s, u"Shell Search Provider"_s);
    EXPECT_EQ(provider.value(u"DesktopId"_s), QString(ActivationMessage::busName() + u".desktop"_s));
    EXPECT_EQ(provider.value(u"BusName"_s), ActivationMessage::busName());
    EXPECT_EQ(provider.value(u"ObjectPath"_s), ActivationMessage::objectPath());
    EXPECT_EQ(provider.value(u"Version"_s), u"2"_s);
}

TEST(SearchFiles, KRunnerFindsTheAppAndItsObject)
{
    const auto runner = keys(u"app.kestrune.Vantrel.desktop"_s, u"Desktop Entry"_s);
    EXPECT_EQ(runner.value(u"X-Plasma-DBusRunner-Service"_s), ActivationMessage::busName());
    EXPECT_EQ(runner.value(u"X-Plasma-DBusRunner-Path"_s), ActivationMessage::objectPath());
    EXPECT_EQ(runner.value(u"X-KDE-ServiceTypes"_s), u"Plasma/Runner"_s);
    EXPECT_EQ(runner.value(u"X-Plasma-API"_s), u"DBus2"_s);
    EXPECT_EQ(runner.value(u"Icon"_s), ActivationMessage::busName());
}

TEST(SearchFiles, TheRunnersEntryIsValidWithoutAnyRemark)
{
    QProcess validator;
    validator.setProcessChannelMode(QProcess::MergedChannels);
    validator.start(u"desktop-file-validate"_s, {pathOf(u"app.kestrune.Vantrel.desktop"_s)});
    ASSERT_TRUE(validator.waitForFinished()) << "Install the package desktop-file-utils.";
    EXPECT_EQ(validator.readAll(), QByteArray());
    EXPECT_EQ(validator.exitCode(), 0);
}

} // namespace
} // namespace vantrel
