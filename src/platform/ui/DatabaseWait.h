// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ado/Waiting.h"
#include "platform/ui/WaitNotice.h"

namespace ui {

/// The notice while a statement waits for another program that works on the database. As long as it exists,
/// every wait of the data access layer goes through it; a stop button is clicked once the statement has
/// returned.
class DatabaseWait : public WaitNotice {
    Q_OBJECT

  public:
    DatabaseWait(std::function<void(const QString&)> tell, QObject* parent);
    ~DatabaseWait() override;

  private:
    ado::WaitHook m_before;
};

}  // namespace ui
