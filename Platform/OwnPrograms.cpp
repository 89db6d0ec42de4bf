#include "Platform/OwnPrograms.h"

#include "VantrelKit/Paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include <cerrno>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(OwnPrograms)
};

/// Beside this program where it was built, else in the folder that lies there from this program's.
QString programBesideOrIn(const QString &relativeFolder, const QString &name)
{
    const QString folder = QCoreApplication::applicationDirPath();
    const QString beside = joinedPath(folder, name);
    return QFileInfo::exists(beside) ? beside : QDir::cleanPath(folder + u'/' + relativeFolder + u'/' + name);
}

} // namespace

QString ownProgram(const QString &name)
{
    return programBesideOrIn(QStringLiteral(VANTREL_LIBEXEC_FROM_BIN), name);
}

QString commandProgram(const QString &searchPath)
{
    return lastingName(programBesideOrIn(QStringLiteral(VANTREL_BIN_FROM_LIBEXEC), u"vantrel"_s), searchPath);
}

QString lastingName(const QString &program, const QString &searchPath)
{
    const QFileInfo file(program);
    for (const QString &folder : searchPath.split(u':')) {
        const QString candidate = joinedPath(folder, file.fileName());
        // A relative folder leads elsewhere from elsewhere.
        if (folder.startsWith(u'/') && QFileInfo(candidate).isExecutable() &&
            QFileInfo(candidate).canonicalFilePath() == file.canonicalFilePath())
            return candidate;
    }
    return program;
}

PlatformError becomeProgram(const QString &program, const QStringList &arguments)
{
    std::vector<QByteArray> words{QFile::encodeName(program)};
    for (const QString &argument : arguments)
        words.push_back(argument.toLocal8Bit());
    std::vector<char *> pointers;
    pointers.reserve(words.size() + 1);
    for (QByteArray &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    execv(pointers.front(), pointers.data());
    //: Error when another program of ours can't be started. First: its path; second: the system's reason.
    return {Texts::tr("%1 can't be started: %2.").arg(program, qt_error_string(errno))};
}

} // namespace vantrel
