#pragma once

// https://developer.apple.com/library/archive/documentation/System/Conceptual/ManPages_iPhoneOS/man2/removexattr.2.html
#include <sys/types.h>

#define XATTR_NOFOLLOW 0x0001

extern "C" ssize_t getxattr(const char *path, const char *name, void *value, size_t size, unsigned int position,
                            int options);
extern "C" int setxattr(const char *path, const char *name, const void *value, size_t size, unsigned int position,
                        int options);
extern "C" int removexattr(const char *path, const char *name, int options);
