// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace mail {
struct DkimKey;
}
namespace ui {
class Announcer;
}

/// The record to publish for a DKIM key, ready to be copied.
class frmChiaveDkim : public QDialog {
    Q_OBJECT

  public:
    /// `nuova`: the key was made just now.
    frmChiaveDkim(const QByteArray& dominio, const mail::DkimKey& chiave, bool nuova,
                  QWidget* parent = nullptr);

  private:
    ui::Announcer* annuncio;
};
