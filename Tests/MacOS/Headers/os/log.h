#pragma once

#include <Declarations.h>

// https://developer.apple.com/documentation/os/os_log_t and https://developer.apple.com/documentation/os/os_log_type_t
@protocol OS_os_log
@end
typedef id<OS_os_log> os_log_t;
enum : std::uint8_t {
    OS_LOG_TYPE_DEFAULT = 0,
    OS_LOG_TYPE_INFO = 1,
    OS_LOG_TYPE_DEBUG = 2,
    OS_LOG_TYPE_ERROR = 16,
    OS_LOG_TYPE_FAULT = 17
};
typedef std::uint8_t os_log_type_t;

#pragma clang assume_nonnull begin
/// An object that the caller owns (the create rule).
SHIM_EXTERN os_log_t os_log_create(const char *subsystem, const char *category) __attribute__((ns_returns_retained));
SHIM_EXTERN bool os_log_type_enabled(os_log_t log, os_log_type_t type);
/// A macro in the system's header; the format is a literal, checked as `printf` checks it.
SHIM_EXTERN void os_log_with_type(os_log_t log, os_log_type_t type, const char *format, ...)
    __attribute__((format(os_log, 3, 4)));
#pragma clang assume_nonnull end
