// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/entry/Posizione.h"

#include <cmath>
#include <limits>
#include <QLocale>
#include <QWidget>

#include "modules/core/bGlobal.h"
#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "platform/system/TextWriter.h"
#include "platform/text/Blanks.h"
#include "platform/text/NumberText.h"
#include "platform/text/TextFile.h"
#include "windows/entry/Finestre.h"
#include "windows/shell/frmMain.h"

namespace {

enum StatoFinestra : std::int16_t { Normale = 0, Minimizzata = 1, Massimizzata = 2 };

constexpr int lunghezzaChiave = 16;
constexpr int twipsPerPixel = 15;

QString fileDi(const QWidget& finestra) {
    return cartellaDati() + finestra.objectName() + ".imp";
}

float singola(double numero) {
    if (std::abs(numero) > std::numeric_limits<float>::max()) fallisci(ErrorCode::Overflow);
    return static_cast<float>(numero);
}

int pixel(float twips) {
    const float risultato = std::nearbyint(twips / twipsPerPixel);
    if (std::abs(risultato) > QWIDGETSIZE_MAX) fallisci(ErrorCode::Overflow);
    return static_cast<int>(risultato);
}

/// Takes a line into the buffer; false for a line that is none of the five.
bool leggi(const QString& riga) {
    const QString chiave = riga.left(lunghezzaChiave);
    const double numero = text::leadingNumber(text::trimBlanks(QStringView(riga).mid(lunghezzaChiave)));
    if (chiave == "mnLeft........: ")
        posLeft = singola(numero);
    else if (chiave == "mnTop.........: ")
        posTop = singola(numero);
    else if (chiave == "mnWidth.......: ")
        posWidth = singola(numero);
    else if (chiave == "mnHeight......: ")
        posHeight = singola(numero);
    else if (chiave == "mnWindowState.: ")
        posWindowState = esigi(text::toInt16(numero));
    else
        return false;
    return true;
}

void impostaStato(QWidget& finestra) {
    switch (posWindowState) {
        case Normale:
            finestra.setWindowState(Qt::WindowNoState);
            break;
        case Minimizzata:
            finestra.setWindowState(Qt::WindowMinimized);
            break;
        case Massimizzata:
            finestra.setWindowState(Qt::WindowMaximized);
            break;
        default:
            fallisci(ErrorCode::Overflow);
    }
}

StatoFinestra statoDi(const QWidget& finestra) {
    if (finestra.isMinimized()) return Minimizzata;
    return finestra.isMaximized() ? Massimizzata : Normale;
}

QString testo(float numero) {
    QLocale lingua;
    lingua.setNumberOptions(QLocale::OmitGroupSeparator);
    return lingua.toString(numero, 'g', 7);
}

void applicaBuffer(QWidget& finestra) {
    Prosegui prosegui;
    prosegui([&] { finestra.move(pixel(posLeft), finestra.y()); });
    prosegui([&] { finestra.move(finestra.x(), pixel(posTop)); });
    prosegui([&] { finestra.resize(pixel(posWidth), finestra.height()); });
    prosegui([&] { finestra.resize(finestra.width(), pixel(posHeight)); });
    prosegui([&] { impostaStato(finestra); });
}

void riempiBuffer(const QWidget& finestra) {
    posWindowState = statoDi(finestre::Main());
    if (posWindowState != Normale) return;
    posLeft = static_cast<float>(finestra.x() * twipsPerPixel);
    posTop = static_cast<float>(finestra.y() * twipsPerPixel);
    posWidth = static_cast<float>(finestra.width() * twipsPerPixel);
    posHeight = static_cast<float>(finestra.height() * twipsPerPixel);
}

int statoDaScrivere() {
    return posWindowState == int{Minimizzata} ? int{Normale} : posWindowState;
}

}  // namespace

void CaricaPosizioneForm(QWidget& finestra) {
    Prosegui prosegui;
    text::LineReader file;
    if (!prosegui([&] { esigi(file.open(fileDi(finestra), text::LineEnds::Any)); })) return;
    bool letta = posWidth != 0 || posHeight != 0;
    for (QString riga; file.nextLine(riga);)
        if (riga.size() >= lunghezzaChiave) prosegui([&] { letta |= leggi(riga); });
    if (!letta) return;
    applicaBuffer(finestra);
}

void SalvaPosizioneForm(const QWidget& finestra) {
    riempiBuffer(finestra);
    sys::TextWriter file;
    esigi(file.open(fileDi(finestra), sys::WriteMode::Output, sys::FileKind::Own));
    esigi(file.print(u"[Form frmMain]"));
    esigi(file.print("mnLeft........: " + testo(posLeft)));
    esigi(file.print("mnTop.........: " + testo(posTop)));
    esigi(file.print("mnWidth.......: " + testo(posWidth)));
    esigi(file.print("mnHeight......: " + testo(posHeight)));
    esigi(file.print("mnWindowState.: " + QString::number(statoDaScrivere())));
    esigi(file.close());
}

Rettangolo PosizioneDi(const QWidget& finestra) {
    riempiBuffer(finestra);
    return {qRound(posLeft), qRound(posTop), qRound(posWidth), qRound(posHeight), statoDaScrivere()};
}

void MettiInPosizione(QWidget& finestra, const Rettangolo& posizione) {
    posLeft = static_cast<float>(posizione.sinistra);
    posTop = static_cast<float>(posizione.alto);
    posWidth = static_cast<float>(posizione.larghezza);
    posHeight = static_cast<float>(posizione.altezza);
    posWindowState = static_cast<std::int16_t>(posizione.stato);
    applicaBuffer(finestra);
}
