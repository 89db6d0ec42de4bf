#pragma once

/* The border between the program and the system's AppIntents framework, which only Swift can reach. It is plain C, for
   Swift imports it as it is. All functions and callbacks are for the main thread alone. Texts are UTF-8 and end in a
   zero. What a function or a callback is handed by pointer is valid until it returns, but for the context: that is the
   caller's own and is handed to its callback, which is called exactly once, before the function returns or later. */

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

struct VantrelProfile {
    const char *id;
    /* The name that the user sees. */
    const char *name;
    const char *browser;
    /* Browser and name. */
    const char *title;
    /* A PNG file; null for none. */
    const uint8_t *picture;
    size_t pictureSize;
};

enum VantrelOutcome {
    vantrelPerformed,
    /* The user has to choose the profile again. */
    vantrelNeedsProfile,
    /* The program ends, and nothing was opened. */
    vantrelUnavailable
};

/* The program's part. A call that comes while the program starts is answered once it can be. One that it can't answer
   any more gets no profiles, or "unavailable". */

/* In the order of the ids; those without a profile are left out. */
void vantrelProfilesWithIDs(const char *const *ids, size_t count, void *context,
                            void (*answer)(void *context, const struct VantrelProfile *profiles, size_t count));
void vantrelSuggestedProfiles(void *context,
                              void (*answer)(void *context, const struct VantrelProfile *profiles, size_t count));
void vantrelProfilesMatching(const char *text, void *context,
                             void (*answer)(void *context, const struct VantrelProfile *profiles, size_t count));
void vantrelOpenProfile(const char *profileID, void *context, void (*end)(void *context, enum VantrelOutcome outcome));
void vantrelOpenLinks(const char *const *links, size_t count, const char *profileID, void *context,
                      void (*end)(void *context, enum VantrelOutcome outcome));

/* Swift's part. A failure is described in words; null for none. */

void vantrelRemoveIndexedProfiles(void *context, void (*end)(void *context, const char *failure));
void vantrelIndexProfiles(const struct VantrelProfile *profiles, size_t count, void *context,
                          void (*end)(void *context, const char *failure));
/* The profiles that phrases can name are others now. */
void vantrelUpdateShortcutParameters(void); // NOLINT(modernize-redundant-void-arg): C takes () for "anything"

#ifdef __cplusplus
}
#endif
