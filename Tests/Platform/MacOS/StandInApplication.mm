// What tests start in place of a browser: writes its arguments, each with a zero behind it, to a file beside its bundle
// that is named as the bundle with ".arguments", and runs until it is told to end. Should nobody be left to tell it, it
// ends by itself.

#import <AppKit/AppKit.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

int main(int argc, char *argv[])
{
    alarm(600);
    @autoreleasepool {
        const std::filesystem::path bundle = NSBundle.mainBundle.bundleURL.path.UTF8String;
        const std::string target = bundle.string() + ".arguments";
        {
            std::ofstream file(target + ".new", std::ios::binary);
            for (int index = 1; index < argc; ++index)
                file << argv[index] << '\0';
        }
        // It is there once it is complete.
        std::filesystem::rename(target + ".new", target);
        [NSApplication.sharedApplication run];
    }
}
