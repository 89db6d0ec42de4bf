#include "Tests/Platform/MacOS/StandInBundle.h"

#include "Platform/MacOS/Opening.h"
#include "VantrelKit/PropertyList.h"

#include <QCoroTask>
#include <QFile>
#include <QTest>

#import <AppKit/AppKit.h>
#import <ApplicationServices/ApplicationServices.h>
#include <gtest/gtest.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

constexpr int patience = 20000;
const QString name = u"Stand-in.app"_s;

bool isThere(qint64 process)
{
    return kill(static_cast<pid_t>(process), 0) == 0;
}

} // namespace

StandInBundle::StandInBundle(QString bundleID, State state) : bundleID_(std::move(bundleID))
{
    const QVariantMap information{{u"CFBundleIdentifier"_s, bundleID_},
                                  {u"CFBundleExecutable"_s, u"Stand-in"_s},
                                  {u"CFBundlePackageType"_s, u"APPL"_s},
                                  {u"CFBundleName"_s, u"Other name"_s},
                                  {u"CFBundleInfoDictionaryVersion"_s, u"6.0"_s}};
    folder_.write(name + u"/Contents/Info.plist"_s, propertyListXML(information));
    folder_.makeFolder(name + u"/Contents/MacOS"_s);
    if (state == State::whole)
        EXPECT_TRUE(
            QFile::copy(QStringLiteral(STAND_IN_APPLICATION), folder_.path(name + u"/Contents/MacOS/Stand-in"_s)));
    else
        folder_.write(name + u"/Contents/MacOS/Stand-in"_s, "no program");
    EXPECT_EQ(LSRegisterURL((__bridge CFURLRef)url().toNSURL(), 1), noErr);
}

StandInBundle::~StandInBundle()
{
    for (const qint64 process : processes())
        kill(static_cast<pid_t>(process), SIGKILL);
}

QUrl StandInBundle::url() const
{
    return QUrl::fromLocalFile(folder_.path(name));
}

QList<qint64> StandInBundle::processes() const
{
    QList<qint64> found;
    for (NSRunningApplication *application in
         [NSRunningApplication runningApplicationsWithBundleIdentifier:bundleID_.toNSString()])
        found.append(application.processIdentifier);
    return found;
}

void StandInBundle::start()
{
    const QList<qint64> before = processes();
    const Opening opening{
        .application = url(), .instance = Opening::Instance::another, .appearance = Opening::Appearance::background};
    const auto opened = QCoro::waitFor(open(opening));
    ASSERT_TRUE(opened.has_value()) << opened.error().message.toStdString();
    ASSERT_TRUE(QTest::qWaitFor([&] { return processes().size() > before.size(); }, patience));
    // By then it has told the system that it is ready, and its end is news.
    EXPECT_TRUE(takeArguments().has_value());
    for (const qint64 process : processes()) {
        if (!before.contains(process))
            started_.append(process);
    }
}

void StandInBundle::end()
{
    ASSERT_FALSE(started_.isEmpty());
    const qint64 process = started_.takeLast();
    kill(static_cast<pid_t>(process), SIGTERM);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isThere(process) && !processes().contains(process); }, patience));
}

std::optional<QStringList> StandInBundle::takeArguments()
{
    QFile file(folder_.path(name + u".arguments"_s));
    if (!QTest::qWaitFor([&] { return file.exists(); }, patience) || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QStringList arguments = QString::fromUtf8(file.readAll()).split(QChar(u'\0'));
    arguments.removeLast();
    EXPECT_TRUE(file.remove());
    return arguments;
}

} // namespace vantrel::test
