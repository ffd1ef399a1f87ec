#pragma once

namespace sys {

/// From here on, until it ends, this process leaves no core dump, and no other process of the user looks into
/// its memory. To be called before a password is read. Programs that it starts are not concerned.
void forbidCoreDumps();

}  // namespace sys
