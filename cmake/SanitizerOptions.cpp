/// What the sanitizers' runtime reads at the start of every program that is built with them.
// The runtime looks for this very name.
// NOLINTNEXTLINE(bugprone-reserved-identifier, readability-identifier-naming)
extern "C" const char *__asan_default_options()
{
    // Plugins that Qt loads bring thread-local variables with them. GCC 12's search for leaks guesses where these lie
    // when they are first used, sometimes wrongly, and then crashes ("Tracer caught signal 11"). It finds leaks without
    // this too.
    return "intercept_tls_get_addr=0";
}
