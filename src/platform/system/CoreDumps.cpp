// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/CoreDumps.h"

#include <sys/prctl.h>

namespace sys {

// A limit on the size would not do: a handler of dumps gets them whatever the limit.
void forbidCoreDumps() {
    prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
}

CoreDumpsMeanwhile::CoreDumpsMeanwhile() : m_before(prctl(PR_GET_DUMPABLE, 0, 0, 0, 0)) {
    prctl(PR_SET_DUMPABLE, 1, 0, 0, 0);
}

CoreDumpsMeanwhile::~CoreDumpsMeanwhile() {
    if (m_before != 1) forbidCoreDumps();
}

}  // namespace sys
