#include "Tests/Vantrel/CommandLine/CommandLineCase.h"

#include "Vantrel/CommandLine/CommandLine.h"

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

QCoro::Task<> keepStatus(QStringList arguments, CommandContext &context, std::optional<ExitStatus> &status)
{
    status = co_await runCommandLine(std::move(arguments), context);
}

} // namespace

CommandLineCase::Running::Running(const QStringList &arguments, CommandLineCase &owner)
    : output_(results_.file(), messages_.file()),
      context_{.workspace = *owner.workspace,
               .browserData = *owner.browserData,
               .reader = owner.reader,
               .app = owner.app,
               .launchers = owner.launchers,
               .savedStatePath = owner.planted.folder.path(u"profiles.json"_s),
               .workingDirectory = owner.planted.folder.path(),
               .output = output_}
{
    task_ = keepStatus(arguments, context_, status_);
}

CommandLineCase::Running::~Running()
{
    EXPECT_TRUE(status_.has_value()) << "The command is not done.";
}

CommandLineCase::Answer CommandLineCase::Running::answer() const
{
    return {status_, results_.text(), messages_.text()};
}

CommandLineCase::Answer CommandLineCase::run(const QStringList &arguments)
{
    return Running(arguments, *this).answer();
}

CommandLineCase::Answer CommandLineCase::done(const QString &results)
{
    return {ExitStatus::done, results, {}};
}

CommandLineCase::Answer CommandLineCase::failed(const QString &message, const QString &results)
{
    return {ExitStatus::failed, results, "vantrel: "_L1 + message + u'\n'};
}

void CommandLineCase::writeSavedState(const QByteArray &json) const
{
    planted.folder.write(u"profiles.json"_s, json);
}

} // namespace vantrel::test
