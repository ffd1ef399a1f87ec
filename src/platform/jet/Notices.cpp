// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Notices.h"

#include <cstdio>
#include <utility>

namespace jet {

namespace {

NoticeHandler noticeHandler;

}  // namespace

void setNoticeHandler(NoticeHandler handler) {
    noticeHandler = std::move(handler);
}

void notice(const Phrase& text) {
    if (noticeHandler)
        noticeHandler(text);
    else
        std::fprintf(stderr, "%s\n", text.sourceText().c_str());
}

}  // namespace jet
