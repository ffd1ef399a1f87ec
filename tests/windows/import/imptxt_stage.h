// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/import/frmImpTXT.h"
#include "windows/import/import_stage.h"

namespace testing_support {

inline QDialog& textImportWindow() {
    return finestre::ImpTXT();
}

/// The text import over the main window.
class TxtStage : public ImportStage {
  public:
    TxtStage() : ImportStage(textImportWindow) {}

    /// Makes the group the current node as a click on it does.
    void chooseNode(int group) {
        window();
        groups().CaricaGruppiINI();
        clickNode(QString("K%1").arg(group));
    }
    /// The file, and the fields of address and name.
    void map(const QString& path, int email, int name = 0) {
        type("txtPath", path);
        box(2)->setCurrentIndex(email);
        box(1)->setCurrentIndex(name);
    }
};

}  // namespace testing_support
