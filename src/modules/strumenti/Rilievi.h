// SPDX-License-Identifier: GPL-3.0-or-later
// The findings of a check of a message before a run.
#pragma once

#include <optional>
#include <QList>
#include <QString>

#include "modules/strumenti/ControlloCampi.h"
#include "modules/strumenti/ModelloProva.h"

struct Rilievo {
    enum class Peso {
        Grave,       ///< recipients see that something is wrong
        Attenzione,  ///< it may be meant, and may do harm
        Consiglio    ///< others do better
    };
    Peso peso = Peso::Consiglio;
    QString testo;
    std::optional<qint64> riga = std::nullopt;  ///< first recipient that it is about, from 0 in run order
};

/// The severity in a word.
QString NomePeso(Rilievo::Peso peso);

/// Of the template alone: unknown placeholders, links, images, attachments, text form, subject, sign-off.
QList<Rilievo> RilieviModello(const ModelloProva& modello);

/// Of the values of the selected recipients.
QList<Rilievo> RilieviCampi(const ControlloCampi& controllo);

/// Of one personalised copy: its length.
QList<Rilievo> RilieviCopia(const TestiMessaggio& copia);

/// The heaviest first, otherwise in their order.
QList<Rilievo> PerPeso(QList<Rilievo> rilievi);

/// Longest HTML body, in bytes, that large providers show whole.
inline constexpr qsizetype corpoMassimo = 100 * 1024;
