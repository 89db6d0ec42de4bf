#pragma once

#include "Tests/Fakes/FakeAppProcess.h"
#include "Tests/Fakes/FakeLauncherProgram.h"
#include "Tests/Vantrel/CommandLine/TemporaryStream.h"
#include "Tests/Vantrel/PlantedBrowsers.h"
#include "Vantrel/CommandLine/CommandContext.h"

#include <QCoroTask>

#include <gtest/gtest.h>

#include <optional>
#include <ostream>

namespace vantrel {

/// How GoogleTest shows a status.
inline void PrintTo(ExitStatus status, std::ostream *stream)
{
    *stream << "exit status " << static_cast<int>(status);
}

} // namespace vantrel

namespace vantrel::test {

/// Commands run in this process, on planted browsers.
class CommandLineCase : public testing::Test {
protected:
    struct Answer {
        /// None while the command isn't done.
        std::optional<ExitStatus> status;
        QString results;
        QString messages;

        friend bool operator==(const Answer &, const Answer &) = default;

        friend void PrintTo(const Answer &answer, std::ostream *stream)
        {
            if (answer.status)
                PrintTo(*answer.status, stream);
            else
                *stream << "not done";
            *stream << "\nresults:\n" << answer.results.toStdString() << "messages:\n" << answer.messages.toStdString();
        }
    };

    /// A command that was started; it may have to wait.
    class Running {
    public:
        Running(const QStringList &arguments, CommandLineCase &owner);
        ~Running();
        Q_DISABLE_COPY_MOVE(Running)

        /// What there is up to now.
        [[nodiscard]] Answer answer() const;

    private:
        TemporaryStream results_;
        TemporaryStream messages_;
        Output output_;
        CommandContext context_;
        std::optional<ExitStatus> status_;
        std::optional<QCoro::Task<>> task_;
    };

    /// Runs a command that doesn't wait for anything.
    [[nodiscard]] Answer run(const QStringList &arguments);

    /// What a command answers that is done and has these results, and no message.
    [[nodiscard]] static Answer done(const QString &results = {});
    /// What a command answers that failed with this message, which ends its line.
    [[nodiscard]] static Answer failed(const QString &message, const QString &results = {});

    void writeSavedState(const QByteArray &json) const;

    PlantedBrowsers planted;
    /// What commands are given: the planted ones unless a test puts its own here.
    Workspace *workspace = &planted.workspace;
    const BrowserData *browserData = &planted.data;
    ProfileReader reader;
    FakeAppProcess app;
    FakeLauncherProgram launchers;
};

} // namespace vantrel::test
