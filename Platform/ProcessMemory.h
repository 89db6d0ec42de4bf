#pragma once

/// The memory of a program that waits in the background for weeks.
namespace vantrel::ProcessMemory {

/// Has what is freed go back to the system rather than wait for the next busy moment. Call first of all, before there
/// are other threads.
void keepSmall();

/// Gives back what is free now, and the code that is not in use this very moment, which is read again when it is
/// needed: for the end of a busy moment. From any thread.
void giveBack();

} // namespace vantrel::ProcessMemory
