// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <QString>

/// State that lives as long as the program and that every module may read and set. What else lives as long is
/// kept by the routines that it belongs to: the texts of the language file (bVAR.h), the last lookup of mail
/// servers (bMXQuery.h), who was accepted (Accettati.h), the last import (UltimaImportazione.h), and the one
/// instance of each window (Finestre.h).

/// Full path of the recipient database.
inline QString percorsoDB;

/// First part of every connection text; set by the start.
inline QString prefissoConnDB;

/// prefissoConnDB followed by percorsoDB: what every access to the database starts from. No connection is
/// kept.
inline QString connDB;

/// A node of the group tree as the rest of the program knows it.
struct Nodo {
    QString Key;  ///< "K" and the group's number, "K0" for the root
    QString Text;
};

/// The node that is current, if any. It stays set after its group was deleted.
inline std::optional<Nodo> nodoCorrente;

/// Work buffer of the placement routines, in twips.
inline float posLeft = 0;
inline float posTop = 0;
inline float posWidth = 0;
inline float posHeight = 0;
inline std::int16_t posWindowState = 0;

/// The palette that follows the desktop's colour scheme; set only by ImpostaColoriTema. Red in the low byte.
inline std::array<std::uint32_t, 25> coloriTema{};
