// What tests run in place of a browser: it takes the locks and names that a browser takes, writes a line and waits
// until its standard input ends. Then it gives them up as a browser does that is closed, and ends.
//
//   StandInBrowser chromium DATA-FOLDER HOST-NAME SOCKET-FOLDER    without a socket when its folder is "-"
//   StandInBrowser firefox PROFILE-FOLDER BUS-NAME                 without a name when it is "-"
//   StandInBrowser named BUS-NAME                                  the name alone
//   StandInBrowser idle                                            none of this

#include <QCoreApplication>
#include <QDBusConnection>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr unsigned secondsAllowed = 120;

using Arguments = std::vector<std::string>;
/// What is done when the browser is closed.
using Closing = std::function<void()>;

[[noreturn]] void fail(const char *what)
{
    std::perror(what);
    std::exit(EXIT_FAILURE); // NOLINT(concurrency-mt-unsafe): the only thread that could end the program.
}

void replaceLink(const fs::path &destination, const fs::path &link)
{
    fs::remove(link);
    fs::create_symlink(destination, link);
}

void listenAt(const fs::path &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::ranges::copy(path.native(), std::begin(address.sun_path));
    const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
    fs::remove(path);
    if (bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0 || listen(listener, 5) != 0)
        fail("listen");
}

Closing runChromium(const Arguments &arguments)
{
    const fs::path folder = arguments.at(0);
    const fs::path socketFolder = arguments.at(2);
    fs::create_directories(folder);
    const fs::path lock = folder / "SingletonLock";
    replaceLink(arguments.at(1) + '-' + std::to_string(getpid()), lock);
    if (socketFolder != "-") {
        replaceLink(socketFolder / "SingletonSocket", folder / "SingletonSocket");
        listenAt(socketFolder / "SingletonSocket");
    }
    // Stays open as many files of a browser do; its creation is what follows the lock's.
    static std::ofstream openFile;
    openFile.open(folder / "Local State");
    return [folder, lock] {
        fs::remove(lock);
        fs::remove(folder / "SingletonSocket");
    };
}

void ownName(const std::string &name)
{
    if (!QDBusConnection::sessionBus().registerService(QString::fromStdString(name)))
        fail("registerService");
}

Closing runFirefox(const Arguments &arguments)
{
    const fs::path folder = arguments.at(0);
    fs::create_directories(folder);
    const std::string path = folder / ".parentlock";
    const int file = open(path.c_str(), O_RDWR | O_CREAT, 0600);
    struct flock lock{};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    if (fcntl(file, F_SETLK, &lock) != 0)
        fail("lock");
    replaceLink("127.0.0.1:+" + std::to_string(getpid()), folder / "lock");
    if (arguments.at(1) != "-")
        ownName(arguments.at(1));
    return [] {};
}

Closing run(const std::string &command, const Arguments &arguments)
{
    if (command == "chromium")
        return runChromium(arguments);
    if (command == "firefox")
        return runFirefox(arguments);
    if (command == "named")
        ownName(arguments.at(0));
    return [] {};
}

} // namespace

int main(int argumentCount, char **arguments)
{
    alarm(secondsAllowed);
    const QCoreApplication program(argumentCount, arguments);
    const Closing close = run(arguments[1], Arguments(arguments + 2, arguments + argumentCount));
    std::puts("ready");
    static_cast<void>(std::fflush(stdout));
    while (std::getchar() != EOF) {
    }
    close();
    return EXIT_SUCCESS;
}
