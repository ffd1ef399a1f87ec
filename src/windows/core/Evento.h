// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QAbstractButton>
#include <type_traits>
#include <utility>

#include "modules/core/Fallimento.h"

/// The boundary between the program and the toolkit: every handler of a window event runs inside evento(). A
/// failure that no procedure caught before stops here: it is shown and the program ends. Nothing is ever
/// thrown across the toolkit's event loop, nested loops of modal windows and of the send engine's wait
/// included, since each handler has its own boundary.

/// Ends the program at once, with the given exit status: no window gets its own unload, nothing is saved but
/// what PrimaDellaFine() was given and the rows that an import has inserted.
[[noreturn]] void TerminaProgramma(int stato = 1);

/// What runs at the start of every TerminaProgramma. It must not fail, nor wait for events.
void PrimaDellaFine(std::function<void()> azione);

/// For tests: what runs instead of the end of the process. The handler that called TerminaProgramma is left
/// all the same, up to its evento(). An empty function puts the real end back.
void sostituisciTermine(std::function<void(int stato)> termine);

/// The restart of the program that the box of a failure offers. Without one the box offers only the end.
struct NuovoAvvio {
    std::function<bool()> possibile;  ///< at this moment
    std::function<void()> avvia;      ///< comes back; the program then ends
};
void OffriNuovoAvvio(NuovoAvvio offerta);

/// What TerminaProgramma throws under a replaced end, on its way to evento(). Nothing else may catch it.
struct ProgrammaTerminato {
    int stato;
};

/// Shows the failure ("Errore N:", an empty line, its text; below it what was being done and with which
/// file), writes it down (Guasti.h) and ends the program, with a new start where the user asks for it.
[[noreturn]] void mostraEtermina(const Fallimento& fallimento);

/// False while a failure is on show: the program is about to end and takes no further events.
bool accettaEventi();

/// Shows what the database engine has set aside meanwhile, a box for each sentence.
void mostraAvvisi();

/// Counts the handlers that are under way inside one another.
class HandlerInCorso {
  public:
    HandlerInCorso() { ++s_quanti; }
    ~HandlerInCorso() { --s_quanti; }
    HandlerInCorso(const HandlerInCorso&) = delete;
    static bool alcuno() { return s_quanti > 0; }

  private:
    static inline int s_quanti = 0;
};

/// Runs one event handler. After the outermost one the engine's notices are shown: no tick waits for that
/// box.
template <class Gestore>
void evento(Gestore&& gestore) {
    if (!accettaEventi()) return;
    try {
        try {
            const HandlerInCorso inCorso;
            std::forward<Gestore>(gestore)();
        } catch (const Fallimento& fallimento) {
            mostraEtermina(fallimento);
        }
        if (!HandlerInCorso::alcuno()) mostraAvvisi();
    } catch (const ProgrammaTerminato&) {
    }
}

/// Has each click on a button run `gestore` as a handler of its own: a member of the window, or a function.
template <class Finestra, class Gestore>
void alClick(QAbstractButton* pulsante, Finestra* finestra, Gestore gestore) {
    QObject::connect(pulsante, &QAbstractButton::clicked, finestra, [finestra, gestore] {
        evento([&] {
            if constexpr (std::is_member_function_pointer_v<Gestore>)
                (finestra->*gestore)();
            else
                gestore();
        });
    });
}
