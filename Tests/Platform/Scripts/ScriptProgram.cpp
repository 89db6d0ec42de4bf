#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>

/// What tests hand scripts to: `-e SCRIPT`. A script that begins with "#play" says what to do in words: `status=3`,
/// `out=6869` and `err=…` (bytes as hexadecimal digits), `fill=N` (as many bytes on both), `hang=1`, `stubborn=1`
/// (doesn't end when asked to), `child=1` (leaves a child behind that keeps the output open), `signal=9`. Any other is
/// printed with the arguments and the input.
namespace {

std::string bytes(const std::string &digits)
{
    std::string result;
    for (size_t place = 0; place + 1 < digits.size(); place += 2)
        result += static_cast<char>(std::stoi(digits.substr(place, 2), nullptr, 16));
    return result;
}

/// Both in turns, for a reader that empties only one of them would wait for ever.
void fill(size_t count)
{
    const std::string block(4096, 'x');
    for (size_t done = 0; done < count; done += block.size()) {
        const size_t size = std::min(block.size(), count - done);
        std::cout.write(block.data(), static_cast<std::streamsize>(size));
        std::cerr.write(block.data(), static_cast<std::streamsize>(size));
    }
}

[[noreturn]] void hang()
{
    std::cout.flush();
    while (true)
        pause();
}

void leaveChild()
{
    if (fork() != 0)
        return;
    // For as long as any test may take, but not for ever.
    sleep(60);
    _exit(0);
}

int play(const std::string &script)
{
    std::istringstream words(script);
    std::string word;
    int status = 0;
    words >> word;
    while (words >> word) {
        const std::string name = word.substr(0, word.find('='));
        const std::string value = word.substr(word.find('=') + 1);
        if (name == "status")
            status = std::stoi(value);
        else if (name == "out")
            std::cout << bytes(value);
        else if (name == "err")
            std::cerr << bytes(value);
        else if (name == "fill")
            fill(std::stoul(value));
        else if (name == "stubborn")
            std::signal(SIGTERM, SIG_IGN);
        else if (name == "child")
            leaveChild();
        else if (name == "signal")
            std::raise(std::stoi(value));
        else if (name == "hang")
            hang();
    }
    return status;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc == 3 && std::string(argv[2]).starts_with("#play"))
        return play(argv[2]);
    for (int index = 1; index < argc; ++index)
        std::cout << argv[index] << '|';
    std::cout << std::string(std::istreambuf_iterator<char>(std::cin), {});
    return 0;
}
