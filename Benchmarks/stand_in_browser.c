/* A browser's stand-in: tells through the pipe with the name RECORD when it began to run, on the clock that Python's
   time.monotonic_ns shows, and its first argument. */

#include <fcntl.h>
#include <stdint.h>
#include <string.h>
#include <time.h>
#include <unistd.h>

int main(int count, char **arguments)
{
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    char message[512] = {0};
    const int64_t nanoseconds = (int64_t)now.tv_sec * 1000000000 + now.tv_nsec;
    memcpy(message, &nanoseconds, sizeof nanoseconds);
    if (count > 1)
        strncpy(message + sizeof nanoseconds, arguments[1], sizeof message - sizeof nanoseconds - 1);
    const int pipe = open(RECORD, O_WRONLY);
    /* A message of this size arrives in one piece. */
    return pipe >= 0 && write(pipe, message, sizeof message) == sizeof message ? 0 : 1;
}
