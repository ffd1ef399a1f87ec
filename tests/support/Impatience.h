// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ado/Waiting.h"

namespace testing_support {

/// While the object lives, each wait for another process is cancelled at once, as by a user who presses Esc.
class Impatience {
  public:
    Impatience() : m_before(ado::setWaitHook({[](std::chrono::milliseconds) { return false; }, {}})) {}
    ~Impatience() { ado::setWaitHook(std::move(m_before)); }
    Impatience(const Impatience&) = delete;

  private:
    ado::WaitHook m_before;
};

}  // namespace testing_support
