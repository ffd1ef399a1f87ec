// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QVBoxLayout;
class QWidget;

/// Builds the common look of the splash and the about window: the program's name and version (the labels
/// lblApplication and lblVersion) beside a coloured rule. Returns the column with the labels.
QVBoxLayout* CreaInsegna(QWidget& finestra);
