#pragma once

#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QByteArrayList>
#include <QMap>
#include <QProcessEnvironment>
#include <QStringList>

#include <optional>

namespace vantrel::test {

/// The program to be started in place of a browser.
[[nodiscard]] QString reportingProgram();

/// How a program was started, as it saw it.
struct StartReport {
    /// The first is the program itself.
    QByteArrayList arguments;
    /// NAME=VALUE
    QByteArrayList variables;
    /// Number to what it is open on.
    QMap<int, QByteArray> descriptors;
    /// Lines as the system writes them.
    QByteArrayList signalMasks;
    QByteArray workingDirectory;
    int session = 0;
    /// The number of its terminal; 0 when it has none.
    int terminal = 0;

    /// The arguments without the program.
    [[nodiscard]] QStringList givenArguments() const;
    /// None when there is no such variable.
    [[nodiscard]] std::optional<QByteArray> variable(const QByteArray &name) const;
};

/// Where a started `reportingProgram` tells how it was started.
class ReportChannel {
public:
    ReportChannel();
    ~ReportChannel();
    Q_DISABLE_COPY_MOVE(ReportChannel)

    /// Adds the variables that lead a program's report here.
    void addTo(QProcessEnvironment &variables) const;

    /// Programs started with the variables added from now on report only after `release`.
    void hold();
    /// Lets one held program report. False when none came to wait for it in time.
    [[nodiscard]] bool release() const;

    /// The next report. Waits for it, but not for ever: none when it doesn't come.
    [[nodiscard]] std::optional<StartReport> next() const;

private:
    TemporaryFolder folder_;
    int reader_ = -1;
    bool holds_ = false;
};

} // namespace vantrel::test
