// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// A private session bus with a real, unlocked keyring; the environment of this process names it as long as
/// the object lives.
class PrivateKeyring {
  public:
    PrivateKeyring();
    ~PrivateKeyring();
    PrivateKeyring(const PrivateKeyring&) = delete;

    /// False where the programs are not installed.
    bool runs() const { return m_runs; }

  private:
    QTemporaryDir m_folder;
    QByteArray m_before;
    QProcess m_bus;
    QProcess m_keyring;
    bool m_runs = false;
};
