#include "windows/entry/Strumenti.h"

// Mnemonics in the order of the menu: &Prova, &mittente, &Esito; &Indirizzi, &cartelle; &Ultima.
std::vector<frmMain::GruppoStrumenti> finestre::Strumenti() {
    const frmMain::GruppoStrumenti invio{};
    const frmMain::GruppoStrumenti destinatari{};
    const frmMain::GruppoStrumenti importazione{};
    return {invio, destinatari, importazione};
}
