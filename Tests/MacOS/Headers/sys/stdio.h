#pragma once

// https://developer.apple.com/library/archive/documentation/System/Conceptual/ManPages_iPhoneOS/man2/renamex_np.2.html
#define RENAME_SWAP 0x00000002
#define RENAME_EXCL 0x00000004

extern "C" int renamex_np(const char *from, const char *to, unsigned int flags);
