#include <Carbon/Carbon.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

/// Takes a combination for itself, as any other program might: its key code and Carbon's modifiers are the arguments.
/// Says so, and keeps it until it is ended, or by itself should nobody be left to do that.
int main(int argc, char *argv[])
{
    if (argc != 3)
        return 2;
    alarm(600);
    constexpr OSType signature = 0x486F6C64; // "Hold"
    EventHotKeyRef hotKey = nullptr;
    const OSStatus status =
        RegisterEventHotKey(static_cast<UInt32>(std::strtoul(argv[1], nullptr, 10)),
                            static_cast<UInt32>(std::strtoul(argv[2], nullptr, 10)), EventHotKeyID{signature, 1},
                            GetEventDispatcherTarget(), kEventHotKeyNoOptions, &hotKey);
    if (status != noErr)
        return 1;
    std::puts("held");
    std::fflush(stdout);
    CFRunLoopRun();
    return 0;
}
