#pragma once

#include <AppKit/NSAlert.h>
#include <AppKit/NSApplication.h>
#include <AppKit/NSEvent.h>
#include <AppKit/NSImage.h>
#include <AppKit/NSSavePanel.h>
#include <AppKit/NSWorkspace.h>
