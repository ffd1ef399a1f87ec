// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/message/variabili.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace variabili_test {

TEST(PlaceholderMenu, HasItsCommandsCaptionsAndTextsInOrder) {
    QStringList shown;
    for (const Variabile& one : VariabiliMessaggio())
        shown << one.comando + '|' + one.didascalia + '|' + one.testo;
    EXPECT_EQ(shown, (QStringList{
                         "cmdVarRgs|Ragione Sociale|:::rgs:::", "cmdVarNom|Nome|:::nom:::",
                         "cmdVarEmail|Email|:::email:::",       "cmdVarPiva|P.Iva o Cod.Fis.|:::piva:::",
                         "cmdVarInd|Indirizzo|:::ind:::",       "cmdVarCap|CAP|:::cap:::",
                         "cmdVarLoc|Località|:::loc:::",        "cmdVarProv|Provincia|:::prov:::",
                         "cmdVarTel|Telefono|:::tel:::",        "cmdVarFax|Fax|:::fax:::",
                         "cmdVarCampo1|Campo 1|:::campo1:::",   "cmdVarCampo2|Campo 2|:::campo2:::",
                         "cmdVarCampo3|Campo 3|:::campo3:::",   "cmdVarCampo4|Campo 4|:::campo4:::",
                         "cmdVarCampo5|Campo 5|:::campo5:::",   "cmdVarCampo6|Campo 6|:::campo6:::",
                         "cmdVarCampo7|Campo 7|:::campo7:::",   "cmdVarCampo8|Campo 8|:::campo8:::",
                         "cmdVarCampo9|Campo 9|:::campo9:::",
                     }));
}

}  // namespace variabili_test
