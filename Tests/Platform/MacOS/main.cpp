#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char *argv[])
{
    // Ports and notifications need the main thread's run loop, which Qt without windows leaves alone otherwise.
    setenv("QT_EVENT_DISPATCHER_CORE_FOUNDATION", "1", 1);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
