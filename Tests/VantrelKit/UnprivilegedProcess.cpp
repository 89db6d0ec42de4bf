#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <fcntl.h>
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

constexpr unsigned nobody = 65534;
constexpr unsigned secondsAllowed = 60;

bool dropsRights()
{
    return geteuid() != 0 || (setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0);
}

bool writesAll(int descriptor, const QByteArray &bytes)
{
    for (qsizetype written = 0; written < bytes.size();) {
        const auto count = write(descriptor, bytes.constData() + written, static_cast<size_t>(bytes.size() - written));
        if (count < 0)
            return false;
        written += count;
    }
    return true;
}

[[noreturn]] void answer(int descriptor, const std::function<QString()> &check)
{
    alarm(secondsAllowed);
    if (!dropsRights())
        _exit(EXIT_FAILURE);
    _exit(writesAll(descriptor, check().toUtf8()) ? EXIT_SUCCESS : EXIT_FAILURE);
}

/// Closed in programs that the check starts: one that outlives the check must not keep the reader waiting. macOS has no
/// call that does both at once.
bool makePipe(std::array<int, 2> &ends)
{
    return pipe(ends.data()) == 0 && fcntl(ends[0], F_SETFD, FD_CLOEXEC) == 0 &&
           fcntl(ends[1], F_SETFD, FD_CLOEXEC) == 0;
}

QByteArray readToEnd(int descriptor)
{
    QByteArray bytes;
    std::array<char, 4096> block{};
    for (ssize_t count = 0; (count = read(descriptor, block.data(), block.size())) > 0;)
        bytes.append(block.data(), count);
    return bytes;
}

} // namespace

QString answerOfUnprivilegedProcess(const std::function<QString()> &check)
{
    std::array<int, 2> pipeEnds{};
    if (!makePipe(pipeEnds))
        return u"No pipe could be made."_s;
    const pid_t process = fork();
    if (process < 0)
        return u"No process could be made."_s;
    if (process == 0) {
        close(pipeEnds[0]);
        answer(pipeEnds[1], check);
    }
    close(pipeEnds[1]);
    const QByteArray text = readToEnd(pipeEnds[0]);
    close(pipeEnds[0]);
    int status = 0;
    waitpid(process, &status, 0);
    if (WIFSIGNALED(status))
        return u"The process was ended by signal %1."_s.arg(WTERMSIG(status));
    if (WEXITSTATUS(status) != EXIT_SUCCESS)
        return u"The process ended with status %1."_s.arg(WEXITSTATUS(status));
    return QString::fromUtf8(text);
}

} // namespace vantrel::test
