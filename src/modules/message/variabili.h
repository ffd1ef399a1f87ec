// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <QString>

#include "modules/store/Schema.h"

/// A placeholder that is replaced by a field of the recipient when the message is sent.
struct Variabile {
    schema::Campo campo;
    QString comando;  ///< of the editor, which inserts the text: "cmdVarRgs"
    QString didascalia;
    QString testo;
};

/// In the order of the editor's menu.
const std::array<Variabile, schema::numeroCampi>& VariabiliMessaggio();
