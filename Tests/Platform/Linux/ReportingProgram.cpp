// What tests start in place of a browser. It tells how it was started: pairs of a key and a value, each ended by a zero
// byte, written to the pipe that $REPORT_TO names; the last key is "end". Where $REPORT_AFTER names a pipe, it first
// waits until that has been opened and closed at its other end.

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr unsigned secondsAllowed = 60;

using Report = std::vector<std::pair<std::string, std::string>>;

void addDescriptors(Report &report)
{
    namespace fs = std::filesystem;
    // Listed at once and looked at later: what listed the folder is then closed, and has no destination.
    const std::vector<fs::path> links(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
    for (const fs::path &link : links) {
        std::error_code isClosed;
        const fs::path destination = fs::read_symlink(link, isClosed);
        if (!isClosed)
            report.emplace_back("descriptor", link.filename().string() + ' ' + destination.string());
    }
}

/// The lines of the system's account of this process that tell which signals are ignored or blocked.
void addSignals(Report &report)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("SigIgn:") || line.starts_with("SigBlk:"))
            report.emplace_back("signals", line);
    }
}

/// The number of the terminal that this process belongs to, 0 for none.
std::string terminal()
{
    std::ifstream stat("/proc/self/stat");
    const std::string text((std::istreambuf_iterator<char>(stat)), std::istreambuf_iterator<char>());
    // The name in parentheses may hold blanks; state, parent, group, session and terminal follow it.
    std::string rest = text.substr(text.rfind(')') + 2);
    for (int field = 0; field < 4; ++field)
        rest = rest.substr(rest.find(' ') + 1);
    return rest.substr(0, rest.find(' '));
}

Report report(int argumentCount, char **arguments, char **variables)
{
    Report report;
    addDescriptors(report);
    addSignals(report);
    for (int index = 0; index < argumentCount; ++index)
        report.emplace_back("argument", arguments[index]);
    for (char **variable = variables; *variable; ++variable)
        report.emplace_back("variable", *variable);
    report.emplace_back("directory", std::filesystem::current_path().string());
    report.emplace_back("session", std::to_string(getsid(0)));
    report.emplace_back("terminal", terminal());
    report.emplace_back("end", "");
    return report;
}

const char *variable(const char *name)
{
    // Read before there is a second thread.
    return std::getenv(name);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    alarm(secondsAllowed);
    if (const char *pipe = variable("REPORT_AFTER"))
        std::ifstream(pipe).get();
    const char *destination = variable("REPORT_TO");
    if (!destination)
        return EXIT_FAILURE;
    const Report content = report(argumentCount, arguments, environ);
    std::ofstream stream(destination, std::ios::binary);
    for (const auto &[key, value] : content)
        stream << key << '\0' << value << '\0';
    return stream.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
