// SPDX-License-Identifier: GPL-3.0-or-later
// The copy of a message that one recipient would get.
#include "modules/strumenti/CopiaProva.h"

#include <gtest/gtest.h>

#include "modules/core/Fallimento.h"
#include "modules/send/Selezione.h"
#include "modules/store/RecordsetDB.h"
#include "platform/mail/Composer.h"
#include "support/SampleFolder.h"
#include "support/Vectors.h"
#include "support/WholeText.h"

namespace copia_prova_test {

using namespace testing_support;

namespace {

MessaggioMss message(const QString& body, const QString& subject = "Per :::rgs:::") {
    return {subject, "HI", {}, body};
}

CopiaProva firstCopy(const ModelloProva& model) {
    ado::Recordset rows = RecordsetDB();
    rows.setSource(codaInvio);
    esigi(rows.open());
    return LeggiCopia(model, rows);
}

}  // namespace

TEST(LeggiModelloProva, takesSubjectPriorityBodyTextAndAttachments) {
    SampleFolder folder;
    MessaggioMss written = message("<p>Gentile <b>:::nom:::</b></p>");
    written.Allegati = {folder.path("c'e.txt"), folder.path("manca.txt")};
    writeBytes(folder.path("c'e.txt"), "12345");
    const auto model = LeggiModelloProva(folder.writeMessage("m.mss", written));
    ASSERT_TRUE(model.ok()) << model.status().text().toStdString();
    EXPECT_EQ(model.value().testi.oggetto, "Per :::rgs:::");
    EXPECT_EQ(model.value().testi.corpoTesto, "Gentile :::nom:::");
    EXPECT_EQ(model.value().priorita, 1);
    ASSERT_EQ(model.value().allegati.size(), 2);
    EXPECT_TRUE(model.value().allegati[0].presente);
    EXPECT_FALSE(model.value().allegati[1].presente);
    EXPECT_EQ(model.value().inPartenza().size(), 1);
    EXPECT_FALSE(model.value().inPartenza()[0].riposto);
}

TEST(LeggiModelloProva, aFileThatIsMissingOrContainsNoMessageSaysSo) {
    SampleFolder folder;
    EXPECT_TRUE(LeggiModelloProva(folder.path("niente.mss"))
                    .status()
                    .text()
                    .startsWith("Il messaggio non si può aprire"));
    writeBytes(folder.path("rotto.mss"), "solo\r\ndue righe\r\n");
    EXPECT_TRUE(LeggiModelloProva(folder.path("rotto.mss"))
                    .status()
                    .text()
                    .startsWith("Il file non contiene un messaggio intero"));
}

TEST(LeggiCopia, putsTheFieldsOfTheRowIntoEveryText) {
    SampleFolder folder;
    folder.addRecipient({{"rgs", "Rossi & C."}, {"email", "r@x.it"}, {"nom", QString()}});
    const auto model = LeggiModelloProva(
        folder.writeMessage("m.mss", message("<p>:::rgs::: :::nom:::</p><a rel=\"unsubscribe\" "
                                             "href=\"https://x.it/?e=:::email:::\">via</a>")));
    const CopiaProva copy = firstCopy(model.value());
    EXPECT_EQ(copy.testi.oggetto, "Per Rossi & C.");
    EXPECT_TRUE(copy.testi.corpoHtml.contains("<p>Rossi & C. :::nom:::</p>"));
    EXPECT_TRUE(copy.testi.corpoTesto.startsWith("Rossi & C. :::nom:::"));
    EXPECT_EQ(copy.testi.disiscrizione, "https://x.it/?e=r%40x.it");
    EXPECT_EQ(copy.indirizzo, "r@x.it");
    EXPECT_EQ(copy.nome, "Rossi & C.");
    EXPECT_TRUE(FormaTesto(copy.testi).contains("Collegamenti:"));
}

TEST(LeggiCopia, withoutARowThePlaceholdersStay) {
    SampleFolder folder;
    const auto model = LeggiModelloProva(folder.writeMessage());
    const CopiaProva copy = firstCopy(model.value());
    EXPECT_EQ(copy.testi.oggetto, ":::rgs:::");
    EXPECT_TRUE(copy.indirizzo.isEmpty());
}

TEST(FormaHtml, showsNoFileThatOnlyAValueNames) {
    SampleFolder folder;
    folder.addRecipient({{"rgs", "A"}, {"email", "a@x.it"}, {"campo1", "<img src=\"/etc/hostname.png\">"}});
    const auto model =
        LeggiModelloProva(folder.writeMessage("m.mss", message("<img src=\"/tmp/mia.png\">:::campo1:::")));
    const QString shown = FormaHtml(model.value(), firstCopy(model.value()).testi);
    EXPECT_TRUE(shown.contains("/tmp/mia.png"));
    EXPECT_FALSE(shown.contains("/etc/hostname"));
}

TEST(DatiMessaggio, areThoseThatTheCompositionNeeds) {
    SampleFolder folder;
    folder.addRecipient({{"rgs", "A"}, {"email", "a@x.it"}});
    const auto model = LeggiModelloProva(folder.writeMessage());
    const Account sender = SampleFolder::loopbackAccount(25);
    mail::Composer composer;
    const auto composed =
        composer.compose(DatiMessaggio(model.value(), firstCopy(model.value()), sender, {}));
    ASSERT_TRUE(composed.ok()) << composed.status().text().toStdString();
    const QByteArray whole = wholeOf(composed.value().text);
    EXPECT_TRUE(whole.contains("Subject: A\r\n"));
    EXPECT_TRUE(whole.contains("a@x.it"));
}

}  // namespace copia_prova_test
