// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QPalette>
#include <QString>

class QWidget;

/// The colours that follow the desktop's colour scheme. A colour value has red in its low byte. The palette
/// is coloriTema (bGlobal.h); RilevaTema fills it and applies it to the program.

/// Finds the desktop's colour scheme, fills the palette and returns the scheme's name. Every window calls it
/// first in its load. Without a theme service, or after a failure on the way, the scheme is "Classic".
QString RilevaTema(QWidget* finestra);

/// For tests: the name of the scheme that a theme service would return; empty for none.
void sostituisciSchema(const QString& nome);

/// Fills the palette with the colours of a scheme: "Classic", "NormalColor", "Metallic" or "HomeStead". Any
/// other name leaves it as it was.
void ImpostaColoriTema(const QString& nome);

/// The colour that a colour value means: itself, or for 0x80000000 plus a number the system colour of
/// that number (those that office programs number from 0, scroll bar, to 30, menu bar). -1, that is
/// 0xffffffff, for a value that is neither.
std::uint32_t TraduciColore(std::uint32_t valore);

/// Colour 1 over colour 2, system colours included: quota 0 is colour 2, 255 is colour 1. Halves go to
/// the even number.
std::uint32_t MescolaColori(std::uint32_t colore1, std::uint32_t colore2, int quota);

/// The widget colours that follow from coloriTema.
QPalette tavolozzaTema();

/// An entry of coloriTema.
QColor coloreTema(int indice);

/// Entry `sopra` over entry `sotto`, as MescolaColori mixes them.
QColor misto(int sopra, int sotto, int quota);
/// Entry `sopra` over white.
QColor mistoSuBianco(int sopra, int quota);
