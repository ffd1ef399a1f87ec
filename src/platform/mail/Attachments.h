// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "platform/mail/CarriedFile.h"
#include "platform/mail/FileStamp.h"
#include "platform/mail/Message.h"
#include "platform/mail/MessageText.h"

namespace mail {

/// The encoded attachments of the last message. A file is read and encoded once, as long as messages name it
/// and it does not change.
class Attachments {
  public:
    /// Updates the parts to the list. Fails when a file is missing, cannot be read or is too large
    /// for any server (FileNotFound, PathAccess, RecordTooLarge); the text names the attachment.
    /// A file that is not in `allowed` fails with PathAccess.
    Status follow(const QVector<Attachment>& list, const CarriedFiles& allowed = {});

    /// One complete part for each attachment of the list, in its order.
    const std::vector<SharedLines>& parts() const { return m_parts; }

  private:
    struct Known {
        Attachment file;
        FileStamp stamp;
    };

    CarriedFiles m_allowed;
    std::vector<Known> m_known;  // same order as m_parts
    std::vector<SharedLines> m_parts;
};

}  // namespace mail
