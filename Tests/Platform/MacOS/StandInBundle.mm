#include "Tests/Platform/MacOS/StandInBundle.h"

#include "Platform/MacOS/Opening.h"
#include "VantrelKit/PropertyList.h"

#include <QCoroTask>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QThread>

#import <AppKit/AppKit.h>
#import <ApplicationServices/ApplicationServices.h>
#include <gtest/gtest.h>

#include <algorithm>
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

/// Whether the system has heard from it that it is ready. Before, its end need not be news.
bool isReady(qint64 process)
{
    NSRunningApplication *application =
        [NSRunningApplication runningApplicationWithProcessIdentifier:static_cast<pid_t>(process)];
    return application.finishedLaunching == YES;
}

QString realPath(const QUrl &bundle)
{
    return QFileInfo(bundle.toLocalFile()).canonicalFilePath();
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
    endAll();
}

QUrl StandInBundle::url() const
{
    return QUrl::fromLocalFile(folder_.path(name));
}

QList<qint64> StandInBundle::processes() const
{
    QList<qint64> found;
    for (NSRunningApplication *application in
         [NSRunningApplication runningApplicationsWithBundleIdentifier:bundleID_.toNSString()]) {
        // One that has ended may have no number, which -1 stands for: as an address of signals that means everybody.
        const bool isProcess = !application.terminated && application.processIdentifier > 0;
        // The user may have the browser, too.
        if (isProcess && realPath(QUrl::fromNSURL(application.bundleURL)) == realPath(url()))
            found.append(application.processIdentifier);
    }
    return found;
}

void StandInBundle::start()
{
    const QList<qint64> before = processes();
    const Opening opening{
        .application = url(), .instance = Opening::Instance::another, .appearance = Opening::Appearance::background};
    const auto opened = QCoro::waitFor(open(opening));
    ASSERT_TRUE(opened.has_value()) << opened.error().message.toStdString();
    const auto takeStarted = [&] {
        const QList<qint64> now = processes();
        const auto started =
            std::ranges::find_if(now, [&](qint64 process) { return !before.contains(process) && isReady(process); });
        if (started == now.end())
            return false;
        started_.append(*started);
        return true;
    };
    ASSERT_TRUE(QTest::qWaitFor(takeStarted, patience));
    EXPECT_TRUE(takeArguments().has_value());
}

void StandInBundle::end()
{
    ASSERT_FALSE(started_.isEmpty());
    const qint64 process = started_.takeLast();
    kill(static_cast<pid_t>(process), SIGTERM);
    // Not in the event loop, which would tell of the end.
    const QDeadlineTimer deadline(patience);
    while (isThere(process) && !deadline.hasExpired())
        QThread::msleep(5);
    EXPECT_FALSE(isThere(process));
}

void StandInBundle::endAll() const
{
    for (const qint64 process : processes())
        kill(static_cast<pid_t>(process), SIGKILL);
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
