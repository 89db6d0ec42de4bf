#include "Tests/Platform/Linux/ReportChannel.h"

#include <QDeadlineTimer>
#include <QFile>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

constexpr int millisecondsAllowed = 10000;

const QString &reportPipe()
{
    static const QString name = u"report"_s;
    return name;
}

const QString &holdPipe()
{
    static const QString name = u"hold"_s;
    return name;
}

void take(StartReport &report, const QByteArray &key, const QByteArray &value)
{
    if (key == "argument")
        report.arguments.append(value);
    else if (key == "variable")
        report.variables.append(value);
    else if (key == "descriptor")
        report.descriptors.insert(value.first(value.indexOf(' ')).toInt(), value.sliced(value.indexOf(' ') + 1));
    else if (key == "signals")
        report.signalMasks.append(value);
    else if (key == "directory")
        report.workingDirectory = value;
    else if (key == "session")
        report.session = value.toInt();
    else if (key == "terminal")
        report.terminal = value.toInt();
}

/// None when the text isn't complete.
std::optional<StartReport> parsed(const QByteArray &text)
{
    const QByteArrayList parts = text.split('\0');
    StartReport report;
    for (qsizetype index = 0; index + 1 < parts.size(); index += 2) {
        if (parts[index] == "end")
            return report;
        take(report, parts[index], parts[index + 1]);
    }
    return std::nullopt;
}

} // namespace

QString reportingProgram()
{
    return QStringLiteral(REPORTING_PROGRAM);
}

QStringList StartReport::givenArguments() const
{
    QStringList texts;
    for (const QByteArray &argument : arguments.mid(1))
        texts.append(QString::fromUtf8(argument));
    return texts;
}

std::optional<QByteArray> StartReport::variable(const QByteArray &name) const
{
    const QByteArray start = name + '=';
    for (const QByteArray &entry : variables) {
        if (entry.startsWith(start))
            return entry.sliced(start.size());
    }
    return std::nullopt;
}

ReportChannel::ReportChannel()
{
    folder_.makePipe(holdPipe());
    const QByteArray pipe = QFile::encodeName(folder_.makePipe(reportPipe()));
    reader_ = open(pipe.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_GE(reader_, 0);
}

ReportChannel::~ReportChannel()
{
    close(reader_);
}

void ReportChannel::addTo(QProcessEnvironment &variables) const
{
    variables.insert(u"REPORT_TO"_s, folder_.path(reportPipe()));
    if (holds_)
        variables.insert(u"REPORT_AFTER"_s, folder_.path(holdPipe()));
}

void ReportChannel::hold()
{
    holds_ = true;
}

bool ReportChannel::release() const
{
    const QByteArray pipe = QFile::encodeName(folder_.path(holdPipe()));
    const QDeadlineTimer deadline(millisecondsAllowed);
    while (!deadline.hasExpired()) {
        // Opens only once the program has opened its end.
        if (const int writer = open(pipe.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC); writer >= 0)
            return close(writer) == 0;
        poll(nullptr, 0, 1);
    }
    return false;
}

std::optional<StartReport> ReportChannel::next() const
{
    QByteArray text;
    const QDeadlineTimer deadline(millisecondsAllowed);
    while (!deadline.hasExpired()) {
        pollfd request{.fd = reader_, .events = POLLIN, .revents = 0};
        if (poll(&request, 1, static_cast<int>(deadline.remainingTime())) < 1)
            continue;
        char block[4096];
        const ssize_t count = read(reader_, block, sizeof block);
        if (count > 0)
            text.append(block, count);
        if (const auto report = parsed(text))
            return report;
        if (count == 0) {
            // The pipe looks closed until the next program opens it.
            poll(nullptr, 0, 1);
        }
    }
    return std::nullopt;
}

} // namespace vantrel::test
