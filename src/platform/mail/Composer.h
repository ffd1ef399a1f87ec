// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "platform/mail/Message.h"
#include "platform/Status.h"

namespace mail {

/// The builder of messages. One Composer serves a whole run: it keeps encoded attachments, local images and
/// constant headers, and checks at each message whether values or files (size, time of change) differ.
///
/// The form of a message is described in docs/formats/message-on-the-wire.md.
class Composer {
  public:
    Composer();
    ~Composer();
    Composer(const Composer&) = delete;
    Composer& operator=(const Composer&) = delete;

    /// Fails when an address is not one plain addr-spec (TypeMismatch) and when an attachment cannot be read
    /// (FileNotFound, PathAccess). A local image that cannot be embedded is no failure: its reference stays
    /// unchanged.
    Result<ComposedMessage> compose(const MessageData& message);

  private:
    struct State;
    std::unique_ptr<State> m_state;
};

}  // namespace mail
