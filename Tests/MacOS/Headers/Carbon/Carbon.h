#pragma once

#include <ApplicationServices/ApplicationServices.h>
#include <Carbon/CarbonEvents.h>
#include <Carbon/KeyboardLayouts.h>
#include <CoreFoundation/CFNotificationCenter.h>
