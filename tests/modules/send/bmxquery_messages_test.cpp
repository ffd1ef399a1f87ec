// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/bmxquery_state.h"
#include "platform/text/AnsiCodec.h"

namespace bmxquery_messages_test {

namespace {

class MXMessages : public ConStatoMX {};

QByteArray parola(int numero) {
    QByteArray bytes;
    bytes += static_cast<char>(numero / 256);
    bytes += static_cast<char>(numero % 256);
    return bytes;
}

QByteArray etichetta(const QByteArray& testo) {
    return QByteArray(1, static_cast<char>(testo.size())) + testo;
}

const QByteArray domanda = QByteArray(12, '\0') + "\x06libero\x02it" + QByteArray::fromHex("00000f0001");
const QByteArray puntaDomanda = QByteArray::fromHex("c00c");

// An answer whose owner is the question's name.
QByteArray risposta(int preferenza, const QByteArray& nome) {
    return puntaDomanda + QByteArray::fromHex("000f000100000e10") +
           parola(static_cast<int>(nome.size()) + 2) + parola(preferenza) + nome;
}

QByteArray buffer(const QByteArray& datagramma) {
    return datagramma.leftJustified(dimensioneRisposta, '\0');
}

QString leggi(const QByteArray& datagramma, std::uint16_t risposte) {
    return LeggiRisposta(buffer(datagramma), 12, risposte);
}

QString nomeDa(const QByteArray& bytes, qsizetype& posizione) {
    QString nome;
    LeggiNome(bytes, posizione, nome);
    return nome;
}

TEST_F(MXMessages, QueriesAreAsWritten) {
    for (const QJsonValue caso : vectorsOf(QStringLiteral("mx/queries.json"))) {
        const QString domain = caso[QStringLiteral("domain")].toString();
        SCOPED_TRACE(domain.toStdString());
        EXPECT_EQ(NomeDNS(domain), esadecimale(caso[QStringLiteral("NomeDNS_hex")]));
        const QByteArray query = ComponiQuery(domain);
        EXPECT_EQ(query.chopped(1), esadecimale(caso[QStringLiteral("datagram_hex_without_spare")]));
        EXPECT_EQ(query.size(), caso[QStringLiteral("sendto_length")].toInt());
    }
}

TEST_F(MXMessages, DoubledPointIsAnEmptyLabel) {
    EXPECT_EQ(NomeDNS(QStringLiteral("a..b")), QByteArray("\1a\0\1b", 5));
    EXPECT_EQ(NomeDNS(QStringLiteral(".a")), QByteArray("\0\1a", 3));
    EXPECT_EQ(NomeDNS(QString()), QByteArray("\0", 1));
}

TEST_F(MXMessages, NamesAreOneByteForEachCharacter) {
    EXPECT_EQ(NomeDNS(QStringLiteral("caffè.it")),
              "\x05"
              "caff\xE8\x02it");
    EXPECT_EQ(NomeDNS(QStringLiteral("€Ω.it")), "\x02\x80?\x02it");
}

TEST_F(MXMessages, LengthsUpTo255FitAndALongerLabelCannotBeSent) {
    for (const int lunghezza : {63, 130, 255}) {
        const QByteArray nome = NomeDNS(QString(lunghezza, u'a'));
        EXPECT_EQ(static_cast<std::uint8_t>(nome.at(0)), lunghezza);
        EXPECT_EQ(nome.size(), lunghezza + 1);
    }
    const Fallimento fallimento = fallimentoDi([] { NomeDNS(QString(256, u'a')); });
    EXPECT_EQ(fallimento.numero(), 20000);
    EXPECT_EQ(fallimento.testo(), QStringLiteral("Problem sending MX query"));
    EXPECT_EQ(fallimento.sorgente(), QStringLiteral("MXQuery"));
}

TEST_F(MXMessages, RepliesReturnTheirExchangers) {
    for (const QJsonValue caso : vectorsOf(QStringLiteral("mx/replies.json"))) {
        SCOPED_TRACE(caso[QStringLiteral("name")].toString().toStdString());
        const auto risposte = static_cast<std::uint16_t>(caso[QStringLiteral("ancount")].toInt());
        if (risposte == 0) continue;  // such a reply is not read; other tests of the look-up send it
        const QJsonValue atteso = caso[QStringLiteral("expect")];
        ASSERT_TRUE(atteso[QStringLiteral("error")].isNull());
        const QString migliore = leggi(esadecimale(caso[QStringLiteral("reply_hex")]), risposte);
        EXPECT_EQ(migliore, atteso[QStringLiteral("bestMX")].toString());
        EXPECT_EQ(bestMX, migliore);
        EXPECT_EQ(elencoMX(), elencoDa(atteso[QStringLiteral("mxList")]));
        EXPECT_EQ(mxCount, atteso[QStringLiteral("mxList")].toArray().size());
    }
}

TEST_F(MXMessages, LowestPreferenceIsBestAndEqualOnesKeepTheirOrder) {
    EXPECT_EQ(leggi(domanda + risposta(20, "\1b" + puntaDomanda) + risposta(10, "\1a" + puntaDomanda) +
                        risposta(10, "\1c" + puntaDomanda),
                    3),
              QStringLiteral("a.libero.it"));
    EXPECT_EQ(elencoMX(), (ElencoMX{{QStringLiteral("a.libero.it"), 10},
                                    {QStringLiteral("c.libero.it"), 10},
                                    {QStringLiteral("b.libero.it"), 20}}));
}

TEST_F(MXMessages, PreferencesReachUpTo65535) {
    EXPECT_EQ(
        leggi(domanda + risposta(65535, "\1b" + puntaDomanda) + risposta(32768, "\1a" + puntaDomanda), 2),
        QStringLiteral("a.libero.it"));
    EXPECT_EQ(elencoMX().back(), (std::pair{QStringLiteral("b.libero.it"), 65535}));
}

TEST_F(MXMessages, FullyWrittenNamesReturnTheFirstRecordOnly) {
    const QByteArray scritti =
        domanda + risposta(20, QByteArray("\1b\2it\0", 6)) + risposta(10, QByteArray("\1a\2it\0", 6));
    EXPECT_EQ(leggi(scritti, 2), QStringLiteral("b.it"));
    EXPECT_EQ(mxCount, 1);
}

TEST_F(MXMessages, FirstAnswerOfAnotherTypeReturnsNothing) {
    QByteArray alias = risposta(10, "\1a" + puntaDomanda);
    alias[3] = 5;
    EXPECT_EQ(leggi(domanda + alias + risposta(10, "\1a" + puntaDomanda), 2), QString());
    EXPECT_EQ(mxCount, 0);
    EXPECT_TRUE(mxList.empty());
}

TEST_F(MXMessages, EarlierResultIsForgotten) {
    leggi(domanda + risposta(10, "\1a" + puntaDomanda), 1);
    ASSERT_EQ(mxCount, 1);
    leggi(domanda, 1);
    EXPECT_EQ(bestMX, QString());
    EXPECT_EQ(mxCount, 0);
    EXPECT_TRUE(mxList.empty());
}

TEST_F(MXMessages, ExchangerOfBlanksIsSkipped) {
    EXPECT_EQ(leggi(domanda + risposta(5, QByteArray("\2  \0", 4)), 1), QString());
    EXPECT_TRUE(mxList.empty());
}

TEST_F(MXMessages, EqualNamesOfOneReplyAreAllKept) {
    leggi(domanda + risposta(5, puntaDomanda) + risposta(5, puntaDomanda), 2);
    EXPECT_EQ(mxCount, 2);
}

TEST_F(MXMessages, MoreAnswersAnnouncedThanThereAreEndAtTheZerosAfterThem) {
    EXPECT_EQ(leggi(domanda + risposta(5, "\1a" + puntaDomanda), 65535), QStringLiteral("a.libero.it"));
    EXPECT_EQ(mxCount, 1);
}

TEST_F(MXMessages, EmptyReplyReadsAsNoExchanger) {
    EXPECT_EQ(leggi(QByteArray(), 1), QString());
    EXPECT_EQ(mxCount, 0);
}

TEST_F(MXMessages, NameEndsOnItsZeroOrAfterItsPointer) {
    qsizetype posizione = 0;
    EXPECT_EQ(nomeDa(QByteArray("\2mx\2it\0", 7), posizione), QStringLiteral("mx.it"));
    EXPECT_EQ(posizione, 6);
    posizione = 4;
    EXPECT_EQ(nomeDa(QByteArray::fromHex("0269740001"
                                         "61c000"),
                     posizione),
              QStringLiteral("a.it"));
    EXPECT_EQ(posizione, 8);
    posizione = 0;
    EXPECT_EQ(nomeDa(QByteArray(1, '\0'), posizione), QString());
    EXPECT_EQ(posizione, 0);
}

TEST_F(MXMessages, NameIsAppended) {
    QString nome = QStringLiteral("x");
    qsizetype posizione = 0;
    LeggiNome(QByteArray("\1a\0", 3), posizione, nome);
    EXPECT_EQ(nome, QStringLiteral("xa"));
}

TEST_F(MXMessages, PointersMayFollowEachOther) {
    qsizetype posizione = 6;
    EXPECT_EQ(nomeDa(QByteArray::fromHex("02697400c0000162c004"), posizione), QStringLiteral("b.it"));
    EXPECT_EQ(posizione, 10);
}

TEST_F(MXMessages, LengthsFrom64To191AreLengths) {
    qsizetype posizione = 0;
    EXPECT_EQ(nomeDa(etichetta(QByteArray(191, 'x')) + '\0', posizione), QString(191, u'x'));
    EXPECT_EQ(posizione, 192);
}

TEST_F(MXMessages, PointerBeyond255IsReadAsALength) {
    // C1 means 193 characters: the rest of the pointer and whatever follows, here the buffer's zeros.
    const QByteArray datagramma = domanda + risposta(10, QByteArray("\4mail\xC1\x0C"));
    const QString letto = QStringLiteral("mail.\x0C") + QString(192, QChar(0));
    EXPECT_EQ(leggi(datagramma, 1), letto);
    EXPECT_EQ(mxCount, 1);
}

TEST_F(MXMessages, FirstBytesFrom193To255AreLengths) {
    for (const int primo : {193, 224, 255}) {
        qsizetype posizione = 0;
        EXPECT_EQ(nomeDa(etichetta(QByteArray(primo, 'x')) + '\0', posizione), QString(primo, u'x'));
    }
}

TEST_F(MXMessages, PointerLoopsFailLikeAPositionBeyondTheBuffer) {
    // To itself, to each other, and one that adds a label in each round.
    for (const char* esagono : {"c000", "c002c000", "0161c000"}) {
        qsizetype posizione = 0;
        const QByteArray bytes = QByteArray::fromHex(esagono);
        EXPECT_EQ(fallimentoDi([&] { nomeDa(bytes, posizione); }).numero(), indiceOltre) << esagono;
    }
}

TEST_F(MXMessages, LongestChainOfPointersIsNoLoop) {
    // Each byte pair points to the pair before it; the first one to a lone zero.
    QByteArray catena(2, '\0');
    for (int meta = 0; meta < 254; meta += 2) {
        catena += '\xC0';
        catena += static_cast<char>(meta);
    }
    qsizetype posizione = 254;
    EXPECT_EQ(nomeDa(catena, posizione), QString());
    EXPECT_EQ(posizione, 256);
}

TEST_F(MXMessages, ReadingBeyondTheBufferFails) {
    for (const char* esagono : {"", "05616263", "0161", "c0", "01"}) {
        qsizetype posizione = 0;
        const QByteArray bytes = QByteArray::fromHex(esagono);
        EXPECT_EQ(fallimentoDi([&] { nomeDa(bytes, posizione); }).numero(), indiceOltre) << esagono;
    }
    qsizetype ultimo = 0;
    EXPECT_EQ(fallimentoDi([&] { LeggiParola(QByteArrayView("\1", 1), ultimo); }).numero(), indiceOltre);
    qsizetype oltre = 2;
    EXPECT_EQ(fallimentoDi([&] { LeggiParola(QByteArrayView("\1\2", 2), oltre); }).numero(), indiceOltre);
}

TEST_F(MXMessages, FailureLeavesTheResultAsFarAsItGot) {
    const QByteArray datagramma = domanda + risposta(20, "\1b" + puntaDomanda) +
                                  risposta(10, "\1a" + puntaDomanda) +
                                  risposta(5, QByteArray::fromHex("c04d"));
    ASSERT_EQ(datagramma.indexOf(QByteArray::fromHex("c04d")), 0x4d);
    EXPECT_EQ(fallimentoDi([&] { leggi(datagramma, 3); }).numero(), indiceOltre);
    EXPECT_EQ(bestMX, QStringLiteral("a.libero.it"));
    EXPECT_EQ(elencoMX(),
              (ElencoMX{{QStringLiteral("b.libero.it"), 20}, {QStringLiteral("a.libero.it"), 10}}));
    EXPECT_EQ(mxCount, 2);
}

TEST_F(MXMessages, FullBufferOfAnswersEndsBeyondIt) {
    QByteArray datagramma = domanda;
    while (datagramma.size() < dimensioneRisposta)
        datagramma += risposta(7, "\1a" + puntaDomanda);
    datagramma.truncate(dimensioneRisposta);
    EXPECT_EQ(fallimentoDi([&] { leggi(datagramma, 65535); }).numero(), indiceOltre);
    EXPECT_EQ(bestMX, QStringLiteral("a.libero.it"));
    EXPECT_GT(mxCount, 100);
}

TEST_F(MXMessages, SortingIsAscendingAndStable) {
    std::vector<MXRecord> elenco{{QStringLiteral("a"), 3},
                                 {QStringLiteral("b"), 1},
                                 {QStringLiteral("c"), 3},
                                 {QStringLiteral("d"), 0},
                                 {QStringLiteral("e"), 1}};
    OrdinaMX(elenco);
    QString ordine;
    for (const MXRecord& record : elenco)
        ordine += record.host;
    EXPECT_EQ(ordine, QStringLiteral("dbeac"));
    std::vector<MXRecord> vuoto;
    OrdinaMX(vuoto);
    EXPECT_TRUE(vuoto.empty());
}

}  // namespace

}  // namespace bmxquery_messages_test
