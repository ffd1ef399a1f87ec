// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

namespace jet {

/// Notices to the user of changes to files beside a database, though no call fails for them:
/// a journal that does not belong to its database was set aside. The handler gets a whole Italian sentence.
/// It is called in the middle of a call to the engine, with locks held: it may only keep the text for later.
/// Without a handler the text goes to the standard error stream. Set it before other threads use the engine.
using NoticeHandler = std::function<void(const std::u16string& text)>;
void setNoticeHandler(NoticeHandler handler);

/// For the engine: hands a text in UTF-8 to the handler.
void notice(const std::string& text);

}  // namespace jet
