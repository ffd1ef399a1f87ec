#pragma once

#include <memory>

#include "platform/mail/Message.h"
#include "platform/Status.h"

namespace mail {

/// Builds messages. One Composer serves a whole run: it keeps encoded attachments, local images and constant
/// headers between messages, checked against the values and the files (size, time of change) at each message.
///
/// The form of a message is told in docs/formats/message-on-the-wire.md.
class Composer {
  public:
    Composer();
    ~Composer();
    Composer(const Composer&) = delete;
    Composer& operator=(const Composer&) = delete;

    /// Fails when an address is not one plain addr-spec (TypeMismatch) and when an attachment cannot be read
    /// (FileNotFound, PathAccess). A local image that cannot be embedded is no failure: its reference stays
    /// as it is.
    Result<ComposedMessage> compose(const MessageData& message);

  private:
    struct State;
    std::unique_ptr<State> m_state;
};

}  // namespace mail
