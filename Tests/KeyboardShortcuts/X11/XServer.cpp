#include "Tests/KeyboardShortcuts/X11/XServer.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

constexpr int millisecondsAllowed = 30'000;

/// The Debian package of a program.
QString packageOf(const QString &program)
{
    if (program == "xdotool"_L1)
        return u"xdotool"_s;
    return program == "Xvfb"_L1 ? u"xvfb"_s : u"x11-xkb-utils"_s;
}

} // namespace

XServer::XServer()
{
    server_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // Also when the test is killed.
    server_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    server_.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"800x600x24"_s, u"-noreset"_s,
                              u"-nolisten"_s, u"tcp"_s});
    EXPECT_TRUE(server_.waitForStarted()) << "Xvfb can't be started: install the package xvfb.";
    while (!server_.canReadLine() && server_.waitForReadyRead(millisecondsAllowed)) {
    }
    const QByteArray number = server_.readLine().trimmed();
    EXPECT_FALSE(number.isEmpty()) << "Xvfb didn't tell its display.";
    display_.emplace("DISPLAY", ":" + number);
}

XServer::~XServer()
{
    server_.kill();
    server_.waitForFinished();
}

QByteArray XServer::run(const QString &program, const QStringList &arguments, const QByteArray &input) const
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForStarted()) << program.toStdString() << " can't be started: install the package "
                                          << packageOf(program).toStdString() << ".";
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(millisecondsAllowed)) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << program.toStdString() << ": " << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

void XServer::type(const QString &command, const QString &keys) const
{
    run(u"xdotool"_s, {command, keys});
}

} // namespace vantrel::test
