// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/DatabaseWait.h"

#include "platform/text/Words.h"
#include "platform/ui/PaintedWork.h"

namespace ui {

DatabaseWait::DatabaseWait(std::function<void(const QString&)> tell, QObject* parent)
    : WaitNotice(Words::tr("In attesa del database, usato da un altro programma… Esc per rinunciare"),
                 std::move(tell), parent),
      m_before(ado::setWaitHook({[this](std::chrono::milliseconds waited) {
                                     bool further = true;
                                     inWindowThread([&] { further = goOn(waited); });
                                     return further;
                                 },
                                 [this] { inWindowThread([this] { over(); }); }})) {}

DatabaseWait::~DatabaseWait() {
    ado::setWaitHook(std::move(m_before));
}

}  // namespace ui
