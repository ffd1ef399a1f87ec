#include "platform/system/CoreDumps.h"

#include <sys/prctl.h>

namespace sys {

// A limit on the size would not do: a handler of dumps gets them whatever the limit.
void forbidCoreDumps() {
    prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
}

}  // namespace sys
