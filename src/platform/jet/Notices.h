// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "platform/Phrase.h"

namespace jet {

/// Notices to the user of changes to files beside a database, though no call fails for them:
/// a journal that does not belong to its database was set aside. The handler gets whole sentences.
/// It is called in the middle of a call to the engine, with locks held: it may only keep the text for later.
/// Without a handler the text goes to the standard error stream. Set it before other threads use the engine.
using NoticeHandler = std::function<void(const Phrase& text)>;
void setNoticeHandler(NoticeHandler handler);

/// For the engine: hands a text to the handler.
void notice(const Phrase& text);

}  // namespace jet
