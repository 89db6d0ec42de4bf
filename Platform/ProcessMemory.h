#pragma once

namespace vantrel {

/// The memory of a program that waits in the background for weeks.
namespace ProcessMemory {

/// Has what is freed go back to the system rather than wait for the next busy moment. Call first of all.
void keepSmall();

/// Gives back what is free now; for the end of a busy moment. From any thread.
void giveBack();

} // namespace ProcessMemory
} // namespace vantrel
