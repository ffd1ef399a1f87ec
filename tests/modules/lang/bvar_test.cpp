// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/lang/bVAR.h"

#include <gtest/gtest.h>

namespace bvar_test {

TEST(LanguageTexts, AreEmptyUntilALanguageIsRead) {
    const std::vector<const QString*> texts{&bVAR::Attenzione,
                                            &bVAR::Lingua,
                                            &bVAR::ChangeLang01,
                                            &bVAR::ImpossibileContinuare,
                                            &bVAR::accNomeVisual,
                                            &bVAR::accEmailCorretta,
                                            &bVAR::accServerSMTP,
                                            &bVAR::accPort,
                                            &bVAR::accAutenticazione,
                                            &bVAR::goSecondi,
                                            &bVAR::AddDestinatario,
                                            &bVAR::goApriEmail,
                                            &bVAR::goEmailDiOutlook,
                                            &bVAR::AzzeraMailing,
                                            &bVAR::FileAssistenza,
                                            &bVAR::DestInserisciEmail,
                                            &bVAR::xxxCAP,
                                            &bVAR::DestAggiungiDestinatario,
                                            &bVAR::DestInserireEmailCorretta,
                                            &bVAR::MailingSalvata,
                                            &bVAR::MailingSalva,
                                            &bVAR::MailingImporta,
                                            &bVAR::MailingOpen,
                                            &bVAR::xxxRagioneSociale,
                                            &bVAR::xxxNome,
                                            &bVAR::xxxPIva,
                                            &bVAR::xxxIndirizzo,
                                            &bVAR::xxxLocalita,
                                            &bVAR::xxxProvincia,
                                            &bVAR::xxxTelefono,
                                            &bVAR::xxxFax,
                                            &bVAR::xxxCampo1,
                                            &bVAR::xxxCampo2,
                                            &bVAR::xxxCampo3,
                                            &bVAR::xxxCampo4,
                                            &bVAR::xxxCampo5,
                                            &bVAR::xxxCampo6,
                                            &bVAR::xxxCampo7,
                                            &bVAR::xxxCampo8,
                                            &bVAR::xxxCampo9,
                                            &bVAR::varModDestinatario,
                                            &bVAR::varTitlePropBody,
                                            &bVAR::varAddDestinatario};
    EXPECT_EQ(texts.size(), 43u);
    for (const QString* text : texts)
        EXPECT_TRUE(text->isEmpty());
}

}  // namespace bvar_test
