// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Notices.h"

#include <cstdio>
#include <utility>

#include "platform/jet/JetText.h"

namespace jet {

namespace {

NoticeHandler noticeHandler;

}  // namespace

void setNoticeHandler(NoticeHandler handler) {
    noticeHandler = std::move(handler);
}

void notice(const std::string& text) {
    if (noticeHandler)
        noticeHandler(toUtf16(text));
    else
        std::fprintf(stderr, "%s\n", text.c_str());
}

}  // namespace jet
