// expected-no-diagnostics
// Read as headers of our own, so that nothing in them is passed over.
#include <AppKit/AppKit.h>
#include <ApplicationServices/ApplicationServices.h>
#include <Carbon/Carbon.h>
#include <CoreGraphics/CGEvent.h>
#include <OSLog/OSLog.h>
#include <ScriptingBridge/ScriptingBridge.h>
#include <ServiceManagement/ServiceManagement.h>
#include <Sparkle/Sparkle.h>
#include <UniformTypeIdentifiers/UniformTypeIdentifiers.h>
#include <malloc/malloc.h>
#include <os/log.h>
#include <sys/stdio.h>
#include <sys/xattr.h>
