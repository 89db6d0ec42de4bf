#pragma once

#include "Tests/VantrelKit/Printing.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace vantrel::test {

/// A folder of its own for a test, removed with all it holds. Other users may look into it, so that a check can run as
/// one.
class TemporaryFolder {
public:
    TemporaryFolder();

    [[nodiscard]] QString path() const;
    [[nodiscard]] QString path(const QString &relative) const;

    /// Each makes what is missing above it, and returns the full path.
    QString makeFolder(const QString &relative) const;
    QString write(const QString &relative, const QByteArray &content = {}) const;
    QString makePipe(const QString &relative) const;
    QString link(const QString &relative, const QString &destination) const;

    /// A shell script that can be run; `body` is what follows the first line.
    QString writeScript(const QString &relative, const QByteArray &body) const;

    [[nodiscard]] QByteArray read(const QString &relative) const;

private:
    QTemporaryDir folder_;
};

/// Takes all rights on a file or folder away, and gives them back when it goes.
class ClosedPath {
public:
    explicit ClosedPath(const QString &path, unsigned mode = 0);
    ~ClosedPath();
    Q_DISABLE_COPY_MOVE(ClosedPath)

private:
    QByteArray path_;
    unsigned formerMode_ = 0;
};

} // namespace vantrel::test
