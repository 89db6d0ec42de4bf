#pragma once

#include "Platform/InstanceRequest.h"
#include "Platform/Linux/OwnedDescriptor.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QJsonArray>
#include <QProcess>

#include <list>

namespace vantrel::test {

/// A session of a user's without a bus, in a folder of its own, for programs that report.
class InstanceSession {
public:
    InstanceSession();
    ~InstanceSession();
    Q_DISABLE_COPY_MOVE(InstanceSession)

    [[nodiscard]] const TemporaryFolder &folder() const { return folder_; }
    [[nodiscard]] QProcessEnvironment &variables() { return variables_; }
    [[nodiscard]] QString socketPath() const;

    /// The program ends with the session.
    QProcess &start(const QStringList &arguments);

    /// The next report of any program. Waits for it, but not for ever: empty when none comes.
    [[nodiscard]] QJsonArray nextReport();
    /// As a program reports a request.
    [[nodiscard]] static QJsonArray report(const InstanceRequest &request);
    [[nodiscard]] static QJsonArray report(const QString &role, const QStringList &links = {});

    /// Lets programs go on that were started with "--wait".
    void letGo() { starter_.close(); }
    /// Has programs wait that are started with "--wait" from now on.
    void hold();

private:
    TemporaryFolder folder_;
    QProcessEnvironment variables_;
    OwnedDescriptor reports_;
    OwnedDescriptor starter_;
    QByteArray received_;
    std::list<QProcess> programs_;
};

} // namespace vantrel::test
