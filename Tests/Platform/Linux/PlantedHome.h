#pragma once

#include "Platform/Linux/Environment.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QProcessEnvironment>

namespace vantrel::test {

/// A home folder of its own for a test, in which browsers are installed and have data. All desktop entries are looked
/// for below it.
class PlantedHome : public TemporaryFolder {
public:
    PlantedHome();

    /// The variables that name the folders; `XDG_DATA_DIRS` names "share" and "other/share".
    [[nodiscard]] QProcessEnvironment &variables() { return variables_; }
    [[nodiscard]] Environment environment() const { return Environment::from(variables_); }

    /// A desktop entry that starts a program of this home: `name` is the file's, `keys` are lines added to it. Returns
    /// the file's path.
    QString installEntry(const QString &name, const QByteArray &keys = {},
                         const QString &folder = QStringLiteral("share/applications")) const;

    /// A program that can be executed and does nothing.
    QString installProgram(const QString &name = QStringLiteral("bin/program")) const;

private:
    QProcessEnvironment variables_;
};

/// A desktop entry's text: an application that starts `exec`, with further lines.
[[nodiscard]] QByteArray desktopEntry(const QString &exec, const QByteArray &keys = {});

} // namespace vantrel::test
