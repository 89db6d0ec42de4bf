#include "Platform/Linux/DetachedProcess.h"

#include "Platform/Linux/ProcessHandle.h"

#include <QCoreApplication>
#include <QFile>
#include <QSocketNotifier>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(DetachedProcess)
};

/// Texts as the system's calls take them: addresses, the last of which is null.
class Vector {
public:
    explicit Vector(QByteArrayList texts) : texts_(std::move(texts))
    {
        addresses_.reserve(static_cast<size_t>(texts_.size()) + 1);
        for (QByteArray &text : texts_)
            addresses_.push_back(text.data());
        addresses_.push_back(nullptr);
    }
    [[nodiscard]] char *const *data() const { return addresses_.data(); }

private:
    QByteArrayList texts_;
    std::vector<char *> addresses_;
};

QByteArrayList encoded(const QStringList &texts)
{
    QByteArrayList all;
    for (const QString &text : texts)
        all.append(QFile::encodeName(text));
    return all;
}

/// How the new process differs from this one beside its program: see `startDetached`.
class Attributes {
public:
    Attributes()
    {
        posix_spawnattr_init(&value_);
        // All of them: sigfillset leaves out two that the C library uses itself, and the new process would ignore
        // these.
        sigset_t signals;
        std::memset(&signals, 0xff, sizeof signals);
        posix_spawnattr_setsigdefault(&value_, &signals);
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&value_, &signals);
        posix_spawnattr_setflags(&value_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    }
    ~Attributes() { posix_spawnattr_destroy(&value_); }
    Q_DISABLE_COPY_MOVE(Attributes)
    [[nodiscard]] const posix_spawnattr_t *get() const { return &value_; }

private:
    posix_spawnattr_t value_{};
};

/// What the new process does before its program begins.
class Preparations {
public:
    explicit Preparations(const QByteArray &workingDirectory)
    {
        posix_spawn_file_actions_init(&value_);
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&value_, stream, "/dev/null", O_RDWR, 0);
        // No file of this process is meant for another one, but libraries and whoever started it may have left some
        // open for children; a browser would keep them for days.
        posix_spawn_file_actions_addclosefrom_np(&value_, STDERR_FILENO + 1);
        if (!workingDirectory.isEmpty())
            posix_spawn_file_actions_addchdir_np(&value_, workingDirectory.constData());
    }
    ~Preparations() { posix_spawn_file_actions_destroy(&value_); }
    Q_DISABLE_COPY_MOVE(Preparations)
    [[nodiscard]] const posix_spawn_file_actions_t *get() const { return &value_; }

private:
    posix_spawn_file_actions_t value_{};
};

/// A child that has ended stays in the table of processes until its parent has asked for it. A program without an event
/// loop leaves that to whoever inherits its children.
void forgetAtItsEnd(pid_t child)
{
    auto *program = QCoreApplication::instance();
    auto process = ProcessHandle::open(child);
    if (!program || !process)
        return;
    auto *notifier = new QSocketNotifier(process->descriptor(), QSocketNotifier::Read, program);
    QObject::connect(notifier, &QSocketNotifier::activated, notifier,
                     [notifier, process = std::make_shared<ProcessHandle>(*std::move(process))] {
                         notifier->setEnabled(false);
                         waitpid(process->process(), nullptr, WNOHANG);
                         notifier->deleteLater();
                     });
}

} // namespace

QProcessEnvironment environmentForChildren(QProcessEnvironment variables)
{
    // systemd's for one service, the launchers' notes on which entry started this process, and what let this process
    // come to the front once.
    for (const auto name : {"INVOCATION_ID"_L1, "JOURNAL_STREAM"_L1, "NOTIFY_SOCKET"_L1, "WATCHDOG_PID"_L1,
                            "WATCHDOG_USEC"_L1, "LISTEN_FDS"_L1, "LISTEN_PID"_L1, "LISTEN_FDNAMES"_L1, "MANAGERPID"_L1,
                            "SYSTEMD_EXEC_PID"_L1, "GIO_LAUNCHED_DESKTOP_FILE"_L1, "GIO_LAUNCHED_DESKTOP_FILE_PID"_L1,
                            "BAMF_DESKTOP_FILE_HINT"_L1, "XDG_ACTIVATION_TOKEN"_L1, "DESKTOP_STARTUP_ID"_L1})
        variables.remove(name);
    return variables;
}

std::expected<void, PlatformError> startDetached(const QStringList &commandLine, const QString &workingDirectory,
                                                 const QProcessEnvironment &environment)
{
    if (commandLine.isEmpty()) {
        //: Error when a browser's desktop entry doesn't say which program to start.
        return std::unexpected(PlatformError{Texts::tr("There is no program to start.")});
    }
    const Vector arguments(encoded(commandLine));
    const Vector variables(encoded(environment.toStringList()));
    const Attributes attributes;
    const Preparations preparations(QFile::encodeName(workingDirectory));
    // QProcess would copy this process twice, and its tables of memory are large: that takes longer than all the rest.
    pid_t child = 0;
    const int failure = posix_spawnp(&child, arguments.data()[0], preparations.get(), attributes.get(),
                                     arguments.data(), variables.data());
    if (failure == 0) {
        forgetAtItsEnd(child);
        return {};
    }
    //: Error when a browser can't be started. First: its program; second: the system's reason.
    return std::unexpected(
        PlatformError{Texts::tr("%1 can't be started: %2.").arg(commandLine.first(), qt_error_string(failure))});
}

} // namespace vantrel
