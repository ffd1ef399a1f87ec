#pragma once

class QVBoxLayout;
class QWidget;

/// Gives the splash and the about window their common face: the program's name and version (the labels
/// lblApplication and lblVersion) beside a coloured rule. The result is the column that holds the labels.
QVBoxLayout* CreaInsegna(QWidget& finestra);
